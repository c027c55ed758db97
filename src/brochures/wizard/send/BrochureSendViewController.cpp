#include "brochures/wizard/send/BrochureSendViewController.h"

#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/PennantProducts.h"
#include "brochures/wizard/StepSupport.h"
#include "catalogue/Catalogue.h"
#include "interaction/AlertPresenter.h"
#include "screens/ResourceImages.h"

#include <algorithm>

namespace kavor {

BrochureSendViewController::BrochureSendViewController(const WizardStepContext& context, QObject* parent)
    : WizardStepViewController(parent)
    , context_(context)
    , road_(context_.services, context_.draft) {
    connect(&road_, &OrderRoad::checked, this, &BrochureSendViewController::setMissing);
    connect(&road_, &OrderRoad::documentReady, this, &WizardStepViewController::previewRequested);
    connect(&road_, &OrderRoad::waitingInOutbox, this, &BrochureSendViewController::setWaiting);
    connect(&road_, &OrderRoad::orderSent, this, [this] { setWaiting({}); });
    connect(&road_, &OrderRoad::orderSent, this, &BrochureSendViewController::buttonsChanged);
    connect(&road_, &OrderRoad::anotherOrderBegun, this, &BrochureSendViewController::viewWillAppear);
}

BrochureSendViewController::~BrochureSendViewController() = default;

QUrl BrochureSendViewController::view() const {
    return stepView(QStringLiteral("BrochureSendView.qml"));
}

void BrochureSendViewController::viewWillAppear() {
    if (context_.parameters().withPennants)
        dropDeselectedPennantProducts(*context_.draft, *context_.catalogue);
    styleLogosInfo_.clear();
    if (const auto* style = context_.draft->currentStyle()) {
        for (const Int identifier : style->logotypeIdentifiers) {
            if (const auto* logo = context_.catalogue->logo(identifier))
                styleLogosInfo_.push_back(logo);
        }
    }
    summary_ = BrochureSendSummary::of(*context_.draft, *context_.catalogue);
    road_.lookIntoOutbox();
    emit summaryChanged();
    emit freeTextForSupportChanged();
    emit buttonsChanged();
}

// ---- The ways out

void BrochureSendViewController::sendOrderAction() {
    sendOrder(false);
}

void BrochureSendViewController::sendOrderMyselfAction() {
    sendOrder(true);
}

void BrochureSendViewController::sendOrder(bool printedMyself) {
    context_.draft->printedMyself = printedMyself;
    emit editingShouldEnd();
    road_.sendToPrint();
}

void BrochureSendViewController::previewAction() {
    emit editingShouldEnd();
    road_.preview();
}

void BrochureSendViewController::saveOrderAction() {
    emit editingShouldEnd();
    road_.saveAs();
}

// ---- What the view shows

void BrochureSendViewController::myselfAction() {
    context_.services.alerts.inform(
        QStringLiteral("Información"),
        fromUtf8(context_.catalogue->information().validations.printedMyselfHelptext));
}

void BrochureSendViewController::printedKavorAction() {
    const Validations& validations = context_.catalogue->information().validations;
    context_.services.alerts.inform(QStringLiteral("Información"),
                                    fromUtf8(context_.parameters().withPrinter
                                                 ? validations.printedKavorHelptext
                                                 : validations.printedMyselfHelptext));
}

void BrochureSendViewController::finishSupportComment(const QString& comment) {
    if (comment == freeTextForSupport())
        return;
    context_.draft->supportComment = comment.toStdString();
    autosave(context_.draft);
    emit freeTextForSupportChanged();
}

void BrochureSendViewController::setPanelInfoOrderVisible(bool visible) {
    if (panelInfoOrderVisible_ == visible)
        return;
    panelInfoOrderVisible_ = visible;
    emit panelInfoOrderVisibleChanged();
}

void BrochureSendViewController::setMissing(const QStringList& sentences) {
    if (missing_ == sentences)
        return;
    missing_ = sentences;
    missingMessages_ =
        sentences.isEmpty() ? std::vector<ValidationMessage>() : context_.draft->validationMessages();
    emit missingChanged();
}

void BrochureSendViewController::setWaiting(const QString& name) {
    if (waiting_ == name)
        return;
    waiting_ = name;
    emit waitingChanged();
}

QString BrochureSendViewController::waitingText() const {
    return road_.waitingText(waiting_);
}

void BrochureSendViewController::goToMissing(int index) {
    if (index >= 0 && index < int(missingMessages_.size()))
        emit missingPlaceRequested(missingMessages_[std::size_t(index)].place);
}

QString BrochureSendViewController::brochureWord() const {
    return context_.kind ? fromUtf8(label(*context_.kind)) : QString();
}

bool BrochureSendViewController::isLocalNameMissing() const {
    return !context_.draft->customerInformation || context_.draft->customerInformation->name.empty();
}

QString BrochureSendViewController::localNameLabel() const {
    return isLocalNameMissing() ? QStringLiteral("Nombre del local no especificado")
                                : fromUtf8(context_.draft->customerInformation->name);
}

QString BrochureSendViewController::orderDataInfoLeft() const {
    return fromUtf8(summary_.orderDataInfoLeft);
}
QString BrochureSendViewController::orderDataInfoLeftWarning() const {
    return fromUtf8(summary_.orderDataInfoLeftWarning);
}
QString BrochureSendViewController::orderDataInfoRight() const {
    return fromUtf8(summary_.orderDataInfoRight);
}
QString BrochureSendViewController::orderDataInfoRightWarning() const {
    return fromUtf8(summary_.orderDataInfoRightWarning);
}

bool BrochureSendViewController::isStyleImageVisible() const {
    return context_.draft->includePaperBrochure || context_.parameters().allowDigitalPdf;
}

QString BrochureSendViewController::styleImage() const {
    const auto* style = context_.draft->currentStyle();
    return style ? resourceImageUrl(style->firstImage) : QString();
}

QString BrochureSendViewController::styleName() const {
    const auto* style = context_.draft->currentStyle();
    return style ? fromUtf8(style->name) : QString();
}

bool BrochureSendViewController::isStyleDigitalImageVisible() const {
    return context_.draft->includeDigitalBrochure;
}

QString BrochureSendViewController::styleDigitalImage() const {
    const auto* style = context_.draft->currentStyleDigital();
    return style ? resourceImageUrl(style->firstImage) : QString();
}

QString BrochureSendViewController::styleDigitalName() const {
    const auto* style = context_.draft->currentStyleDigital();
    return style ? fromUtf8(style->name) : QString();
}

QStringList BrochureSendViewController::brandImages() const {
    const auto logos = context_.draft->currentLogos();
    if (!logos || !isStyleImageVisible())
        return {};
    QStringList images;
    for (const Int identifier : {logos->firstIdentifier, logos->secondIdentifier, logos->thirdIdentifier}) {
        const auto logo = std::ranges::find(styleLogosInfo_, identifier, &Brochures::Logo::id);
        if (logo != styleLogosInfo_.end())
            images.append(resourceImageUrl((*logo)->image));
    }
    return images;
}

QString BrochureSendViewController::localLogoImage() const {
    const auto& customer = context_.draft->customerInformation;
    return customer && customer->imageLogo ? dataImageUrl(*customer->imageLogo) : QString();
}

QString BrochureSendViewController::logoLabel() const {
    return localLogoImage().isEmpty() ? QStringLiteral("Sin logotipo") : QString();
}

QString BrochureSendViewController::freeTextForSupport() const {
    return fromUtf8(context_.draft->supportComment.value_or(""));
}

QString BrochureSendViewController::makeOrderButtonTitle() const {
    if (context_.draft->sent)
        return QStringLiteral("Ver pedido");
    if (context_.kind == BrochureType::video)
        return QStringLiteral("Realizar pedido");
    return context_.kind == BrochureType::encarte ? QStringLiteral("Realizar pedido sin impresión")
                                                  : QStringLiteral("Realizar pedido con impresión");
}

// An encarte's main button bears the other text already.
QString BrochureSendViewController::buidOrderWithoutPrintedTitle() const {
    return context_.kind == BrochureType::encarte ? QStringLiteral("Lo imprimo yo")
                                                  : QStringLiteral("Realizar pedido sin impresión");
}

bool BrochureSendViewController::isOrderSent() const {
    return context_.draft->sent.has_value();
}

bool BrochureSendViewController::isPrintedKavorButtonVisible() const {
    return !context_.draft->sent && context_.kind != BrochureType::video;
}

bool BrochureSendViewController::isPrintedMyselfVisible() const {
    return !context_.draft->sent && context_.parameters().withPrinter &&
           context_.catalogue->information().validations.withPrintedMyself;
}

} // namespace kavor
