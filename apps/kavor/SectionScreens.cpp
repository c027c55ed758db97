#include "kavor/SectionScreens.h"

#include "account/screens/ProfileViewController.h"
#include "account/screens/SuggestionViewController.h"
#include "base/StopProcess.h"
#include "brochures/wizard/BrochureMenuViewController.h"
#include "orders/screens/AllOrdersManagementViewController.h"
#include "session/AppSingleton.h"
#include "shell/WelcomeOptions.h"
#include "shell/screens/ComingSoonViewController.h"
#include "shell/screens/Screens.h"

#include <array>

namespace kavor {

namespace {

// The sections that are still to come, with a title and a drawing.
struct ComingSection {
    std::string_view transition;
    const char* title;
    const char* icon;
};

constexpr std::array comingSections{
    ComingSection{transition::promotion, "Cartelería Promocional", "poster"},
    ComingSection{transition::sellingSheet, "Hoja vendedora", "sellingsheet"},
    ComingSection{transition::textile, "Textil", "tshirt"},
    ComingSection{transition::activations, "Activaciones", "party"},
};

Screen wizardScreen(const SectionServices& services, BrochureMenuViewController::Opening opening) {
    return {screenView("BrochureMenuView"),
            new BrochureMenuViewController(services.wizard, nullptr, opening)};
}

Screen orderListScreen(const SectionServices& services, ScreenStack& screens) {
    const WizardServices& wizard = services.wizard;
    const auto openWizard = [&services, &screens] {
        screens.push(wizardScreen(services, BrochureMenuViewController::Opening::OrderToEdit));
    };
    return {screenView("AllOrdersManagementView"),
            new AllOrdersManagementViewController({services.account.session, wizard.network, wizard.orders,
                                                   services.orderActions, services.sync, wizard.alerts,
                                                   wizard.urls, wizard.clock, wizard.reachability, openWizard,
                                                   {}, {}})};
}

} // namespace

Screen makeSectionScreen(const QString& transition, const SectionServices& services, ScreenStack& screens) {
    const std::string name = transition.toStdString();
    if (name == transition::brochure)
        return wizardScreen(services, BrochureMenuViewController::Opening::UnfinishedMenu);
    if (name == transition::allOrders)
        return orderListScreen(services, screens);
    if (name == transition::profile)
        return {screenView("ProfileView"), new ProfileViewController(services.account)};
    if (name == transition::suggestions)
        return {screenView("SuggestionView"), new SuggestionViewController(services.account)};
    for (const ComingSection& section : comingSections) {
        if (name == section.transition)
            return {screenView("ComingSoonView"),
                    new ComingSoonViewController(QString::fromUtf8(section.title),
                                                 QString::fromLatin1(section.icon))};
    }
    stopProcess("a screen for the transition " + name);
}

} // namespace kavor
