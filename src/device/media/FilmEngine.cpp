#include "device/media/FilmEngine.h"

#include "device/media/FilmFrame.h"

#include <QAudioDevice>
#include <QAudioOutput>
#include <QMediaDevices>
#include <QMediaPlayer>
#include <QVideoFrame>
#include <QVideoSink>

#include <utility>

namespace kavor {

bool SharedPicture::put(const QImage& picture) {
    const QMutexLocker hold(&lock_);
    picture_ = picture;
    return std::exchange(taken_, false);
}

QImage SharedPicture::take() {
    const QMutexLocker hold(&lock_);
    taken_ = true;
    return picture_;
}

FilmEngine::FilmEngine(const QUrl& film, std::shared_ptr<SharedPicture> picture)
    : film_(film)
    , picture_(std::move(picture)) {}

FilmEngine::~FilmEngine() = default;

void FilmEngine::begin() {
    player_ = new QMediaPlayer(this);
    auto* sink = new QVideoSink(this);
    // Without a device to hear it from, a film with sound would not play at all.
    if (!QMediaDevices::defaultAudioOutput().isNull())
        player_->setAudioOutput(new QAudioOutput(this));
    player_->setVideoSink(sink);
    connect(sink, &QVideoSink::videoFrameChanged, this, &FilmEngine::takeFrame);
    connect(player_, &QMediaPlayer::playbackStateChanged, this, &FilmEngine::tell);
    connect(player_, &QMediaPlayer::mediaStatusChanged, this, &FilmEngine::followStatus);
    connect(player_, &QMediaPlayer::positionChanged, this, &FilmEngine::tell);
    connect(player_, &QMediaPlayer::durationChanged, this, &FilmEngine::tell);
    connect(player_, &QMediaPlayer::errorOccurred, this, [this] {
        failed_ = true;
        tell();
    });
    failed_ = !player_->isAvailable();
    tell();
    if (failed_)
        return;
    player_->setSource(film_);
    player_->play();
}

void FilmEngine::play() {
    if (player_->mediaStatus() == QMediaPlayer::EndOfMedia) {
        restarts_ = mostRestarts;
        player_->setPosition(0);
    }
    player_->play();
}

// The backend may tell of the same end twice, and the second time stop what has just begun anew.
void FilmEngine::followStatus(QMediaPlayer::MediaStatus status) {
    if (status == QMediaPlayer::EndOfMedia && restarts_ > 0) {
        --restarts_;
        QMetaObject::invokeMethod(
            this,
            [this] {
                player_->setPosition(0);
                player_->play();
            },
            Qt::QueuedConnection);
        return;
    }
    tell();
}

void FilmEngine::pause() {
    player_->pause();
}

void FilmEngine::seek(qint64 position) {
    const bool ended = player_->mediaStatus() == QMediaPlayer::EndOfMedia;
    player_->setPosition(position);
    if (ended)
        player_->play();
    tell();
}

void FilmEngine::takeFrame(const QVideoFrame& frame) {
    if (!frame.isValid()) // the end of the film
        return;
    restarts_ = 0;
    const QImage picture = pictureOf(frame);
    failed_ = failed_ || picture.isNull();
    shown_ = true;
    if (!picture.isNull() && picture_->put(picture))
        emit pictureCame();
    tell();
}

FilmStatus::State FilmEngine::state() const {
    using State = FilmStatus::State;
    const auto status = player_->mediaStatus();
    if (failed_ || status == QMediaPlayer::InvalidMedia)
        return State::Failed;
    if (status == QMediaPlayer::EndOfMedia)
        return State::Ended;
    if (!shown_ || status == QMediaPlayer::LoadingMedia || status == QMediaPlayer::StalledMedia)
        return State::Loading;
    return player_->playbackState() == QMediaPlayer::PlayingState ? State::Playing : State::Paused;
}

void FilmEngine::tell() {
    const FilmStatus status{state(), player_->position(), player_->duration(), player_->isSeekable()};
    if (std::exchange(told_, status) != status)
        emit told(status);
}

} // namespace kavor
