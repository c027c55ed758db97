#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariantList>

#include <deque>
#include <functional>
#include <optional>

namespace kavor {

struct AlertButton {
    enum class Role { Cancel, Normal, Destructive };
    QString text;
    Role role = Role::Normal;
};

// One line of text that the alert asks for.
struct AlertTextField {
    QString caption;
    QString initialText;
    int maximumLength = 0; // in characters; 0 means no limit
};

// What an alert shows. An alert with choices shows them as a list above its buttons.
struct AlertRequest {
    QString title;
    QString text;
    QList<AlertButton> buttons;
    std::optional<AlertTextField> textField;
    QStringList choices;
};

// The user's answer: the index of the button or, when a list entry was tapped, of the choice; -1 otherwise.
struct AlertAnswer {
    int button = -1;
    int choice = -1;
    QString text;
};

// Shows one alert at a time, in the order in which they were asked for. The callback is bound to a context
// object: when that object is gone, the alert is dropped if it still waits and its answer goes nowhere.
// The window's alert host and tests answer through the same object.
class AlertPresenter : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool visible READ isVisible NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    // Each entry: {text: string, role: "cancel" | "normal" | "destructive"}.
    Q_PROPERTY(QVariantList buttons READ buttons NOTIFY changed)
    Q_PROPERTY(bool hasTextField READ hasTextField NOTIFY changed)
    Q_PROPERTY(QString fieldCaption READ fieldCaption NOTIFY changed)
    Q_PROPERTY(QString fieldInitialText READ fieldInitialText NOTIFY changed)
    Q_PROPERTY(int fieldMaximumLength READ fieldMaximumLength NOTIFY changed)
    Q_PROPERTY(QStringList choices READ choices NOTIFY changed)

public:
    using Callback = std::function<void(const AlertAnswer&)>;

    explicit AlertPresenter(QObject* parent = nullptr);

    // Queues an alert. Without a context the callback always runs.
    void present(AlertRequest request, QObject* context = nullptr, Callback callback = {});
    // An alert with the single button "Aceptar".
    void inform(const QString& title, const QString& text, QObject* context = nullptr,
                std::function<void()> callback = {});

    [[nodiscard]] bool isVisible() const { return !queue_.empty(); }
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString text() const;
    [[nodiscard]] QVariantList buttons() const;
    [[nodiscard]] bool hasTextField() const;
    [[nodiscard]] QString fieldCaption() const;
    [[nodiscard]] QString fieldInitialText() const;
    [[nodiscard]] int fieldMaximumLength() const;
    [[nodiscard]] QStringList choices() const;

    // The alert on show, nullptr when there is none.
    [[nodiscard]] const AlertRequest* current() const;

    // Called by the alert host and by tests; an index outside the alert's list is ignored.
    Q_INVOKABLE void answerButton(int index, const QString& text = {});
    Q_INVOKABLE void answerChoice(int index);

signals:
    void changed();

private:
    struct Entry {
        AlertRequest request;
        bool bound = false;
        QPointer<QObject> context;
        Callback callback;
    };

    void finish(const AlertAnswer& answer);
    void dropOrphans();

    std::deque<Entry> queue_;
};

} // namespace kavor
