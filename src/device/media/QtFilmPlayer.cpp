#include "device/media/QtFilmPlayer.h"

#include "device/media/FilmEngine.h"

#include <algorithm>

namespace kavor {

namespace {

// Debian's default backend plays H.264 with further packages only.
void chooseBackend() {
    constexpr char backend[] = "QT_MEDIA_BACKEND";
    if (!qEnvironmentVariableIsSet(backend))
        qputenv(backend, "ffmpeg");
}

} // namespace

QtFilmPlayer::QtFilmPlayer(QObject* parent)
    : FilmPlayer(parent) {}

// A thread that the network holds is left to the end of the process.
QtFilmPlayer::~QtFilmPlayer() {
    letGo();
    constexpr int patience = 1000;
    for (const auto& thread : leaving_) {
        if (thread && thread->wait(patience))
            delete thread.data();
    }
}

void QtFilmPlayer::open(const QUrl& film) {
    chooseBackend();
    letGo();
    picture_ = std::make_shared<SharedPicture>();
    frame_ = {};
    engine_ = new FilmEngine(film, picture_);
    thread_ = new QThread;
    thread_->setObjectName(QStringLiteral("film"));
    engine_->moveToThread(thread_);
    connect(thread_, &QThread::started, engine_, &FilmEngine::begin);
    connect(thread_, &QThread::finished, engine_, &QObject::deleteLater);
    connect(thread_, &QThread::finished, thread_, &QObject::deleteLater);
    connect(engine_, &FilmEngine::told, this, [this, picture = picture_](const FilmStatus& status) {
        if (picture != picture_) // of a film that was left
            return;
        status_ = status;
        emit statusChanged();
    });
    connect(engine_, &FilmEngine::pictureCame, this, [this, picture = picture_] {
        if (picture != picture_)
            return;
        frame_ = picture_->take();
        emit frameChanged();
    });
    status_ = {FilmStatus::State::Loading, 0, 0, false};
    thread_->start();
    emit statusChanged();
    emit frameChanged();
}

void QtFilmPlayer::tellEngine(const std::function<void(FilmEngine&)>& what) {
    if (engine_)
        QMetaObject::invokeMethod(engine_, [what, engine = engine_] { what(*engine); });
}

void QtFilmPlayer::play() {
    tellEngine([](FilmEngine& engine) { engine.play(); });
}

void QtFilmPlayer::pause() {
    tellEngine([](FilmEngine& engine) { engine.pause(); });
}

void QtFilmPlayer::seek(qint64 position) {
    tellEngine([position](FilmEngine& engine) { engine.seek(position); });
}

void QtFilmPlayer::letGo() {
    if (!engine_)
        return;
    engine_ = nullptr;
    picture_ = nullptr;
    thread_->quit();
    std::erase_if(leaving_, [](const auto& thread) { return !thread; });
    leaving_.push_back(thread_);
    thread_ = nullptr;
}

void QtFilmPlayer::close() {
    letGo();
    frame_ = {};
    status_ = {};
    emit statusChanged();
    emit frameChanged();
}

} // namespace kavor
