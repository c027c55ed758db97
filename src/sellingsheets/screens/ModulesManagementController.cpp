#include "sellingsheets/screens/ModulesManagementController.h"

#include "base/StopProcess.h"
#include "interaction/QtText.h"
#include "interaction/Questions.h"
#include "sellingsheets/SheetModules.h"
#include "sellingsheets/UnfinishedSheet.h"
#include "sellingsheets/screens/ModifySingleModuleViewController.h"

#include <utility>

namespace kavor {

namespace {

SellingSheetOrder& sheetInWork() {
    auto& order = StyleSingleton::shared().editingOrder;
    if (!order)
        stopProcess("selling sheet in work");
    return *order;
}

} // namespace

ModulesManagementController::ModulesManagementController(const SellingSheetServices& services,
                                                         std::shared_ptr<const Catalogue> catalogue,
                                                         QObject* parent)
    : ScreenController(parent)
    , services_(services)
    , catalogue_(std::move(catalogue))
    , page_(catalogue_) {
    rows_.show(modulesList(), *catalogue_);
    page_.show(sheetInWork());
}

ModulesManagementController::~ModulesManagementController() = default;

QUrl ModulesManagementController::view() {
    return {QStringLiteral("qrc:/qt/qml/Kavor/Screens/SheetModulesView.qml")};
}

const std::vector<SellingSheetOrder::Item>& ModulesManagementController::modulesList() const {
    return sheetInWork().items;
}

bool ModulesManagementController::has(int row) const {
    return row >= 0 && row < int(modulesList().size());
}

void ModulesManagementController::take(Modules modules) {
    sheetInWork().items = std::move(modules);
    UnfinishedSheet::shared().keep();
    rows_.show(modulesList(), *catalogue_);
    page_.show(sheetInWork());
    emit changed();
}

void ModulesManagementController::newModuleAction() {
    openModule(std::nullopt);
}

void ModulesManagementController::editModuleAction(int row) {
    if (has(row))
        openModule(std::size_t(row));
}

// A second tap opens no second form.
void ModulesManagementController::openModule(std::optional<std::size_t> place) {
    if (std::exchange(isModuleOpen_, true))
        return;
    const Modules& modules = modulesList();
    const auto module = place ? std::optional(modules[*place]) : std::nullopt;
    const auto identifierToUse = place ? std::nullopt : std::optional(nextModuleIdentifier(modules));
    auto* form = new ModifySingleModuleViewController(services_, catalogue_, module, identifierToUse,
                                                      int(place.value_or(modules.size())) + 1);
    connect(form, &ModifySingleModuleViewController::saved, this,
            [this, place](const SellingSheetOrder::Item& made) {
                Modules now = modulesList();
                putModule(now, made, place);
                take(std::move(now));
            });
    connect(form, &QObject::destroyed, this, [this] { isModuleOpen_ = false; });
    connect(form, &ScreenController::closed, this, [this] { isModuleOpen_ = false; });
    emit screenRequested({ModifySingleModuleViewController::view(), form});
}

void ModulesManagementController::duplicateAction(int row) {
    if (!has(row))
        return;
    Modules modules = modulesList();
    duplicateModule(modules, std::size_t(row));
    take(std::move(modules));
}

void ModulesManagementController::moveAction(int row, int by) {
    const int place = row + by;
    if (!has(row) || !has(place))
        return;
    Modules modules = modulesList();
    std::swap(modules[std::size_t(row)], modules[std::size_t(place)]);
    take(std::move(modules));
}

void ModulesManagementController::removeAction(int row) {
    if (!has(row))
        return;
    ask(services_.alerts, this, QStringLiteral("Atención"), QStringLiteral("¿Desea eliminar el módulo?"),
        {no(), yesDestroy([this, row, module = modulesList()[std::size_t(row)]] {
             Modules modules = modulesList();
             if (!has(row) || modules[std::size_t(row)] != module) // it went meanwhile
                 return;
             modules.erase(modules.begin() + row);
             take(std::move(modules));
         })});
}

void ModulesManagementController::closeSceneAction() {
    emit closed();
}

QString ModulesManagementController::sheetName() const {
    return fromUtf8(sheetInWork().orderName);
}

QString ModulesManagementController::countText() const {
    const auto count = modulesList().size();
    if (count == 0)
        return QStringLiteral("Sin módulos");
    return count == 1 ? QStringLiteral("1 módulo") : QStringLiteral("%1 módulos").arg(count);
}

} // namespace kavor
