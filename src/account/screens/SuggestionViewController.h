#pragma once

#include "account/screens/AccountServices.h"
#include "screens/messages/MessageFormController.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace kavor {

class Catalogue;

// The suggestion mailbox: a category of the catalogue and a text. What is not sent is there again when the
// user comes back.
class SuggestionViewController : public kavor::MessageFormController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QStringList categories READ categories CONSTANT)
    Q_PROPERTY(int category READ category NOTIFY formChanged)
    // What is missing, after a try to send.
    Q_PROPERTY(QString categoryError READ categoryError NOTIFY formChanged)
    Q_PROPERTY(QString bodyError READ bodyError NOTIFY formChanged)

public:
    explicit SuggestionViewController(const AccountServices& services, QObject* parent = nullptr);
    ~SuggestionViewController() override;

    Q_INVOKABLE void chooseCategory(int index);
    Q_INVOKABLE void sendAction() override;

    [[nodiscard]] QStringList categories() const;
    [[nodiscard]] int category() const;
    [[nodiscard]] QString categoryError() const;
    [[nodiscard]] QString bodyError() const;

private:
    void sent(const QString& message);

    SuggestionDraft& draft_;
    std::shared_ptr<const Catalogue> catalogue_;
    bool tried_ = false;
};

} // namespace kavor
