#pragma once

#include "account/screens/AccountServices.h"
#include "catalogue/ApplicationInformation.h"
#include "device/FilmPlayer.h"
#include "screens/ScreenController.h"

#include <QString>
#include <QVariantList>

#include <optional>
#include <vector>

namespace kavor {

// The films that explain the programme. One is played inside the screen; what cannot be is opened outside.
class TutorialsViewController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    // Entries {title, films}, a film {index, label, source}.
    Q_PROPERTY(QVariantList groups READ groups CONSTANT)
    Q_PROPERTY(bool offline READ isOffline NOTIFY offlineChanged)
    Q_PROPERTY(bool filmOpen READ isFilmOpen NOTIFY filmChanged)
    Q_PROPERTY(QString filmTitle READ filmTitle NOTIFY filmChanged)
    Q_PROPERTY(bool fullWindow READ isFullWindow NOTIFY filmChanged)
    Q_PROPERTY(bool loading READ isLoading NOTIFY statusChanged)
    Q_PROPERTY(bool playing READ isPlaying NOTIFY statusChanged)
    Q_PROPERTY(bool ended READ isEnded NOTIFY statusChanged)
    Q_PROPERTY(bool seekable READ isSeekable NOTIFY statusChanged)
    // Why the film does not play; empty when it does.
    Q_PROPERTY(QString problem READ problem NOTIFY statusChanged)
    // How much of the film has gone by, from 0 to 1.
    Q_PROPERTY(double share READ share NOTIFY statusChanged)
    Q_PROPERTY(QString timeText READ timeText NOTIFY statusChanged)
    Q_PROPERTY(kavor::FilmPlayer* player READ player CONSTANT)

public:
    explicit TutorialsViewController(const AccountServices& services, QObject* parent = nullptr);
    ~TutorialsViewController() override;

    Q_INVOKABLE void openFilm(int index);
    Q_INVOKABLE void closeFilm();
    // Plays, pauses, or starts a film anew that is at its end.
    Q_INVOKABLE void playAction();
    Q_INVOKABLE void pauseAction();
    Q_INVOKABLE void seekToShare(double share);
    Q_INVOKABLE void seekBySeconds(int seconds);
    Q_INVOKABLE void retryAction();
    Q_INVOKABLE void openOutsideAction();
    Q_INVOKABLE void fullWindowAction();
    // Leaves the full window, else the film, else the screen.
    Q_INVOKABLE void closeSceneAction();

    [[nodiscard]] QVariantList groups() const;
    [[nodiscard]] bool isOffline() const;
    [[nodiscard]] bool isFilmOpen() const { return film_.has_value(); }
    [[nodiscard]] QString filmTitle() const;
    [[nodiscard]] bool isFullWindow() const { return fullWindow_; }
    [[nodiscard]] bool isLoading() const { return stands(FilmStatus::State::Loading); }
    [[nodiscard]] bool isPlaying() const { return stands(FilmStatus::State::Playing); }
    [[nodiscard]] bool isEnded() const { return stands(FilmStatus::State::Ended); }
    [[nodiscard]] bool isSeekable() const;
    [[nodiscard]] QString problem() const;
    [[nodiscard]] double share() const;
    [[nodiscard]] QString timeText() const;
    [[nodiscard]] FilmPlayer* player() const { return &services_.films; }

signals:
    void offlineChanged();
    void filmChanged();
    void statusChanged();

private:
    [[nodiscard]] bool stands(FilmStatus::State state) const {
        return film_ && services_.films.status().state == state;
    }
    [[nodiscard]] QString address() const;
    void start();

    AccountServices services_;
    std::vector<ApplicationInformation::Manual> manuals_; // in the order on show
    std::optional<std::size_t> film_;
    bool fullWindow_ = false;
};

} // namespace kavor
