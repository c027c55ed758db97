#pragma once

#include "screens/ScreenStack.h"

#include <QString>

#include <functional>

namespace kavor {

struct WizardServices;

// Makes the screen that a transition of the dashboard or of a notification leads to; it calls `close` when
// the user leaves. The services outlive the screen. The process stops for a transition that leads nowhere.
Screen makeSectionScreen(const QString& transition, const WizardServices& wizard,
                         const std::function<void()>& close);

} // namespace kavor
