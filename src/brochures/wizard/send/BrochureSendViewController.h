#pragma once

#include "brochures/wizard/BrochureRoad.h"
#include "brochures/wizard/WizardStepContext.h"
#include "brochures/wizard/send/BrochureSendSummary.h"
#include "catalogue/Brochures.h"

#include <QQmlEngine>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace kavor {

class BrochureIntermediateData;
class Catalogue;

// Step 6 of the wizard: what the draft holds and lacks, the comment for support, and the ways out: to print,
// a preview, or kept under a name and in the cloud. The one step that saves nothing of its own when it is
// left.
class BrochureSendViewController : public kavor::WizardStepViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the wizard")

    Q_PROPERTY(QString brochureWord READ brochureWord CONSTANT)
    // The bar's name, or "Nombre del local no especificado" in red.
    Q_PROPERTY(QString localNameLabel READ localNameLabel NOTIFY summaryChanged)
    Q_PROPERTY(bool localNameMissing READ isLocalNameMissing NOTIFY summaryChanged)
    Q_PROPERTY(QString orderDataInfoLeft READ orderDataInfoLeft NOTIFY summaryChanged)
    Q_PROPERTY(QString orderDataInfoLeftWarning READ orderDataInfoLeftWarning NOTIFY summaryChanged)
    Q_PROPERTY(QString orderDataInfoRight READ orderDataInfoRight NOTIFY summaryChanged)
    Q_PROPERTY(QString orderDataInfoRightWarning READ orderDataInfoRightWarning NOTIFY summaryChanged)
    Q_PROPERTY(bool panelInfoOrderVisible READ isPanelInfoOrderVisible NOTIFY panelInfoOrderVisibleChanged)

    // Pictures; an empty source of a visible style means that none is chosen ("ImagenSinEstilo").
    Q_PROPERTY(bool styleImageVisible READ isStyleImageVisible NOTIFY summaryChanged)
    Q_PROPERTY(QString styleImage READ styleImage NOTIFY summaryChanged)
    Q_PROPERTY(QString styleName READ styleName NOTIFY summaryChanged)
    Q_PROPERTY(bool styleDigitalImageVisible READ isStyleDigitalImageVisible NOTIFY summaryChanged)
    Q_PROPERTY(QString styleDigitalImage READ styleDigitalImage NOTIFY summaryChanged)
    Q_PROPERTY(QString styleDigitalName READ styleDigitalName NOTIFY summaryChanged)
    Q_PROPERTY(QStringList brandImages READ brandImages NOTIFY summaryChanged)
    Q_PROPERTY(QString localLogoImage READ localLogoImage NOTIFY summaryChanged)
    Q_PROPERTY(QString logoLabel READ logoLabel NOTIFY summaryChanged)

    Q_PROPERTY(QString freeTextForSupport READ freeTextForSupport NOTIFY freeTextForSupportChanged)
    // The sentences of the last check, empty after one that passed.
    Q_PROPERTY(QStringList missing READ missing NOTIFY missingChanged)
    // Says that an order of this draft waits in the outbox; empty when none does.
    Q_PROPERTY(QString waitingText READ waitingText NOTIFY waitingChanged)

    Q_PROPERTY(QString makeOrderButtonTitle READ makeOrderButtonTitle NOTIFY buttonsChanged)
    Q_PROPERTY(bool printedKavorButtonVisible READ isPrintedKavorButtonVisible NOTIFY buttonsChanged)
    Q_PROPERTY(bool printedMyselfButtonVisible READ isPrintedMyselfVisible NOTIFY buttonsChanged)
    Q_PROPERTY(bool buidOrderWithoutPrintedVisible READ isPrintedMyselfVisible NOTIFY buttonsChanged)
    Q_PROPERTY(QString buidOrderWithoutPrintedTitle READ buidOrderWithoutPrintedTitle CONSTANT)
    Q_PROPERTY(bool orderSent READ isOrderSent NOTIFY buttonsChanged)

public:
    // The services outlive the step.
    BrochureSendViewController(const WizardStepContext& context, QObject* parent);
    ~BrochureSendViewController() override;

    [[nodiscard]] QUrl view() const override;
    void viewWillAppear() override;
    void anotherOrderBegun() override { viewWillAppear(); }

    Q_INVOKABLE void sendOrderAction();
    Q_INVOKABLE void sendOrderMyselfAction();
    Q_INVOKABLE void previewAction();
    Q_INVOKABLE void saveOrderAction();
    Q_INVOKABLE void myselfAction();
    Q_INVOKABLE void printedKavorAction(); // about printing by the programme
    Q_INVOKABLE void infoOrderAction() { setPanelInfoOrderVisible(true); }
    Q_INVOKABLE void closeInfoOrderAction() { setPanelInfoOrderVisible(false); }
    // The end of editing the comment for support.
    Q_INVOKABLE void finishSupportComment(const QString& comment);

    [[nodiscard]] QString brochureWord() const;
    [[nodiscard]] QString localNameLabel() const;
    [[nodiscard]] bool isLocalNameMissing() const;
    [[nodiscard]] QString orderDataInfoLeft() const;
    [[nodiscard]] QString orderDataInfoLeftWarning() const;
    [[nodiscard]] QString orderDataInfoRight() const;
    [[nodiscard]] QString orderDataInfoRightWarning() const;
    [[nodiscard]] bool isPanelInfoOrderVisible() const { return panelInfoOrderVisible_; }
    [[nodiscard]] bool isStyleImageVisible() const;
    [[nodiscard]] QString styleImage() const;
    [[nodiscard]] QString styleName() const;
    [[nodiscard]] bool isStyleDigitalImageVisible() const;
    [[nodiscard]] QString styleDigitalImage() const;
    [[nodiscard]] QString styleDigitalName() const;
    // The draft's three logos, empty while they don't show.
    [[nodiscard]] QStringList brandImages() const;
    [[nodiscard]] QString localLogoImage() const;
    [[nodiscard]] QString logoLabel() const;
    [[nodiscard]] QString freeTextForSupport() const;
    [[nodiscard]] QStringList missing() const { return missing_; }
    [[nodiscard]] QString waitingText() const;
    // A tap on one of the sentences of what is missing.
    Q_INVOKABLE void goToMissing(int index);
    [[nodiscard]] QString makeOrderButtonTitle() const;
    [[nodiscard]] QString buidOrderWithoutPrintedTitle() const;
    [[nodiscard]] bool isPrintedKavorButtonVisible() const;
    [[nodiscard]] bool isPrintedMyselfVisible() const;
    // Whether the server has taken the order to print.
    [[nodiscard]] bool isOrderSent() const;

signals:
    void summaryChanged();
    void panelInfoOrderVisibleChanged();
    void freeTextForSupportChanged();
    void missingChanged();
    void waitingChanged();
    void buttonsChanged();
    // The field being typed into hands over its text now.
    void editingShouldEnd();

private:
    void sendOrder(bool printedMyself);
    void setPanelInfoOrderVisible(bool visible);
    void setWaiting(const QString& name);
    void setMissing(const QStringList& sentences);

    const WizardStepContext context_;
    BrochureRoad road_;
    BrochureSendSummary summary_;
    std::vector<const Brochures::Logo*> styleLogosInfo_; // of the style, in its order
    QString waiting_;                                    // the plain name of the file of the outbox
    QStringList missing_;
    std::vector<ValidationMessage> missingMessages_; // with their places
    bool panelInfoOrderVisible_ = false;
};

} // namespace kavor
