#pragma once

#include "documents/MessageDraft.h"
#include "interaction/PendingRun.h"
#include "network/ServiceOperations.h"
#include "screens/ScreenController.h"

#include <QString>

#include <functional>
#include <string>

namespace kavor {

class AlertPresenter;
class Reachability;
class UrlOpener;

// A form with a text that goes to the programme in one request: what it takes of the text, the request behind
// a veil that can be left, how it failed, and the question before a text that was not sent is left. The same
// content sent again, while nobody answered, goes out under the same key.
class MessageFormController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("a form derives from it")
    Q_PROPERTY(QString text READ text NOTIFY formChanged)
    // How full the text is, while that matters.
    Q_PROPERTY(QString counter READ counter NOTIFY formChanged)
    Q_PROPERTY(bool sending READ isSending NOTIFY sendingChanged)
    Q_PROPERTY(bool offline READ isOffline NOTIFY offlineChanged)

public:
    // What every such form works with. Everything outlives it.
    struct Services {
        ServiceOperations& network;
        AlertPresenter& alerts;
        UrlOpener& urls;
        Reachability& reachability;
    };

    // Takes what was typed; what remains of it when it is too long.
    Q_INVOKABLE QString editText(const QString& text);
    Q_INVOKABLE virtual void sendAction() = 0;
    // The user waits no longer for the answer; the text stays.
    Q_INVOKABLE void leaveVeil();
    Q_INVOKABLE void closeSceneAction();

    [[nodiscard]] QString text() const;
    [[nodiscard]] QString counter() const;
    [[nodiscard]] bool isSending() const { return run_.isUnderWay(); }
    [[nodiscard]] bool isOffline() const;
    [[nodiscard]] bool isTextBlank() const;

signals:
    void formChanged();
    void sendingChanged();
    void offlineChanged();
    // The text being typed is not the form's any more.
    void emptied();

protected:
    template <class Response>
    using Request = std::function<void(const Completion<Response>& done, const QByteArray& key)>;

    // The draft outlives the form; the word says what the user who leaves the veil must know.
    MessageFormController(const Services& services, MessageDraft& draft, const QString& leftWord,
                          QObject* parent);

    // Sends the content, which tells one intent from another, unless it is under way or there is no network.
    // A failure offers sendAction again.
    template <class Response>
    void send(const std::string& content, const Request<Response>& request,
              std::function<void(const Response&)> answered) {
        if (!mayBegin(content))
            return;
        request({run_.begin(),
                 [this, answered = std::move(answered)](const Response& response) {
                     endAnswered();
                     answered(response);
                 },
                 [this](const RequestFailure& failure) { failed(failure); }},
                keyOfSend());
        emit sendingChanged();
    }
    // The text went out and is gone from the form.
    void emptyText();
    // Tells the answer of a form that has done its work; the tap on "Continuar" leaves it.
    void tellAndLeave(const QString& title, const QString& message);
    [[nodiscard]] bool isDone() const { return done_; }
    [[nodiscard]] const Services& services() const { return services_; }

private:
    bool mayBegin(const std::string& content);
    QByteArray keyOfSend();
    void endAnswered();
    void failed(const RequestFailure& failure);

    Services services_;
    MessageDraft& draft_;
    QString leftWord_;
    PendingRun run_;
    std::string content_; // of the send under way
    bool asking_ = false;
    bool done_ = false;
};

} // namespace kavor
