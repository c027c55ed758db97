#pragma once

#include "brochures/wizard/WizardStepContext.h"
#include "brochures/wizard/prices/profit/ProfitSorting.h"
#include "brochures/wizard/prices/profit/ProfitTableModel.h"
#include "screens/ScreenController.h"

#include <memory>
#include <optional>
#include <vector>

namespace kavor {

// The profit account, over the prices: what the bar earns with each format that has a price, and what it
// would earn with another price, cost or margin. Only the net prices are kept; they outlive the order.
class BrochureProfitAccountViewController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the prices step")
    Q_PROPERTY(kavor::ProfitTableModel* table READ table CONSTANT)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString subtitle READ subtitle CONSTANT)
    Q_PROPERTY(bool empty READ isEmpty NOTIFY changed)
    Q_PROPERTY(QString emptyText READ emptyText CONSTANT)
    Q_PROPERTY(QString helpText READ helpText NOTIFY shownToCustomerChanged)
    // The captions of the four columns, and the pictures of the six sort buttons.
    Q_PROPERTY(QString pvpCaption READ pvpCaption CONSTANT)
    Q_PROPERTY(QString netPriceCaption READ netPriceCaption CONSTANT)
    Q_PROPERTY(QString marginCaption READ marginCaption CONSTANT)
    Q_PROPERTY(QString marginPercentCaption READ marginPercentCaption CONSTANT)
    Q_PROPERTY(QString sortByBrandPicture READ sortByBrandPicture NOTIFY sortingChanged)
    Q_PROPERTY(QString sortByFormatPicture READ sortByFormatPicture NOTIFY sortingChanged)
    Q_PROPERTY(QString sortByPvpPicture READ sortByPvpPicture NOTIFY sortingChanged)
    Q_PROPERTY(QString sortByNetPricePicture READ sortByNetPricePicture NOTIFY sortingChanged)
    Q_PROPERTY(QString sortByMarginPicture READ sortByMarginPicture NOTIFY sortingChanged)
    Q_PROPERTY(QString sortByMarginPercentPicture READ sortByMarginPercentPicture NOTIFY sortingChanged)
    // Below the table.
    Q_PROPERTY(QString meanLabel READ meanLabel NOTIFY summaryChanged)
    Q_PROPERTY(QString lowestLabel READ lowestLabel NOTIFY summaryChanged)
    Q_PROPERTY(QString withoutNetPriceLabel READ withoutNetPriceLabel NOTIFY summaryChanged)
    Q_PROPERTY(bool differsFromMenu READ differsFromMenu NOTIFY summaryChanged)
    // The customer looks on: no net price is on show.
    Q_PROPERTY(bool shownToCustomer READ isShownToCustomer NOTIFY shownToCustomerChanged)

public:
    explicit BrochureProfitAccountViewController(const WizardStepContext& context, QObject* parent = nullptr);
    ~BrochureProfitAccountViewController() override;

    void viewWillAppear() override;

    // The text of a field while it is typed, and when the field is left.
    Q_INVOKABLE void fieldEdited(int tag, const QString& text);
    Q_INVOKABLE void fieldDidEndEditing(int tag, const QString& text);
    Q_INVOKABLE void orderByBrandName() { sort(ProfitSorting::Button::BrandName); }
    Q_INVOKABLE void sortByFormatName() { sort(ProfitSorting::Button::FormatName); }
    Q_INVOKABLE void orderByPVP() { sort(ProfitSorting::Button::Pvp); }
    Q_INVOKABLE void orderByNetprice() { sort(ProfitSorting::Button::NetPrice); }
    Q_INVOKABLE void sortedByMargin() { sort(ProfitSorting::Button::Margin); }
    Q_INVOKABLE void sortedByMarginPercent() { sort(ProfitSorting::Button::MarginPercent); }
    // The retail prices are the menu's again; the net prices stay.
    Q_INVOKABLE void restoreMenuPrices();
    Q_INVOKABLE void showToCustomer(bool on);
    Q_INVOKABLE void closeSceneAction();

    [[nodiscard]] ProfitTableModel* table() { return &table_; }
    [[nodiscard]] const std::vector<ProfitRow>& productsPerBrand() const { return productsPerBrand_; }
    [[nodiscard]] static QString title() { return QStringLiteral("Cuenta de beneficios"); }
    [[nodiscard]] QString subtitle() const;
    [[nodiscard]] bool isEmpty() const { return productsPerBrand_.empty(); }
    [[nodiscard]] static QString emptyText() {
        return QStringLiteral("Pon primero los precios de los productos");
    }
    [[nodiscard]] QString helpText() const;
    [[nodiscard]] static QString pvpCaption() { return QStringLiteral("PVP"); }
    [[nodiscard]] static QString netPriceCaption() { return QStringLiteral("Precio neto"); }
    [[nodiscard]] static QString marginCaption() { return QStringLiteral("Margen"); }
    [[nodiscard]] static QString marginPercentCaption() { return QStringLiteral("Margen %"); }
    [[nodiscard]] QString sortByBrandPicture() const { return picture(ProfitSorting::Button::BrandName); }
    [[nodiscard]] QString sortByFormatPicture() const { return picture(ProfitSorting::Button::FormatName); }
    [[nodiscard]] QString sortByPvpPicture() const { return picture(ProfitSorting::Button::Pvp); }
    [[nodiscard]] QString sortByNetPricePicture() const { return picture(ProfitSorting::Button::NetPrice); }
    [[nodiscard]] QString sortByMarginPicture() const { return picture(ProfitSorting::Button::Margin); }
    [[nodiscard]] QString sortByMarginPercentPicture() const {
        return picture(ProfitSorting::Button::MarginPercent);
    }
    [[nodiscard]] QString meanLabel() const;
    [[nodiscard]] QString lowestLabel() const;
    [[nodiscard]] QString withoutNetPriceLabel() const;
    [[nodiscard]] bool differsFromMenu() const;
    [[nodiscard]] bool isShownToCustomer() const { return shownToCustomer_; }

signals:
    void changed();
    void sortingChanged();
    void summaryChanged();
    void shownToCustomerChanged();

private:
    // A field that is being typed into, and its text.
    struct Typing {
        int tag = 0;
        QString text;
    };

    [[nodiscard]] QString picture(ProfitSorting::Button button) const { return sorting_.picture(button); }
    void rebuildRows();
    [[nodiscard]] ProfitTableRow cellOf(const ProfitRow& row) const;
    void reloadTable();
    void sort(ProfitSorting::Button button);
    [[nodiscard]] std::optional<ProfitRow> typedRow(int tag, const QString& text) const;
    void takeTyped();
    void keepNetPrices() const;

    const WizardStepContext context_;
    std::shared_ptr<BrochureIntermediateData> actualOrder_;
    ProfitTableModel table_;
    ProfitSorting sorting_;
    std::vector<ProfitRow> productsPerBrand_;
    std::optional<Typing> typing_;
    bool shownToCustomer_ = false;
};

} // namespace kavor
