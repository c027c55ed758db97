#include "brochures/wizard/BrochureMenuViewController.h"

#include "base/StopProcess.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/TemporalBrochure.h"
#include "brochures/wizard/BrochureRoad.h"
#include "brochures/wizard/MissingPlace.h"
#include "brochures/wizard/StepSupport.h"
#include "brochures/wizard/WizardStepFactory.h"
#include "catalogue/OwnBrand.h"
#include "device/Reachability.h"
#include "interaction/PressGuard.h"
#include "interaction/Questions.h"
#include "network/ServiceOperations.h"
#include "session/AppSingleton.h"

#include <QVariantMap>

#include <array>
#include <utility>

namespace kavor {

namespace {

using Parameters = Brochures::Type::Parameters;
using Menu = BrochureMenuViewController;

struct Entry {
    Menu::MenuButton button;
    const char* text;
    const char* icon;
    int step;
    bool Parameters::*shownWhen; // null: always
};

// In the order of the work, which is also the order on the screen.
constexpr std::array entries{
    Entry{Menu::Configuration, "Configuración", "store", wizard_step::configuration, nullptr},
    Entry{Menu::Style, "Estilo", "palette", wizard_step::style, nullptr},
    Entry{Menu::DigitalStyle, "Estilo digital", "globe", wizard_step::style,
          &Parameters::allowSelectDigitalBrochure},
    Entry{Menu::Products, "Productos", "products", wizard_step::products, nullptr},
    Entry{Menu::Drinks, "Bebidas", "drinks", wizard_step::drinks, &Parameters::showOtherDrink},
    Entry{Menu::Prices, "Precios", "price", wizard_step::prices, nullptr},
    Entry{Menu::OrderSheet, "Comandero", "ordersheet", wizard_step::orderSheet, &Parameters::allowOrderSheet},
    Entry{Menu::Promotions, "Promociones", "promotions", wizard_step::promotions, &Parameters::withPromotion},
    Entry{Menu::Pennant, "Banderines", "pennant", wizard_step::pennant, &Parameters::withPennants},
    Entry{Menu::PennantBrand, "Banderín de marca", "pennantbrand", wizard_step::pennantBrand,
          &Parameters::withPennantBrand},
    Entry{Menu::Send, "Enviar", "send", wizard_step::send, nullptr},
    Entry{Menu::Reset, "Borrar todo", "eraser", -1, nullptr},
};

const Entry* entryOf(int button) {
    for (const Entry& entry : entries) {
        if (entry.button == button)
            return &entry;
    }
    return nullptr;
}

QString styleCaption(BrochureType type) {
    switch (type) {
    case BrochureType::chalkboard:
        return QStringLiteral("Pizarra");
    case BrochureType::video:
        return QStringLiteral("Video");
    case BrochureType::mantel:
        return QStringLiteral("Mantel");
    case BrochureType::digital:
        return QStringLiteral("Online");
    case BrochureType::beer:
    case BrochureType::beverage:
    case BrochureType::menu:
    case BrochureType::flyer:
    case BrochureType::encarte:
    case BrochureType::wineA4:
    case BrochureType::wineOrder:
    case BrochureType::pennant:
        break;
    }
    return QStringLiteral("Papel");
}

} // namespace

BrochureMenuViewController::BrochureMenuViewController(const WizardServices& services, QObject* parent,
                                                       Opening opening)
    : ScreenController(parent)
    , services_(services)
    , visibleButtons_(entries.size(), true) {
    connect(&services_.reachability, &Reachability::changed, this,
            &BrochureMenuViewController::offlineChanged);
    // Many edits in one turn of the event loop are counted once.
    counting_.setSingleShot(true);
    counting_.setInterval(0);
    connect(&counting_, &QTimer::timeout, this, &BrochureMenuViewController::countMissing);
    ++open_;
    viewDidLoad(opening);
    viewDidAppear();
}

BrochureMenuViewController::~BrochureMenuViewController() {
    --open_;
    // The application ends or goes back to its start with the wizard open; a session without a section keeps
    // nothing.
    if (AppSingleton::shared().brochureType())
        viewWillDisappear();
}

void BrochureMenuViewController::restoreUnfinishedMenu() {
    if (BrochureIntermediateData::temporalBrochure()->sent) // what was sent isn't resumed
        BrochureIntermediateData::replaceTemporalBrochure();
    TemporalBrochure::shared().restoreDraft();
    recoveredMessage_ = fromUtf8(TemporalBrochure::shared().takeWord());
}

void BrochureMenuViewController::viewDidLoad(Opening opening) {
    if (opening == Opening::UnfinishedMenu)
        restoreUnfinishedMenu();
    applyParameters();
    showStep(wizard_step::configuration);
    const auto fallenOut = BrochureIntermediateData::temporalBrochure()->takeFallenOut();
    if (!fallenOut.empty())
        services_.alerts.inform(QStringLiteral("Atención"), fromUtf8(fallenOut), this);
}

void BrochureMenuViewController::viewDidAppear() {
    appeared_ = true;
    auto& center = NotificationCenter::shared();
    veil_.follow();
    observers_.push_back(
        center.observe(notification::preferredBrandsBannerClosed,
                       [this](const NotificationInfo&) { alreadyDismissedPreferredBrandsBanner_ = true; }));
    observers_.push_back(center.observe(draftSaved, [this](const NotificationInfo&) { counting_.start(); }));
    observers_.push_back(
        center.observe(sentDraftSaved, [this](const NotificationInfo&) { askAboutSentOrder(); }));
    actualOrder_ = BrochureIntermediateData::temporalBrochure();
}

void BrochureMenuViewController::applyParameters() {
    const auto type = AppSingleton::shared().brochureType();
    if (!type)
        return;
    const Catalogue& catalogue = AppSingleton::shared().catalogue();
    if (!sectionBrochureType(catalogue))
        stopProcess("the kind of brochure of the section is not in the catalogue");
    const Parameters& parameters = *sectionParameters(catalogue);
    for (const Entry& entry : entries)
        visibleButtons_[std::size_t(entry.button)] = !entry.shownWhen || parameters.*entry.shownWhen;
    styleDefaultLabel_ = styleCaption(*type);
    BrochureIntermediateData::temporalBrochure()->brochureTypeParameters = parameters;
}

void BrochureMenuViewController::showStep(int wizardStep) {
    WizardStepViewController* step = makeWizardStep(wizardStep, services_, this);
    leaveActiveStep();
    previewRoad_.reset(); // a late answer shows nothing over another step
    WizardStepViewController* former = activeViewController_;
    activeViewController_ = step;
    connectStep(step);
    loadingStep_ = true;
    step->viewDidLoad();
    step->viewWillAppear();
    loadingStep_ = false;
    if (!askingAboutSentOrder_) // a step may complete the draft by itself; the user has changed nothing
        takeAsSent(*BrochureIntermediateData::temporalBrochure());
    countMissing();
    emit activeStepChanged();
    emit subtitleChanged();
    NotificationCenter::shared().post(notification::viewChanged);
    if (former) {
        former->disconnect(this);
        former->deleteLater(); // after its view, which went in the line above
    }
    if (step->wantsBanner() && !alreadyDismissedPreferredBrandsBanner_)
        NotificationCenter::shared().post(notification::showPreferredBrandsBanner);
}

void BrochureMenuViewController::connectStep(WizardStepViewController* step) {
    connect(step, &WizardStepViewController::previewRequested, this,
            &BrochureMenuViewController::showPreview);
    connect(step, &WizardStepViewController::stepRequested, this, [this](int wizardStep) {
        for (const Entry& entry : entries) {
            if (entry.step == wizardStep && visibleButtons_[std::size_t(entry.button)])
                return buttonPushedAction(entry.button);
        }
    });
    connect(step, &WizardStepViewController::missingPlaceRequested, this, &BrochureMenuViewController::goTo);
    connect(step, &WizardStepViewController::subtitleChanged, this,
            &BrochureMenuViewController::subtitleChanged);
    connect(step, &WizardStepViewController::draftPreviewRequested, this,
            &BrochureMenuViewController::previewDraft);
    connect(step, &WizardStepViewController::screenRequested, this, [this](const Screen& screen) {
        cover();
        emit screenRequested(screen);
    });
    connect(step, &WizardStepViewController::promotionsRequested, this,
            [this](const MenuPromotionRequest& request) {
                if (covered_) // a second tap
                    return;
                cover();
                emit promotionsRequested(request);
            });
}

// What is below another screen has kept what it holds, and leaves the veil to that one.
void BrochureMenuViewController::cover() {
    saveActiveStep();
    veil_.unfollow();
    covered_ = true;
}

void BrochureMenuViewController::viewWillAppear() {
    if (!std::exchange(covered_, false)) // the first time: the constructor has shown the first step
        return;
    veil_.follow();
    activeViewController_->viewWillAppear();
}

void BrochureMenuViewController::goTo(ValidationPlace place) {
    const auto [button, field] = missingPlaceOf(place);
    if (!isButtonVisible(button))
        return;
    buttonPushedAction(button);
    emit fieldRequested(QString::fromLatin1(field));
}

void BrochureMenuViewController::countMissing() {
    marks_.count();
    emit menuButtonsChanged();
}

// The step stays on show below the preview, and below what the check has to say.
void BrochureMenuViewController::previewDraft() {
    previewRoad_ = std::make_unique<BrochureRoad>(services_, BrochureIntermediateData::temporalBrochure());
    connect(previewRoad_.get(), &OrderRoad::documentReady, this, &BrochureMenuViewController::showPreview);
    previewRoad_->preview();
}

void BrochureMenuViewController::leaveActiveStep() {
    if (AppSingleton::shared().resettingBrochure) {
        AppSingleton::shared().resettingBrochure = false;
        return;
    }
    saveActiveStep();
}

void BrochureMenuViewController::saveActiveStep() {
    auto* autoSave = dynamic_cast<SerializeAutoSave*>(activeViewController_);
    if (!autoSave)
        return;
    autoSave->serializeAutoSave();
    askAboutSentOrder();
    TemporalBrochure::shared().write(*BrochureIntermediateData::temporalBrochure());
}

// The first change by the user to an order that was sent makes another order of the draft, or is taken back.
void BrochureMenuViewController::askAboutSentOrder() {
    if (!appeared_ || loadingStep_ || askingAboutSentOrder_ ||
        !isChangedSinceSent(*BrochureIntermediateData::temporalBrochure()))
        return;
    askingAboutSentOrder_ = true;
    askForAnotherOrder(services_.alerts, this, [this](bool another) { sentOrderAnswered(another); });
}

void BrochureMenuViewController::sentOrderAnswered(bool another) {
    askingAboutSentOrder_ = false;
    if (!another) {
        actualOrder_ = restoreSentOrder();
        AppSingleton::shared().resettingBrochure = true; // the step on show is not saved into it
        return showStep(entryOf(selected_)->step);
    }
    beginAnotherOrder(*actualOrder_);
    autosave(actualOrder_);
    activeViewController_->anotherOrderBegun();
}

void BrochureMenuViewController::viewWillDisappear() {
    if (!appeared_)
        return;
    appeared_ = false;
    observers_.clear();
    veil_.unfollow();
    saveActiveStep(); // also while a reset is under way
}

void BrochureMenuViewController::buttonPushedAction(int index) {
    if (index == selected_ || !entryOf(index))
        return;
    if (index == Reset) // the entry takes the selection back at once
        return askForReset();
    select(index);
    enterButton(index);
}

void BrochureMenuViewController::enterButton(int index) {
    if (index == DigitalStyle || index == Style)
        AppSingleton::shared().isSectionDigital = index == DigitalStyle;
    showStep(entryOf(index)->step);
}

void BrochureMenuViewController::select(int index) {
    if (selected_ == index)
        return;
    selected_ = index;
    emit menuButtonsChanged();
}

void BrochureMenuViewController::askForReset() {
    if (!AppSingleton::shared().catalogue().ownBrands().empty())
        catalogueToReset_.prepare();
    ask(services_.alerts, this, QStringLiteral("Atención"),
        QStringLiteral("¿Desea borrar todos los datos introducidos en la carta actual?"),
        {{QStringLiteral("No"), AlertButton::Role::Cancel, [this] { catalogueToReset_ = {}; }},
         yesDestroy([this] {
             reset();
             catalogueToReset_ = {};
         })});
}

void BrochureMenuViewController::reset() {
    AppSingleton& session = AppSingleton::shared();
    alreadyDismissedPreferredBrandsBanner_ = false;
    actualOrder_ = BrochureIntermediateData::replaceTemporalBrochure();
    if (const auto* parameters = sectionParameters(session.catalogue()))
        actualOrder_->brochureTypeParameters = *parameters;
    actualOrder_->openedAs = session.brochureType();
    TemporalBrochure::shared().removeAll();
    session.resettingBrochure = true;
    // An unfinished menu of another kind builds the brands that it needs again when it is opened.
    const auto withoutOwnBrands = [](Catalogue& each) { each.removeProductsOfProperty(OwnBrand::property); };
    if (session.catalogue().hasProductsOfProperty(OwnBrand::property))
        session.changeCatalogue(withoutOwnBrands, catalogueToReset_.take());
    showStep(wizard_step::configuration);
    select(Configuration);
}

void BrochureMenuViewController::closeSceneAction() {
    viewWillDisappear();
    emit closed();
}

void BrochureMenuViewController::showPreview(const QUrl& document) {
    closePreview();
    preview_ = new WebPreviewViewController(document, QStringLiteral("Vista previa"), services_.downloader,
                                            services_.clock, this);
    connect(preview_, &WebPreviewViewController::dismissed, this, &BrochureMenuViewController::closePreview);
    emit previewChanged();
}

void BrochureMenuViewController::closePreview() {
    if (!preview_)
        return;
    preview_->deleteLater();
    preview_ = nullptr;
    emit previewChanged();
}

QString BrochureMenuViewController::title() const {
    const auto type = AppSingleton::shared().brochureType();
    return type ? fromUtf8(label(*type)) : QString();
}

QString BrochureMenuViewController::subtitle() const {
    const auto& customer = BrochureIntermediateData::temporalBrochure()->customerInformation;
    return customer ? fromUtf8(customer->name) : QString();
}

bool BrochureMenuViewController::isOffline() const {
    return !services_.network.isReachable();
}

bool BrochureMenuViewController::isButtonVisible(int index) const {
    return index >= 0 && index < int(visibleButtons_.size()) && visibleButtons_[std::size_t(index)];
}

QVariantList BrochureMenuViewController::menuButtons() const {
    QVariantList buttons;
    for (const Entry& entry : entries) {
        QString caption = QString::fromUtf8(entry.text);
        if (entry.button == Style && !styleDefaultLabel_.isEmpty())
            caption += QStringLiteral(": ") + styleDefaultLabel_;
        buttons.append(QVariantMap{{QStringLiteral("id"), int(entry.button)},
                                   {QStringLiteral("text"), caption},
                                   {QStringLiteral("icon"), QString::fromLatin1(entry.icon)},
                                   {QStringLiteral("selected"), entry.button == selected_},
                                   {QStringLiteral("visible"), isButtonVisible(entry.button)},
                                   {QStringLiteral("badge"), marks_.missingAt(entry.button)},
                                   {QStringLiteral("done"), marks_.isComplete(entry.button)}});
    }
    return buttons;
}

} // namespace kavor
