#pragma once

#include <QImage>
#include <QObject>
#include <QUrl>

namespace kavor {

// How a film stands. Times are in milliseconds; a duration of 0 is unknown.
struct FilmStatus {
    enum class State { Closed, Loading, Playing, Paused, Ended, Failed };
    State state = State::Closed;
    qint64 position = 0;
    qint64 duration = 0;
    bool seekable = false;
    bool operator==(const FilmStatus&) const = default;
};

// Plays one film at a time from its address, and hands over its pictures. Nothing is started before the first
// film, and nothing that the network or the film does holds the caller's thread.
class FilmPlayer : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    // Takes the place of the film before, and plays as soon as it can.
    virtual void open(const QUrl& film) = 0;
    // A film at its end starts anew.
    virtual void play() = 0;
    virtual void pause() = 0;
    virtual void seek(qint64 position) = 0;
    virtual void close() = 0;

    [[nodiscard]] virtual FilmStatus status() const = 0;
    // The picture to show; null before the first one.
    [[nodiscard]] virtual QImage frame() const = 0;

signals:
    void statusChanged();
    void frameChanged();
};

} // namespace kavor
