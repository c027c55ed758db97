#pragma once

#include "account/screens/AccountServices.h"
#include "interaction/PendingRun.h"
#include "screens/ScreenController.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace kavor {

class Catalogue;
struct RequestFailure;

// The suggestion mailbox: a category of the catalogue and a text. What is not sent is there again when the
// user comes back.
class SuggestionViewController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QStringList categories READ categories CONSTANT)
    Q_PROPERTY(int category READ category NOTIFY formChanged)
    Q_PROPERTY(QString body READ body NOTIFY formChanged)
    // How full the text is, while that matters.
    Q_PROPERTY(QString counter READ counter NOTIFY formChanged)
    // What is missing, after a try to send.
    Q_PROPERTY(QString categoryError READ categoryError NOTIFY formChanged)
    Q_PROPERTY(QString bodyError READ bodyError NOTIFY formChanged)
    Q_PROPERTY(bool sending READ isSending NOTIFY sendingChanged)
    Q_PROPERTY(bool offline READ isOffline NOTIFY offlineChanged)

public:
    explicit SuggestionViewController(const AccountServices& services, QObject* parent = nullptr);
    ~SuggestionViewController() override;

    Q_INVOKABLE void chooseCategory(int index);
    // Takes what was typed; what remains of it when it is too long.
    Q_INVOKABLE QString editBody(const QString& text);
    Q_INVOKABLE void sendAction();
    // The user waits no longer for the answer; the text stays.
    Q_INVOKABLE void leaveVeil();
    Q_INVOKABLE void closeSceneAction();

    [[nodiscard]] QStringList categories() const;
    [[nodiscard]] int category() const;
    [[nodiscard]] QString body() const;
    [[nodiscard]] QString counter() const;
    [[nodiscard]] QString categoryError() const;
    [[nodiscard]] QString bodyError() const;
    [[nodiscard]] bool isSending() const { return run_.isUnderWay(); }
    [[nodiscard]] bool isOffline() const;

signals:
    void formChanged();
    void sendingChanged();
    void offlineChanged();
    // The text being typed is not the form's any more.
    void emptied();

private:
    [[nodiscard]] bool isBodyBlank() const;
    void sent(const QString& message);
    void failed(const RequestFailure& failure);

    AccountServices services_;
    std::shared_ptr<const Catalogue> catalogue_;
    PendingRun run_;
    bool tried_ = false;
};

} // namespace kavor
