#pragma once

class QObject;

namespace kavor {

class WizardStepViewController;
struct WizardServices;

// The steps of the wizard by number.
namespace wizard_step {
inline constexpr int configuration = 0;
inline constexpr int style = 1;
inline constexpr int products = 2;
inline constexpr int drinks = 3;
inline constexpr int prices = 4;
inline constexpr int orderSheet = 5;
inline constexpr int send = 6;
inline constexpr int promotions = 7;
inline constexpr int pennant = 8;
inline constexpr int pennantBrand = 9;
} // namespace wizard_step

// A new controller for a step, owned by the parent. The process stops for a number that is no step.
WizardStepViewController* makeWizardStep(int wizardStep, const WizardServices& services, QObject* parent);

} // namespace kavor
