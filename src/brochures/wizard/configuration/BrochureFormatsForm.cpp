#include "brochures/wizard/configuration/BrochureFormatsForm.h"

#include "brochures/engine/BrochureIntermediateData.h"
#include "interaction/AlertPresenter.h"

namespace kavor {

BrochureFormatsForm::BrochureFormatsForm(const WizardStepContext& context, QObject* parent)
    : QObject(parent)
    , context_(context) {}

void BrochureFormatsForm::load() {
    menuFormats_ = wineFormats_ = PickerRows();
    menuFormats_.appendByPosition(context_.catalogue->brochures().menuFormatVisualize);
    wineFormats_.appendByPosition(context_.catalogue->brochures().menuWineFormatVisualize);
}

void BrochureFormatsForm::serialize() {
    if (!context_.kind)
        return;
    BrochureIntermediateData& draft = *context_.draft;
    if (!isPaperVisible())
        draft.includePaperBrochure = true;
    if (!isDigitalVisible())
        draft.includeDigitalBrochure = draft.printDigitalBrochure = false;
}

void BrochureFormatsForm::switchPaperBrochure(bool on) {
    context_.draft->includePaperBrochureTmp = on;
    context_.draft->includePaperBrochure = on || !isPaperVisible();
    switched();
    tellAboutDemand();
}

void BrochureFormatsForm::switchDigitalBrochure(bool on) {
    context_.draft->includeDigitalBrochureTmp = on;
    context_.draft->includeDigitalBrochure = on;
    context_.draft->printDigitalBrochure = on && context_.draft->printDigitalBrochureTmp;
    switched();
    tellAboutDemand();
}

void BrochureFormatsForm::switchDigitalBrochureDemand(bool on) {
    context_.draft->printDigitalBrochureTmp = on;
    context_.draft->printDigitalBrochure = on && context_.draft->includeDigitalBrochure;
    switched();
    tellAboutDemand();
}

void BrochureFormatsForm::switchIncludeQr(bool on) {
    context_.draft->showQrOtherMenu = on;
    switched();
}

void BrochureFormatsForm::switched() {
    emit switchesChanged();
    emit edited();
}

void BrochureFormatsForm::tellAboutDemand() {
    const BrochureIntermediateData& draft = *context_.draft;
    if (!draft.includePaperBrochure || !draft.includeDigitalBrochure || !draft.printDigitalBrochure)
        return;
    context_.services.alerts.inform(
        QStringLiteral("Información"),
        QStringLiteral(
            "Has solicitado carta impresa en papel y carta digital con impresión de QRs.\n"
            "Al pulsar 'Aceptar' confirmas que quieres recibir los materiales imprimibles de ambos formatos "
            "(carta en papel y Qrs impresos).\n"
            "Si únicamente quieres la carta impresa, desmarca la opción 'Solicitar impresión de Carta y QRs' "
            "(marcada por defecto)."));
}

void BrochureFormatsForm::chooseMenuFormat(int row) {
    context_.draft->selectedFormatVisualizeId = menuFormats_.idAt(row);
    emit formatsChanged();
    emit edited();
}

void BrochureFormatsForm::chooseWineFormat(int row) {
    context_.draft->selectedWineFormatVisualizeId = wineFormats_.idAt(row);
    emit formatsChanged();
    emit edited();
}

QString BrochureFormatsForm::papeBrochureLabel() const {
    return QStringLiteral("Solicitar ") + (context_.kind == BrochureType::video
                                               ? QStringLiteral("Carta en formato Vídeo")
                                               : QStringLiteral("Carta Impresa en papel"));
}

bool BrochureFormatsForm::isPaperOn() const {
    return context_.draft->includePaperBrochure;
}

bool BrochureFormatsForm::isDigitalOn() const {
    return context_.draft->includeDigitalBrochure;
}

bool BrochureFormatsForm::isDemandOn() const {
    const BrochureIntermediateData& draft = *context_.draft;
    return draft.includeDigitalBrochure ? draft.printDigitalBrochure : draft.printDigitalBrochureTmp;
}

bool BrochureFormatsForm::isIncludeQrVisible() const {
    return context_.catalogue->information().validations.withPrintQr;
}

bool BrochureFormatsForm::isIncludeQrOn() const {
    return context_.draft->showQrOtherMenu;
}

QString BrochureFormatsForm::messageQrSupportLabel() const {
    return fromUtf8(context_.catalogue->information().validations.manteleriaSupportText);
}

int BrochureFormatsForm::menuFormat() const {
    return menuFormats_.rowOf(context_.draft->selectedFormatVisualizeId);
}

int BrochureFormatsForm::wineFormat() const {
    return wineFormats_.rowOf(context_.draft->selectedWineFormatVisualizeId);
}

} // namespace kavor
