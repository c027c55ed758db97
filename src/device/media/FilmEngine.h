#pragma once

#include "device/FilmPlayer.h"

#include <QImage>
#include <QMediaPlayer>
#include <QMutex>

#include <memory>

class QVideoFrame;
class QVideoSink;

namespace kavor {

// The picture that a film shows now, for the thread that plays it and the one that shows it.
class SharedPicture {
public:
    // Whether the one before was taken; else the taker has been told already.
    bool put(const QImage& picture);
    QImage take();

private:
    QMutex lock_;
    QImage picture_;
    bool taken_ = true;
};

// One film in a thread of its own: opening it, and leaving it, wait for the network.
class FilmEngine : public QObject {
    Q_OBJECT
public:
    FilmEngine(const QUrl& film, std::shared_ptr<SharedPicture> picture);
    ~FilmEngine() override;

    void begin();
    void play();
    void pause();
    void seek(qint64 position);

signals:
    void told(const kavor::FilmStatus& status);
    void pictureCame();

private:
    void followStatus(QMediaPlayer::MediaStatus status);
    void takeFrame(const QVideoFrame& frame);
    void tell();
    [[nodiscard]] FilmStatus::State state() const;

    QUrl film_;
    std::shared_ptr<SharedPicture> picture_;
    QMediaPlayer* player_ = nullptr;
    bool failed_ = false;
    bool shown_ = false; // a picture came
    static constexpr int mostRestarts = 3;
    int restarts_ = 0; // how often it may still begin anew before its first picture
    FilmStatus told_;
};

} // namespace kavor
