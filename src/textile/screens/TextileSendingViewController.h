#pragma once

#include "account/UserProfile.h"
#include "interaction/PendingRun.h"
#include "textile/screens/TextileCart.h"
#include "textile/screens/TextileStepViewController.h"

#include <QStringList>

#include <optional>

namespace kavor {

// The last step: what the order holds and lacks, the budget, and the ways out: to print, a preview, or kept
// under a name and in the cloud.
class TextileSendingViewController : public kavor::TextileStepViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the section")
    // The cart, one row for each of its lines.
    Q_PROPERTY(kavor::TextileCart* items READ items CONSTANT)
    Q_PROPERTY(QString addedElementsLabel READ addedElementsLabel NOTIFY summaryChanged)
    Q_PROPERTY(QString brandName READ brandName NOTIFY summaryChanged)
    Q_PROPERTY(QString brandImage READ brandImage NOTIFY summaryChanged)
    // The text to print in its typography, as Lettering takes it.
    Q_PROPERTY(QVariantMap lettering READ lettering NOTIFY summaryChanged)
    Q_PROPERTY(QString typographyName READ typographyName NOTIFY summaryChanged)
    Q_PROPERTY(QString orderComment READ orderComment NOTIFY summaryChanged)
    // The budget for clothing: "Disponible: 300,00 € de 500,00 €", and its share, below 0 when it is unknown.
    Q_PROPERTY(QString budgetText READ budgetText NOTIFY budgetChanged)
    Q_PROPERTY(double budgetShare READ budgetShare NOTIFY budgetChanged)
    // The sentences of the last check, empty after one that passed.
    Q_PROPERTY(QStringList missing READ missing NOTIFY missingChanged)
    // Says that an order of this draft waits in the outbox; empty when none does.
    Q_PROPERTY(QString waitingText READ waitingText NOTIFY waitingChanged)
    Q_PROPERTY(QString makeOrderTitle READ makeOrderTitle NOTIFY summaryChanged)
    Q_PROPERTY(bool orderSent READ isOrderSent NOTIFY summaryChanged)

public:
    explicit TextileSendingViewController(TextileDesk& desk, QObject* parent = nullptr);
    ~TextileSendingViewController() override;

    [[nodiscard]] QUrl view() const override;
    // Whether a sentence of the check is about the cart; the others are about the first step.
    static bool isAboutCart(const std::string& sentence);

    Q_INVOKABLE void makeOrderOnServerAction();
    Q_INVOKABLE void previewOrderAction();
    Q_INVOKABLE void storeOrderOnDiskAction();
    Q_INVOKABLE void editComment(const QString& text);
    // A tap on one of the sentences of what is missing.
    Q_INVOKABLE void goToMissing(int index);
    Q_INVOKABLE void goToProducts();

    [[nodiscard]] TextileCart* items() { return &items_; }
    [[nodiscard]] QString addedElementsLabel() const { return items_.summary(); }
    [[nodiscard]] QString brandName() const;
    [[nodiscard]] QString brandImage() const;
    [[nodiscard]] QVariantMap lettering() const;
    [[nodiscard]] QString typographyName() const;
    [[nodiscard]] QString orderComment() const;
    [[nodiscard]] QString budgetText() const;
    [[nodiscard]] double budgetShare() const;
    [[nodiscard]] QStringList missing() const { return missing_; }
    [[nodiscard]] QString waitingText() const;
    [[nodiscard]] QString makeOrderTitle() const;
    [[nodiscard]] bool isOrderSent() const { return desk_.draft().orderURL.has_value(); }
    [[nodiscard]] std::optional<QUrl> previewURL() const { return previewURL_; }

signals:
    void summaryChanged();
    void budgetChanged();
    void missingChanged();
    void waitingChanged();

private:
    void fetchBudget();
    void showWaiting(const QString& name);
    [[nodiscard]] const Product* brand() const;

    TextileDesk& desk_;
    TextileCart items_;
    PendingRun budgetRun_;
    std::optional<UserProfile::User> user_;
    std::optional<QUrl> previewURL_;
    QStringList missing_;
    QString waiting_; // the plain name of the file of the outbox
};

} // namespace kavor
