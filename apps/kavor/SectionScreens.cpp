#include "kavor/SectionScreens.h"

#include "base/StopProcess.h"
#include "brochures/wizard/BrochureMenuViewController.h"
#include "session/AppSingleton.h"
#include "shell/WelcomeOptions.h"
#include "shell/screens/ComingSoonViewController.h"
#include "shell/screens/RootController.h"
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
    ComingSection{RootController::allOrdersTransition, "Pedidos", "orders"},
};

Screen wizardScreen(const WizardServices& wizard, const std::function<void()>& close) {
    auto* controller = new BrochureMenuViewController(wizard);
    QObject::connect(controller, &BrochureMenuViewController::closed, controller, close);
    return {screenView("BrochureMenuView"), controller};
}

} // namespace

Screen makeSectionScreen(const QString& transition, const WizardServices& wizard,
                         const std::function<void()>& close) {
    const std::string name = transition.toStdString();
    if (name == transition::brochure)
        return wizardScreen(wizard, close);
    for (const ComingSection& section : comingSections) {
        if (name != section.transition)
            continue;
        auto* controller =
            new ComingSoonViewController(QString::fromUtf8(section.title), QString::fromLatin1(section.icon));
        QObject::connect(controller, &ComingSoonViewController::closed, controller, close);
        return {screenView("ComingSoonView"), controller};
    }
    stopProcess("a screen for the transition " + name);
}

} // namespace kavor
