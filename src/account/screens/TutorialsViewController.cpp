#include "account/screens/TutorialsViewController.h"

#include "catalogue/Catalogue.h"
#include "device/Reachability.h"
#include "interaction/OpenLink.h"
#include "interaction/QtText.h"
#include "interaction/Questions.h"
#include "network/ServiceOperations.h"
#include "screens/ResourceImages.h"
#include "session/AppSingleton.h"

#include <QUrl>
#include <QVariantMap>

#include <algorithm>

namespace kavor {

namespace {

QString clockText(qint64 milliseconds) {
    const qint64 seconds = milliseconds / 1000;
    return QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

QString heading(const std::string& type) {
    const QString text = fromUtf8(type);
    return text.left(1).toUpper() + text.mid(1);
}

// By position; a type stands where its first film does.
std::vector<ApplicationInformation::Manual> inOrder(const Catalogue* catalogue) {
    using Manual = ApplicationInformation::Manual;
    std::vector<Manual> sorted;
    if (catalogue)
        sorted = catalogue->information().manuals;
    std::ranges::stable_sort(sorted, {}, &Manual::position);
    for (auto group = sorted.begin(); group != sorted.end();)
        group = std::stable_partition(group, sorted.end(),
                                      [type = group->type](const Manual& each) { return each.type == type; });
    return sorted;
}

} // namespace

TutorialsViewController::TutorialsViewController(const AccountServices& services, QObject* parent)
    : ScreenController(parent)
    , services_(services)
    , manuals_(inOrder(services.session.applicationInformation.get())) {
    connect(&services_.reachability, &Reachability::changed, this, &TutorialsViewController::offlineChanged);
    connect(&services_.films, &FilmPlayer::statusChanged, this, &TutorialsViewController::statusChanged);
}

TutorialsViewController::~TutorialsViewController() {
    if (film_)
        services_.films.close();
}

QVariantList TutorialsViewController::groups() const {
    QVariantList result;
    for (std::size_t i = 0; i < manuals_.size();) {
        const std::string& type = manuals_[i].type;
        QVariantList films;
        for (; i < manuals_.size() && manuals_[i].type == type; ++i)
            films << QVariantMap{{QStringLiteral("index"), int(i)},
                                 {QStringLiteral("label"), fromUtf8(manuals_[i].label)},
                                 {QStringLiteral("source"), resourceImageUrl(manuals_[i].thumb)}};
        result << QVariantMap{{QStringLiteral("title"), heading(type)}, {QStringLiteral("films"), films}};
    }
    return result;
}

void TutorialsViewController::openFilm(int index) {
    if (index < 0 || index >= int(manuals_.size()))
        return;
    if (isOffline())
        return informOffline(services_.alerts);
    film_ = std::size_t(index);
    start();
    emit filmChanged();
}

void TutorialsViewController::start() {
    // The address comes from the catalogue: no file of the device, and no odd protocol.
    const QUrl film(address(), QUrl::StrictMode);
    if (film.scheme() == QLatin1String("https") || film.scheme() == QLatin1String("http"))
        services_.films.open(film);
    else
        services_.films.close();
    emit statusChanged();
}

void TutorialsViewController::closeFilm() {
    if (!film_)
        return;
    film_.reset();
    fullWindow_ = false;
    services_.films.close();
    emit filmChanged();
}

void TutorialsViewController::playAction() {
    if (isPlaying())
        services_.films.pause();
    else if (film_ && problem().isEmpty())
        services_.films.play();
}

void TutorialsViewController::pauseAction() {
    if (film_ && (isPlaying() || isLoading()))
        services_.films.pause();
}

void TutorialsViewController::seekToShare(double share) {
    if (isSeekable())
        services_.films.seek(qint64(std::clamp(share, 0.0, 1.0) * double(services_.films.status().duration)));
}

void TutorialsViewController::seekBySeconds(int seconds) {
    const FilmStatus status = services_.films.status();
    if (isSeekable())
        services_.films.seek(
            std::clamp<qint64>(status.position + qint64(seconds) * 1000, 0, status.duration));
}

void TutorialsViewController::retryAction() {
    if (!film_)
        return;
    if (isOffline())
        return informOffline(services_.alerts);
    start();
}

void TutorialsViewController::openOutsideAction() {
    if (!film_)
        return;
    pauseAction();
    openLink(services_.urls, services_.alerts, address());
}

void TutorialsViewController::fullWindowAction() {
    fullWindow_ = film_ && !fullWindow_;
    emit filmChanged();
}

void TutorialsViewController::closeSceneAction() {
    if (fullWindow_)
        fullWindowAction();
    else if (film_)
        closeFilm();
    else
        emit closed();
}

bool TutorialsViewController::isOffline() const {
    return !services_.network.isReachable();
}

QString TutorialsViewController::address() const {
    return film_ ? fromUtf8(manuals_[*film_].video.downloadURL.text) : QString();
}

QString TutorialsViewController::filmTitle() const {
    return film_ ? fromUtf8(manuals_[*film_].label) : QString();
}

bool TutorialsViewController::isSeekable() const {
    const FilmStatus status = services_.films.status();
    return film_ && problem().isEmpty() && status.seekable && status.duration > 0;
}

QString TutorialsViewController::problem() const {
    using State = FilmStatus::State;
    const State state = services_.films.status().state;
    if (!film_ || (state != State::Failed && state != State::Closed))
        return {};
    return isOffline() ? QStringLiteral("Sin conexión: los vídeos necesitan internet.")
                       : QStringLiteral("Este vídeo no se puede ver aquí.");
}

double TutorialsViewController::share() const {
    const FilmStatus status = services_.films.status();
    return status.duration > 0 ? std::clamp(double(status.position) / double(status.duration), 0.0, 1.0) : 0;
}

QString TutorialsViewController::timeText() const {
    const FilmStatus status = services_.films.status();
    const QString position = clockText(status.position);
    return status.duration > 0 ? position + QStringLiteral(" / ") + clockText(status.duration) : position;
}

} // namespace kavor
