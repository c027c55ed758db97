#include "kavor/SectionScreens.h"

#include "account/screens/ProfileViewController.h"
#include "account/screens/SuggestionViewController.h"
#include "account/screens/TutorialsViewController.h"
#include "activations/screens/ActivationsBrandSelectionViewController.h"
#include "base/StopProcess.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/MenuPromotions.h"
#include "brochures/wizard/BrochureMenuViewController.h"
#include "interaction/QtText.h"
#include "orders/screens/AllOrdersManagementViewController.h"
#include "orders/screens/ClaimOrderViewController.h"
#include "orders/screens/DemandBrandQrController.h"
#include "promotions/screens/PromotionStyleSelectorViewController.h"
#include "promotions/screens/PromotionViewController.h"
#include "sellingsheets/screens/SellingSheetOrderListManagerViewController.h"
#include "session/AppSingleton.h"
#include "shell/WelcomeOptions.h"
#include "shell/screens/Screens.h"
#include "textile/screens/TextileMenuViewController.h"

#include <optional>
#include <utility>

namespace kavor {

namespace {

PromotionServices promotionServices(const SectionServices& services) {
    const WizardServices& wizard = services.wizard;
    return {wizard.network,      wizard.alerts,     wizard.urls, wizard.photos,
            wizard.reachability, wizard.downloader, wizard.clock};
}

Screen activationsScreen(const SectionServices& services, ScreenStack& screens) {
    const WizardServices& wizard = services.wizard;
    const ActivationServices activations{wizard.network, wizard.alerts,       wizard.urls,
                                         wizard.photos,  wizard.reachability, wizard.downloader,
                                         wizard.clock,   services.files,      screens};
    return {screenView("ActivationsBrandSelectionView"),
            new ActivationsBrandSelectionViewController(activations)};
}

Screen galleryScreen(const SectionServices& services, ScreenStack& screens,
                     std::optional<MenuPromotionUse> use = std::nullopt) {
    auto* gallery = new PromotionStyleSelectorViewController(promotionServices(services), std::move(use));
    QObject::connect(gallery, &PromotionStyleSelectorViewController::screenRequested, &screens,
                     &ScreenStack::push);
    return {screenView("PromotionStyleSelectorView"), gallery};
}

// What the form makes goes into the draft that asked for it.
MenuPromotionUse useFor(const MenuPromotionRequest& request) {
    const auto draft = BrochureIntermediateData::temporalBrochure();
    MenuPromotionUse use;
    use.request = request;
    if (draft->customerInformation)
        use.imageLogo = draft->customerInformation->imageLogo.value_or("");
    if (request.menuPromotion)
        use.validity = MenuPromotions::shared().validityOf(draft, *request.menuPromotion);
    use.attach = [draft, request](const MenuPromotion& promotion, const PromotionValidity& validity) {
        MenuPromotions::shared().attach(draft, promotion, validity, request.menuPromotion, request.place);
    };
    return use;
}

// The form at once for a promotion that is edited, otherwise the gallery.
Screen menuPromotionScreen(const SectionServices& services, ScreenStack& screens,
                           const MenuPromotionRequest& request) {
    const auto catalogue = AppSingleton::shared().applicationInformation;
    const auto edited =
        request.menuPromotion
            ? PromotionGallery::ofMenuPromotion(
                  *catalogue, request.menuPromotion->promotionId,
                  request.languageSelected ? std::optional(request.languageSelected->id) : std::nullopt)
            : std::nullopt;
    if (!edited)
        return galleryScreen(services, screens, useFor(request));
    return {PromotionViewController::view(),
            new PromotionViewController(promotionServices(services), catalogue, *edited, useFor(request))};
}

Screen wizardScreen(const SectionServices& services, ScreenStack& screens,
                    BrochureMenuViewController::Opening opening) {
    auto* wizard = new BrochureMenuViewController(services.wizard, nullptr, opening);
    QObject::connect(wizard, &BrochureMenuViewController::screenRequested, &screens, &ScreenStack::push);
    QObject::connect(wizard, &BrochureMenuViewController::promotionsRequested, &screens,
                     [&services, &screens](const MenuPromotionRequest& request) {
                         screens.push(menuPromotionScreen(services, screens, request));
                     });
    return {screenView("BrochureMenuView"), wizard};
}

Screen textileScreen(const SectionServices& services, TextileMenuViewController::Opening opening) {
    const WizardServices& wizard = services.wizard;
    return {screenView("TextileMenuView"),
            new TextileMenuViewController(
                {wizard.network, wizard.orders, wizard.alerts, wizard.urls, wizard.clock, wizard.downloader,
                 wizard.photos, wizard.reachability, services.fonts, services.fontUpdater, wizard.location},
                opening)};
}

using OrderListController = AllOrdersManagementViewController;

Screen claimScreen(const SectionServices& services, const OrderList::Order& order) {
    const QString customerName = order.pdv ? fromUtf8(*order.pdv) : QStringLiteral("(Sin especificar)");
    return {screenView("ClaimOrderView"),
            new ClaimOrderViewController(services.messages, order.id, customerName)};
}

// What the server answers stands in the list's row before the list is loaded anew.
Screen qrScreen(const SectionServices& services, const OrderList::Order& order, OrderListController& list) {
    auto* demand = new DemandBrandQrController(services.messages, order);
    QObject::connect(
        demand, &DemandBrandQrController::demanded, &list, [&list](const DemandedBrandQr& answer) {
            list.qrDemanded(answer.orderId, answer.canDemandQr, answer.orderStateId,
                            answer.orderStateName ? std::optional(answer.orderStateName->toStdString())
                                                  : std::nullopt);
        });
    return {screenView("DemandBrandQrView"), demand};
}

Screen orderListScreen(const SectionServices& services, ScreenStack& screens) {
    const WizardServices& wizard = services.wizard;
    auto* list = new OrderListController({services.account.session, wizard.network, wizard.orders,
                                          services.orderActions, services.sync, wizard.alerts, wizard.urls,
                                          wizard.clock, wizard.reachability});
    list->setWays(
        {[&services, &screens] {
             screens.push(wizardScreen(services, screens, BrochureMenuViewController::Opening::OrderToEdit));
         },
         [&services, &screens](const OrderList::Order& order) { screens.push(claimScreen(services, order)); },
         [&services, &screens, list](const OrderList::Order& order) {
             screens.push(qrScreen(services, order, *list));
         },
         [&services, &screens] {
             screens.push(textileScreen(services, TextileMenuViewController::Opening::OrderToEdit));
         }});
    return {screenView("AllOrdersManagementView"), list};
}

Screen sellingSheetScreen(const SectionServices& services, ScreenStack& screens) {
    const WizardServices& wizard = services.wizard;
    auto* list = new SellingSheetOrderListManagerViewController(
        {wizard.network, wizard.orders, wizard.alerts, wizard.urls, wizard.photos, wizard.reachability,
         wizard.downloader, wizard.clock});
    QObject::connect(list, &SellingSheetOrderListManagerViewController::screenRequested, &screens,
                     &ScreenStack::push);
    return {screenView("SellingSheetListView"), list};
}

} // namespace

Screen makeSectionScreen(const QString& transition, const SectionServices& services, ScreenStack& screens) {
    const std::string name = transition.toStdString();
    if (name == transition::brochure)
        return wizardScreen(services, screens, BrochureMenuViewController::Opening::UnfinishedMenu);
    if (name == transition::promotion)
        return galleryScreen(services, screens);
    if (name == transition::activations)
        return activationsScreen(services, screens);
    if (name == transition::textile)
        return textileScreen(services, TextileMenuViewController::Opening::UnfinishedOrder);
    if (name == transition::sellingSheet)
        return sellingSheetScreen(services, screens);
    if (name == transition::allOrders)
        return orderListScreen(services, screens);
    if (name == transition::profile)
        return {screenView("ProfileView"), new ProfileViewController(services.account)};
    if (name == transition::suggestions)
        return {screenView("SuggestionView"), new SuggestionViewController(services.account)};
    if (name == transition::tutorials)
        return {screenView("TutorialsView"), new TutorialsViewController(services.account)};
    stopProcess("a screen for the transition " + name);
}

} // namespace kavor
