#pragma once

#include "screens/ScreenController.h"
#include "sellingsheets/SheetModules.h"
#include "sellingsheets/screens/SellingSheetServices.h"
#include "sellingsheets/screens/SheetProductChooser.h"

#include <QString>
#include <QUrl>

#include <memory>
#include <optional>
#include <string>

namespace kavor {

// The form of a module. What it makes goes back with `saved`.
class ModifySingleModuleViewController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the list of modules")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(kavor::SheetProductChooser* primary READ primary CONSTANT)
    Q_PROPERTY(kavor::SheetProductChooser* secondary READ secondary CONSTANT)
    Q_PROPERTY(QString primaryBoxes READ primaryBoxes NOTIFY changed)
    Q_PROPERTY(QString secondaryBoxes READ secondaryBoxes NOTIFY changed)
    Q_PROPERTY(bool secondaryBottleSwitch READ secondaryBottleSwitch NOTIFY changed)
    Q_PROPERTY(QString modulePrice READ modulePrice NOTIFY changed)
    Q_PROPERTY(QString modulePriceShown READ modulePriceShown NOTIFY changed)
    Q_PROPERTY(QString moduleReferenceTextField READ moduleReferenceTextField NOTIFY changed)
    Q_PROPERTY(QString pricePerBottleTextField READ pricePerBottleTextField NOTIFY changed)
    // What the programme asks for a bottle; empty where it says nothing.
    Q_PROPERTY(QString programmePrice READ programmePrice NOTIFY changed)
    // That a product of the module left the catalogue; empty otherwise.
    Q_PROPERTY(QString notice READ notice CONSTANT)

public:
    enum Field { PrimaryBoxes, SecondaryBoxes, Price, Reference };
    Q_ENUM(Field)

    // The module to edit, else the number for a new one; moduleNumber is its place in the sheet, from 1 on.
    ModifySingleModuleViewController(const SellingSheetServices& services,
                                     std::shared_ptr<const Catalogue> catalogue,
                                     std::optional<SellingSheetOrder::Item> module,
                                     std::optional<Int> identifierToUse, int moduleNumber,
                                     QObject* parent = nullptr);
    ~ModifySingleModuleViewController() override;

    static QUrl view();

    Q_INVOKABLE void edit(kavor::ModifySingleModuleViewController::Field field, const QString& text);
    Q_INVOKABLE void switchSecondaryBottle(bool on);
    Q_INVOKABLE void saveAction();
    Q_INVOKABLE void closeSceneAction();

    [[nodiscard]] QString title() const;
    [[nodiscard]] SheetProductChooser* primary() { return &primary_; }
    [[nodiscard]] SheetProductChooser* secondary() { return &secondary_; }
    [[nodiscard]] QString primaryBoxes() const;
    [[nodiscard]] QString secondaryBoxes() const;
    [[nodiscard]] bool secondaryBottleSwitch() const { return form_.hasSecond; }
    [[nodiscard]] QString modulePrice() const;
    [[nodiscard]] QString modulePriceShown() const;
    [[nodiscard]] QString moduleReferenceTextField() const;
    [[nodiscard]] QString pricePerBottleTextField() const;
    [[nodiscard]] QString programmePrice() const;
    [[nodiscard]] QString notice() const { return notice_; }

signals:
    void changed();
    void saved(const kavor::SellingSheetOrder::Item& module);

private:
    // What the user entered, to tell whether anything changed.
    struct Entered {
        Int main = 0;
        Int second = 0;
        bool hasSecond = false;
        std::string boxes;
        std::string furtherBoxes;
        std::string price;
        std::string reference;
        bool operator==(const Entered&) const = default;
    };

    void fill();
    void takeProducts();
    [[nodiscard]] Entered entered() const;

    SellingSheetServices services_;
    std::shared_ptr<const Catalogue> catalogue_;
    std::optional<SellingSheetOrder::Item> module_;
    std::optional<Int> identifierToUse_;
    int moduleNumber_;
    SheetProductChooser primary_;
    SheetProductChooser secondary_;
    SheetModuleForm form_;
    Entered opened_;
    QString notice_;
    bool isSaved_ = false;
};

} // namespace kavor
