#include "textile/screens/TextileMenuViewController.h"

#include "device/Reachability.h"
#include "interaction/AlertPresenter.h"
#include "interaction/Questions.h"
#include "network/ServiceOperations.h"
#include "resources/FontUpdater.h"
#include "session/AppSingleton.h"
#include "textile/UnfinishedTextile.h"
#include "textile/screens/TextileConfigurationViewController.h"
#include "textile/screens/TextileProductsViewController.h"
#include "textile/screens/TextileSendingViewController.h"

#include <algorithm>
#include <array>

namespace kavor {

namespace {

struct Entry {
    int button;
    const char* text;
    const char* icon;
};

// In the order of the work, which is also the order on the screen.
constexpr std::array entries{
    Entry{TextileMenuViewController::Configuration, "Configuración", "store"},
    Entry{TextileMenuViewController::Products, "Prendas", "tshirt"},
    Entry{TextileMenuViewController::Send, "Enviar", "send"},
    Entry{TextileMenuViewController::Reset, "Borrar todo", "eraser"},
};

} // namespace

TextileMenuViewController::TextileMenuViewController(const TextileServices& services, Opening opening,
                                                     QObject* parent)
    : ScreenController(parent)
    , services_(services) {
    connect(&services_.reachability, &Reachability::changed, this,
            &TextileMenuViewController::offlineChanged);
    const auto& textile = AppSingleton::shared().catalogue().information().textile;
    if (!textile)
        return;
    services_.fontUpdater.registerStored(textile->typographies);
    openDraft(opening);
    desk_ = std::make_unique<TextileDesk>(services_);
    connect(desk_.get(), &TextileDesk::changed, this, &TextileMenuViewController::menuButtonsChanged);
    connect(desk_.get(), &TextileDesk::replaced, this, [this] { show(selected_); });
    connect(desk_.get(), &TextileDesk::begunAnew, this,
            [this] { emit said(QStringLiteral("El pedido anterior ya está hecho: este es nuevo")); });
    desk_->removeGoneArticles();
    show(Configuration);
    askAboutOtherSection();
}

TextileMenuViewController::~TextileMenuViewController() {
    delete activeViewController_; // before the desk that it works at
}

void TextileMenuViewController::openDraft(Opening opening) {
    if (opening == Opening::OrderToEdit)
        return;
    UnfinishedTextile::shared().open();
    recoveredMessage_ = fromUtf8(UnfinishedTextile::shared().takeWord());
}

// A draft that was begun in the other section is asked about before it becomes this one's.
void TextileMenuViewController::askAboutOtherSection() {
    const auto entered = AppSingleton::shared().actualApplicationType;
    TextileIntermediateData& draft = desk_->draft();
    const auto take = [this, entered] {
        desk_->draft().section = entered;
        UnfinishedTextile::shared().keep();
    };
    if (!draft.section || draft.section == entered || draft.order.empty())
        return take();
    askToBeginAnew(take);
}

void TextileMenuViewController::askToBeginAnew(const std::function<void()>& kept) {
    ask(services_.alerts, this, QStringLiteral("Atención"),
        QStringLiteral("¿Desea borrar todos los datos introducidos en la carta actual?"),
        {{QStringLiteral("No"), AlertButton::Role::Cancel, kept}, yesDestroy([this] {
             desk_->draft().section = AppSingleton::shared().actualApplicationType;
             desk_->beginAnew();
         })});
}

void TextileMenuViewController::viewWillAppear() {
    veil_.follow();
}

void TextileMenuViewController::buttonPushedAction(int index) {
    if (!desk_ || index == selected_)
        return;
    if (index == Reset) // the entry takes the selection back at once
        return askToBeginAnew();
    if (std::ranges::count(entries, index, &Entry::button) == 0)
        return;
    desk_->removeGoneArticles(); // a new catalogue may have come
    show(index);
}

void TextileMenuViewController::show(int button) {
    selected_ = button;
    TextileStepViewController* former = activeViewController_;
    activeViewController_ = makeStep(button);
    connect(activeViewController_, &TextileStepViewController::stepRequested, this,
            &TextileMenuViewController::buttonPushedAction);
    connect(activeViewController_, &TextileStepViewController::previewRequested, this,
            &TextileMenuViewController::showPreview);
    emit activeStepChanged();
    emit menuButtonsChanged();
    if (former) {
        former->disconnect(this);
        desk_->disconnect(former);
        former->deleteLater(); // after its view, which went in the lines above
    }
}

TextileStepViewController* TextileMenuViewController::makeStep(int button) {
    switch (button) {
    case Products:
        return new TextileProductsViewController(*desk_, this);
    case Send:
        return new TextileSendingViewController(*desk_, this);
    default:
        return new TextileConfigurationViewController(*desk_, this);
    }
}

void TextileMenuViewController::closeSceneAction() {
    emit closed();
}

void TextileMenuViewController::showPreview(const QUrl& document) {
    closePreview();
    preview_ = new WebPreviewViewController(document, QStringLiteral("Vista previa"), services_.downloader,
                                            services_.clock, this);
    connect(preview_, &WebPreviewViewController::dismissed, this, &TextileMenuViewController::closePreview);
    emit previewChanged();
}

void TextileMenuViewController::closePreview() {
    if (!preview_)
        return;
    preview_->deleteLater();
    preview_ = nullptr;
    emit previewChanged();
}

QString TextileMenuViewController::title() const {
    const auto type = AppSingleton::shared().actualApplicationType;
    return type ? fromUtf8(label(*type)) : QStringLiteral("Textil");
}

QString TextileMenuViewController::subtitle() const {
    if (!desk_ || !desk_->draft().customer)
        return {};
    return fromUtf8(desk_->draft().customer->name.value_or(""));
}

bool TextileMenuViewController::isOffline() const {
    return !services_.reachability.isReachable();
}

// A step is done when the check has nothing to say about it.
QVariantList TextileMenuViewController::menuButtons() const {
    if (!desk_)
        return {};
    const auto lacks = desk_->draft().validate();
    const auto ofCart = std::ranges::count_if(lacks, TextileSendingViewController::isAboutCart);
    QVariantList buttons;
    for (const Entry& entry : entries) {
        const bool isDone = entry.button == Products
                                ? ofCart == 0 && !desk_->draft().order.empty()
                                : entry.button == Configuration && ofCart == std::ptrdiff_t(lacks.size());
        buttons.append(QVariantMap{{QStringLiteral("id"), entry.button},
                                   {QStringLiteral("text"), QString::fromUtf8(entry.text)},
                                   {QStringLiteral("icon"), QString::fromLatin1(entry.icon)},
                                   {QStringLiteral("selected"), entry.button == selected_},
                                   {QStringLiteral("done"), isDone}});
    }
    return buttons;
}

} // namespace kavor
