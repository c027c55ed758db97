#pragma once

#include "screens/ScreenController.h"
#include "screens/ScreenStack.h"
#include "sellingsheets/SellingSheetOrder.h"
#include "sellingsheets/screens/SellingSheetServices.h"
#include "sellingsheets/screens/SheetModuleModel.h"
#include "sellingsheets/screens/SheetPage.h"

#include <QString>
#include <QUrl>

#include <memory>
#include <optional>
#include <vector>

namespace kavor {

// The modules of the sheet in work. Each change is written into it at once and kept safe.
class ModulesManagementController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the form of the sheet")
    Q_PROPERTY(QString sheetName READ sheetName CONSTANT)
    Q_PROPERTY(QString countText READ countText NOTIFY changed)
    Q_PROPERTY(kavor::SheetModuleModel* modulesList READ modulesModel CONSTANT)
    Q_PROPERTY(kavor::SheetPage* page READ page CONSTANT)

public:
    ModulesManagementController(const SellingSheetServices& services,
                                std::shared_ptr<const Catalogue> catalogue, QObject* parent = nullptr);
    ~ModulesManagementController() override;

    static QUrl view();

    Q_INVOKABLE void newModuleAction();
    // Of the module in this row.
    Q_INVOKABLE void editModuleAction(int row);
    Q_INVOKABLE void duplicateAction(int row);
    Q_INVOKABLE void moveAction(int row, int by);
    Q_INVOKABLE void removeAction(int row);
    Q_INVOKABLE void closeSceneAction();

    [[nodiscard]] QString sheetName() const;
    [[nodiscard]] QString countText() const;
    [[nodiscard]] SheetModuleModel* modulesModel() { return &rows_; }
    [[nodiscard]] SheetPage* page() { return &page_; }
    [[nodiscard]] const std::vector<SellingSheetOrder::Item>& modulesList() const;

signals:
    void changed();
    void screenRequested(const kavor::Screen& screen);

private:
    using Modules = std::vector<SellingSheetOrder::Item>;

    void take(Modules modules);
    void openModule(std::optional<std::size_t> place);
    [[nodiscard]] bool has(int row) const;

    SellingSheetServices services_;
    std::shared_ptr<const Catalogue> catalogue_;
    SheetModuleModel rows_;
    SheetPage page_;
    bool isModuleOpen_ = false;
};

} // namespace kavor
