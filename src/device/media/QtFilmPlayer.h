#pragma once

#include "device/FilmPlayer.h"

#include <QPointer>
#include <QThread>

#include <functional>
#include <memory>
#include <vector>

namespace kavor {

class FilmEngine;
class SharedPicture;

// Qt Multimedia with its ffmpeg backend, in a thread for each film.
class QtFilmPlayer : public FilmPlayer {
    Q_OBJECT
public:
    explicit QtFilmPlayer(QObject* parent = nullptr);
    ~QtFilmPlayer() override;

    void open(const QUrl& film) override;
    void play() override;
    void pause() override;
    void seek(qint64 position) override;
    void close() override;

    [[nodiscard]] FilmStatus status() const override { return status_; }
    [[nodiscard]] QImage frame() const override { return frame_; }

private:
    void tellEngine(const std::function<void(FilmEngine&)>& what);
    void letGo();

    std::shared_ptr<SharedPicture> picture_;
    FilmEngine* engine_ = nullptr; // lives in its thread
    QPointer<QThread> thread_;
    std::vector<QPointer<QThread>> leaving_; // end as soon as the network lets them
    FilmStatus status_;
    QImage frame_;
};

} // namespace kavor
