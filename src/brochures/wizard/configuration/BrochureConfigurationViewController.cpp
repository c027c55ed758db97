#include "brochures/wizard/configuration/BrochureConfigurationViewController.h"

#include "base/Log.h"
#include "base/StopProcess.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/StepSupport.h"
#include "brochures/wizard/configuration/BlackboardFormatModel.h"
#include "brochures/wizard/configuration/CustomerFieldModel.h"
#include "catalogue/Catalogue.h"
#include "device/Background.h"
#include "device/PhotoPicker.h"
#include "device/ReverseLocationManager.h"
#include "interaction/Questions.h"
#include "network/ServiceOperations.h"
#include "network/ShowRequestFailure.h"
#include "session/AppSingleton.h"

#include <QBuffer>
#include <QImage>
#include <QPointer>
#include <QStringList>

#include <algorithm>

namespace kavor {

namespace {

constexpr int largestLogoSide = 1024; // pixels; the logo travels inside the order
constexpr std::size_t everyField = 100;

std::string logoOf(const QImage& photo) {
    const QImage small =
        std::max(photo.width(), photo.height()) > largestLogoSide
            ? photo.scaled(largestLogoSide, largestLogoSide, Qt::KeepAspectRatio, Qt::SmoothTransformation)
            : photo;
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    small.save(&buffer, "PNG");
    return CustomerForm::dataText(png);
}

} // namespace

int BrochureConfigurationViewController::Options::indexOf(std::optional<Int> id) const {
    const auto found = id ? std::ranges::find(ids, *id) : ids.end();
    return found == ids.end() ? -1 : int(found - ids.begin());
}

std::optional<Int> BrochureConfigurationViewController::Options::idAt(int index) const {
    return index >= 0 && index < int(ids.size()) ? std::optional(ids[std::size_t(index)]) : std::nullopt;
}

BrochureConfigurationViewController::BrochureConfigurationViewController(const WizardStepContext& context,
                                                                         QObject* parent)
    : WizardStepViewController(parent)
    , services_(context.services)
    , catalogue_(context.catalogue)
    , draft_(context.draft)
    , type_(context.kind)
    , parameters_(context.parameters())
    , isSecondPriceTypeInputAllowed_(context.type && context.type->isSecondBrochuresPriceAllowed)
    , orientationElements_(new BlackboardFormatModel(this)) {
    connect(this, &BrochureConfigurationViewController::committed, this,
            &WizardStepViewController::subtitleChanged);
    connect(this, &BrochureConfigurationViewController::previewSegueRequested, this,
            &WizardStepViewController::draftPreviewRequested);
}

BrochureConfigurationViewController::~BrochureConfigurationViewController() = default;

QUrl BrochureConfigurationViewController::view() const {
    return stepView(QStringLiteral("BrochureConfigurationView.qml"));
}

// ---- Loading
// ---------------------------------------------------------------------------------------------------

void BrochureConfigurationViewController::viewDidLoad() {
    fillOptions();
    buildFieldModels();
    if (isOrientationPaneVisible())
        orientationElements_->show(catalogue_, draft_);
}

void BrochureConfigurationViewController::viewWillAppear() {
    applyFixedSwitches();
    form_.fill(draft_->customerInformation.value_or(Customer{}));
    allTextsChanged();
    emit languagesChanged();
    emit secondPriceChanged();
    emit switchesChanged();
    emit formatsChanged();
}

template <class Record>
BrochureConfigurationViewController::Options
BrochureConfigurationViewController::sortedOptions(const std::vector<Record>& records) {
    std::vector<const Record*> sorted;
    sorted.reserve(records.size());
    for (const Record& record : records)
        sorted.push_back(&record);
    std::ranges::stable_sort(sorted, {}, &Record::position);
    Options options;
    for (const Record* record : sorted) {
        options.ids.push_back(record->id);
        options.names.append(fromUtf8(record->name));
    }
    return options;
}

void BrochureConfigurationViewController::fillOptions() {
    const Brochures& brochures = catalogue_->brochures();
    auto languages = brochures.languages;
    std::erase_if(languages, [this](const Brochures::Language& language) {
        return type_ && std::ranges::none_of(language.orderTypes,
                                             [this](const auto& kind) { return kind.id == Int(*type_); });
    });
    languages_ = sortedOptions(languages);
    menuFormats_ = sortedOptions(brochures.menuFormatVisualize);
    wineFormats_ = sortedOptions(brochures.menuWineFormatVisualize);
    blackboardTypes_ = sortedOptions(brochures.blackboardTypes);
    for (const Brochures::Price& price : brochures.prices) {
        if (price.id ==
            PriceType::main) // the first column is always there; it can't be the second one as well
            continue;
        prices_.ids.push_back(Int(price.id));
        prices_.names.append(fromUtf8(price.name));
    }
}

void BrochureConfigurationViewController::buildFieldModels() {
    const Validations& validations = catalogue_->information().validations;
    const auto model = [&] { return new CustomerFieldModel(form_, validations, this); };
    contactFields_ = model();
    contactFields_->append(CustomerFieldGroup::contact, everyField);
    placeFields_ = model();
    placeFields_->append(CustomerFieldGroup::place, everyField);
    onlineFields_ = model();
    onlineFields_->append(CustomerFieldGroup::online, everyField);
    if (parameters_.isRRSSAvailable)
        onlineFields_->append(CustomerFieldGroup::social, everyField);
    freeTextFields_ = model();
    freeTextFields_->append(CustomerFieldGroup::freeText,
                            std::size_t(std::max<Int>(0, parameters_.freeTextNumberOfFields)));
}

// What can't be seen has a fixed state: the paper brochure is on, a digital one that isn't on offer is off.
// The working values keep what the user chose elsewhere. A chalkboard's picker starts on the default type.
void BrochureConfigurationViewController::applyFixedSwitches() {
    if (!type_)
        return;
    if (!isPaperVisible())
        draft_->includePaperBrochure = true;
    if (!isDigitalVisible())
        draft_->includeDigitalBrochure = draft_->printDigitalBrochure = false;
    if (!isOrientationPaneVisible() || draft_->currentBlackboardType())
        return;
    const auto& types = catalogue_->brochures().blackboardTypes;
    if (const auto found = std::ranges::find(types, true, &Brochures::BlackBoardType::isDefault);
        found != types.end())
        draft_->setBlackboardType(found->id);
}

// ---- Into the draft
// --------------------------------------------------------------------------------------------

void BrochureConfigurationViewController::serializeAutoSave() {
    Customer customer = draft_->customerInformation.value_or(Customer{});
    form_.apply(customer);
    draft_->customerInformation = std::move(customer);
    applyFixedSwitches();
    const auto chosen = draft_->currentLanguages();
    if (chosen && chosen->secondary && (!isSecondLanguageVisible() || chosen->secondary == chosen->main))
        draft_->setLanguages(chosen->main, std::nullopt);
}

void BrochureConfigurationViewController::commit() {
    serializeAutoSave();
    autosave(draft_);
    emit committed();
}

// ---- Point of sale
// ---------------------------------------------------------------------------------------------

void BrochureConfigurationViewController::editText(const QString& field, const QString& value) {
    const std::string name = field.toStdString();
    if (!form_.editText(name, value))
        return;
    for (auto* model : {contactFields_, placeFields_, onlineFields_, freeTextFields_})
        model->textChanged(name);
    if (name == "tevoTextField")
        emit tevoChanged();
}

void BrochureConfigurationViewController::finishText(const QString& field, const QString& value) {
    editText(field, value);
    commit();
}

void BrochureConfigurationViewController::allTextsChanged() {
    for (auto* model : {contactFields_, placeFields_, onlineFields_, freeTextFields_})
        model->allTextsChanged();
    emit tevoChanged();
    emit logoChanged();
}

void BrochureConfigurationViewController::searchTEVOCodeAction() {
    if (!services_.network.isReachable()) {
        informOffline(services_.alerts);
        return;
    }
    services_.network.getCustomerDataFromTevoCode(
        tevo(), {wait_.begin("Buscando el cliente…"),
                 [this](const std::vector<Customer>& customers) {
                     wait_.end();
                     fillFrom(customers);
                 },
                 [this](const RequestFailure& failure) {
                     wait_.end();
                     showRequestFailure({services_.alerts, services_.urls}, {}, failure, true,
                                        QStringLiteral("Incidencia"));
                 }});
}

void BrochureConfigurationViewController::fillFrom(const std::vector<Customer>& customers) {
    if (customers.empty()) {
        form_.forgetLookup();
        commit();
        ask(services_.alerts, this, QStringLiteral("Información"),
            QStringLiteral("No se ha encontrado ningún cliente asociado al código TEVO introducido.\n"
                           "Deberás completar la información para este Punto de Venta en esta pantalla."),
            {{QStringLiteral("Ok"), AlertButton::Role::Cancel, {}}});
        return;
    }
    form_.fillFromLookup(customers.front());
    allTextsChanged();
    commit();
}

void BrochureConfigurationViewController::locateDeviceAndFillFields() {
    startLocation(wait_.begin("Buscando la ubicación…"));
}

void BrochureConfigurationViewController::startLocation(QObject* run) {
    if (services_.location) {
        services_.location->onReverseHandler = [this,
                                                guard = QPointer(run)](const std::optional<Placemark>& place,
                                                                       const std::optional<QString>& error) {
            if (!guard || (!place && !error))
                return;
            wait_.end();
            if (place)
                return confirmPlace(*place);
            ask(services_.alerts, this, QStringLiteral("Error"),
                QStringLiteral("No se ha podido obtener la localización. Habilite los permisos de "
                               "ubicación para la app."),
                {{QStringLiteral("Reintentar"), AlertButton::Role::Cancel,
                  [this] { locateDeviceAndFillFields(); }},
                 {QStringLiteral("Cancelar"), AlertButton::Role::Normal, {}}});
        };
        if (services_.location->start())
            return;
    }
    wait_.end();
    services_.alerts.inform({}, QStringLiteral("No se puede utilizar la ubicación, está deshabilitada."));
}

void BrochureConfigurationViewController::confirmPlace(const Placemark& place) {
    QStringList parts;
    for (const auto& part : {place.postalCode, place.locality, place.state}) {
        if (part && !part->isEmpty())
            parts.append(*part);
    }
    const auto taken = [this, place] {
        form_.editText("postalCodeTextField", place.postalCode.value_or(QString()));
        form_.editText("municipalityTextField", place.locality.value_or(QString()));
        form_.editText("provinceTextField", place.state.value_or(QString()));
        allTextsChanged();
        commit();
    };
    ask(services_.alerts, this, QStringLiteral("¿Desea utilizar la siguiente ubicación?"),
        parts.join(QStringLiteral(", ")), {yes(taken), no()});
}

void BrochureConfigurationViewController::searchLogoInGallery() {
    const bool opened = services_.photos.pick(this, [this](const std::optional<QImage>& photo) {
        if (!photo)
            return;
        runInBackground(
            this, [image = *photo] { return logoOf(image); },
            [this](std::string logo) { setLogo(std::move(logo)); });
    });
    if (!opened)
        logLine("Can't open the gallery");
}

void BrochureConfigurationViewController::removeImageButonAction() {
    setLogo({});
}

void BrochureConfigurationViewController::setLogo(std::string dataText) {
    form_.setImageLogo(std::move(dataText));
    emit logoChanged();
    commit();
}

void BrochureConfigurationViewController::previewAction() {
    if (isCustomerCodeRequired() && tevo().isEmpty()) {
        // The title has no accent on purpose.
        services_.alerts.inform(QStringLiteral("Atencion"),
                                QStringLiteral("Has de informar de un código cliente."));
        return;
    }
    commit();
    emit previewSegueRequested();
}

// ---- Languages and second price
// --------------------------------------------------------------------------------

void BrochureConfigurationViewController::chooseMainLanguage(int index) {
    const auto id = languages_.idAt(index);
    if (!id)
        return;
    const auto current = draft_->currentLanguages();
    // The second language as the first one changes places with it: none is chosen twice.
    const bool swapped = current && current->secondary == *id && current->main != *id;
    draft_->setLanguages(*id, swapped   ? std::optional(current->main)
                              : current ? current->secondary
                                        : std::nullopt);
    emit languagesChanged();
    commit();
}

void BrochureConfigurationViewController::chooseSecondaryLanguage(int index) {
    const auto current = draft_->currentLanguages();
    if (!current)
        return;
    draft_->setLanguages(current->main, otherLanguages().idAt(index - 1)); // the first entry is "Ninguno"
    emit languagesChanged();
    commit();
}

void BrochureConfigurationViewController::chooseSecondPrice(bool on) {
    if (on == isSecondPriceAllowed())
        return;
    const auto first = prices_.idAt(0);
    draft_->setSecondPrice(on && first ? std::optional(PriceType(*first)) : std::nullopt);
    emit secondPriceChanged();
    commit();
}

void BrochureConfigurationViewController::choosePriceType(int index) {
    const auto id = prices_.idAt(index);
    if (!id || index == priceType()) // choosing the same again would throw the typed prices away
        return;
    draft_->setSecondPrice(PriceType(*id));
    emit secondPriceChanged();
    commit();
}

int BrochureConfigurationViewController::mainLanguage() const {
    const auto current = draft_->currentLanguages();
    return current ? languages_.indexOf(current->main) : -1;
}

BrochureConfigurationViewController::Options BrochureConfigurationViewController::otherLanguages() const {
    Options others = languages_;
    if (const int main = mainLanguage(); main >= 0) {
        others.ids.erase(others.ids.begin() + main);
        others.names.removeAt(main);
    }
    return others;
}

QStringList BrochureConfigurationViewController::secondaryLanguages() const {
    return QStringList{QStringLiteral("Ninguno")} + otherLanguages().names;
}

int BrochureConfigurationViewController::secondaryLanguage() const {
    const auto current = draft_->currentLanguages();
    return current ? otherLanguages().indexOf(current->secondary) + 1 : -1;
}

bool BrochureConfigurationViewController::isSecondPriceAllowed() const {
    return draft_->currentSecondPrice().has_value();
}

int BrochureConfigurationViewController::priceType() const {
    const auto type = draft_->currentSecondPrice();
    return type ? prices_.indexOf(Int(*type)) : -1;
}

// ---- Form of the brochure
// --------------------------------------------------------------------------------------

void BrochureConfigurationViewController::switchPaperBrochure(bool on) {
    draft_->includePaperBrochureTmp = on;
    draft_->includePaperBrochure = on || !isPaperVisible();
    emit switchesChanged();
    commit();
    tellAboutDemand();
}

void BrochureConfigurationViewController::switchDigitalBrochure(bool on) {
    draft_->includeDigitalBrochureTmp = on;
    draft_->includeDigitalBrochure = on;
    draft_->printDigitalBrochure = on && draft_->printDigitalBrochureTmp;
    emit switchesChanged();
    commit();
    tellAboutDemand();
}

void BrochureConfigurationViewController::switchDigitalBrochureDemand(bool on) {
    draft_->printDigitalBrochureTmp = on;
    draft_->printDigitalBrochure = on && draft_->includeDigitalBrochure;
    emit switchesChanged();
    commit();
    tellAboutDemand();
}

void BrochureConfigurationViewController::tellAboutDemand() {
    if (!draft_->includePaperBrochure || !draft_->includeDigitalBrochure || !draft_->printDigitalBrochure)
        return;
    services_.alerts.inform(
        QStringLiteral("Información"),
        QStringLiteral(
            "Has solicitado carta impresa en papel y carta digital con impresión de QRs.\n"
            "Al pulsar 'Aceptar' confirmas que quieres recibir los materiales imprimibles de ambos formatos "
            "(carta en papel y Qrs impresos).\n"
            "Si únicamente quieres la carta impresa, desmarca la opción 'Solicitar impresión de Carta y QRs' "
            "(marcada por defecto)."));
}

void BrochureConfigurationViewController::switchIncludeQr(bool on) {
    draft_->showQrOtherMenu = on;
    emit switchesChanged();
    commit();
}

void BrochureConfigurationViewController::chooseMenuFormat(int index) {
    draft_->selectedFormatVisualizeId = menuFormats_.idAt(index);
    emit formatsChanged();
    commit();
}

void BrochureConfigurationViewController::chooseWineFormat(int index) {
    draft_->selectedWineFormatVisualizeId = wineFormats_.idAt(index);
    emit formatsChanged();
    commit();
}

void BrochureConfigurationViewController::chooseBlackboardType(int index) {
    draft_->setBlackboardType(blackboardTypes_.idAt(index));
    emit formatsChanged();
    commit();
}

void BrochureConfigurationViewController::formatSelected(qint64 identifier) {
    if (!draft_->setBlackboardFormat(identifier))
        stopProcess("chalkboard format " + std::to_string(identifier));
    orientationElements_->selectionChanged();
    commit();
}

// ---- What the view shows
// ---------------------------------------------------------------------------------------

QString BrochureConfigurationViewController::tevoLabel() const {
    return isCustomerCodeRequired() ? QStringLiteral("Código cliente*") : QStringLiteral("Código cliente");
}

QString BrochureConfigurationViewController::tevoAviseLabel() const {
    return isCustomerCodeRequired()
               ? QStringLiteral(
                     "Si no introduces el código cliente REAL del PdV, los datos del cliente y de sus cartas "
                     "no se volcarán correctamente provocando errores. Por favor, asegúrate antes de cursar "
                     "el pedido.")
               : QStringLiteral("Si no conoces el código cliente, no lo informes.");
}

bool BrochureConfigurationViewController::isCustomerCodeRequired() const {
    const auto& login = AppSingleton::shared().loginResult;
    return login && login->customerCodeRequired.value_or(false);
}

QString BrochureConfigurationViewController::freeTextLabel() const {
    return type_ == BrochureType::chalkboard || type_ == BrochureType::mantel
               ? QStringLiteral("Texto libre (se mostrará debajo del título)")
               : QStringLiteral("Texto Libre (esta información se mostrará en la contraportada)");
}

QString BrochureConfigurationViewController::papeBrochureLabel() const {
    return QStringLiteral("Solicitar ") + (type_ == BrochureType::video
                                               ? QStringLiteral("Carta en formato Vídeo")
                                               : QStringLiteral("Carta Impresa en papel"));
}

QString BrochureConfigurationViewController::attachLogoLabel() const {
    return form_.imageLogo().empty() ? QStringLiteral("Añadir logotipo") : QStringLiteral("Logotipo");
}

QString BrochureConfigurationViewController::imageLogo() const {
    return fromUtf8(form_.imageLogo());
}

QAbstractItemModel* BrochureConfigurationViewController::contactFields() const {
    return contactFields_;
}
QAbstractItemModel* BrochureConfigurationViewController::placeFields() const {
    return placeFields_;
}
QAbstractItemModel* BrochureConfigurationViewController::onlineFields() const {
    return onlineFields_;
}
QAbstractItemModel* BrochureConfigurationViewController::freeTextFields() const {
    return freeTextFields_;
}
QAbstractItemModel* BrochureConfigurationViewController::orientationElements() const {
    return orientationElements_;
}

bool BrochureConfigurationViewController::isFreeTextVisible() const {
    return freeTextFields_->rowCount() > 0;
}
bool BrochureConfigurationViewController::isPaperOn() const {
    return draft_->includePaperBrochure;
}
bool BrochureConfigurationViewController::isDigitalOn() const {
    return draft_->includeDigitalBrochure;
}

bool BrochureConfigurationViewController::isDemandOn() const {
    return draft_->includeDigitalBrochure ? draft_->printDigitalBrochure : draft_->printDigitalBrochureTmp;
}

bool BrochureConfigurationViewController::isIncludeQrVisible() const {
    return catalogue_->information().validations.withPrintQr;
}

bool BrochureConfigurationViewController::isIncludeQrOn() const {
    return draft_->showQrOtherMenu;
}

QString BrochureConfigurationViewController::messageQrSupportLabel() const {
    return fromUtf8(catalogue_->information().validations.manteleriaSupportText);
}

bool BrochureConfigurationViewController::isOrientationPaneVisible() const {
    return type_ == BrochureType::chalkboard && !catalogue_->brochures().blackboardFormats.empty();
}

int BrochureConfigurationViewController::menuFormat() const {
    return menuFormats_.indexOf(draft_->selectedFormatVisualizeId);
}

int BrochureConfigurationViewController::wineFormat() const {
    return wineFormats_.indexOf(draft_->selectedWineFormatVisualizeId);
}

int BrochureConfigurationViewController::blackboardType() const {
    return blackboardTypes_.indexOf(draft_->selectedBlackboardTypeIdentifier);
}

} // namespace kavor
