#pragma once

#include "account/screens/AccountServices.h"
#include "brochures/wizard/WizardStep.h"
#include "orders/screens/OrderMessageServices.h"
#include "screens/ScreenStack.h"

#include <QString>

namespace kavor {

class BackgroundOrderSync;
class FileExport;
class FontRegistry;
class FontUpdater;
class OrderActions;

// What the sections work with. Everything outlives their screens.
struct SectionServices {
    WizardServices wizard;
    AccountServices account;
    OrderMessageServices messages;
    OrderActions& orderActions;
    BackgroundOrderSync& sync;
    FileExport& files;
    FontRegistry& fonts; // of the typographies
    FontUpdater& fontUpdater;
};

// Makes the screen that a transition of the dashboard or of a notification leads to. The process stops for a
// transition that leads nowhere.
Screen makeSectionScreen(const QString& transition, const SectionServices& services, ScreenStack& screens);

} // namespace kavor
