#pragma once

#include "brochures/wizard/WizardStepContext.h"
#include "brochures/wizard/prices/HighlightZone.h"
#include "brochures/wizard/prices/PriceSorting.h"
#include "brochures/wizard/prices/PriceTableModel.h"
#include "brochures/wizard/prices/VolumeEditorViewController.h"
#include "brochures/wizard/prices/recommendation/PriceRecommendationRoad.h"
#include "catalogue/Catalogue.h"

#include <memory>
#include <optional>
#include <vector>

namespace kavor {

class BrochureIntermediateData;

// What the four buttons of a price cell reach.
class SelectedCell {
public:
    virtual ~SelectedCell() = default;
    // Each takes the cell's tag, the row's index, and means the format that the cell shows.
    virtual void editVolumeButton(int row) = 0;
    virtual void newProductButton(int row) = 0;
    virtual void priceRecommendation(int row) = 0;
    virtual void deleteProductButton(int row) = 0;
};

// Step 4: the recommended retail prices of every selected format, its volume and its "new" mark, and the
// format that is highlighted. Each change goes at once to the draft and to its temporary copy.
class BrochurePriceSetterViewController : public kavor::WizardStepViewController,
                                          public SerializeAutoSave,
                                          public SelectedCell {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the wizard")
    Q_PROPERTY(kavor::PriceTableModel* table READ table CONSTANT)
    Q_PROPERTY(kavor::HighlightZone* highlight READ highlight CONSTANT)
    Q_PROPERTY(kavor::VolumeEditorViewController* volumeEditor READ volumeEditor NOTIFY volumeEditorChanged)
    Q_PROPERTY(bool archivePriceVisible READ isArchivePriceVisible NOTIFY changed)
    Q_PROPERTY(bool primaryPriceVisible READ isPrimaryPriceVisible NOTIFY changed)
    Q_PROPERTY(bool secondaryPriceVisible READ isSecondaryPriceVisible NOTIFY changed)
    Q_PROPERTY(bool orderBySecondaryVisible READ isOrderBySecondaryVisible NOTIFY changed)
    Q_PROPERTY(QString orderBySecondaryTitle READ orderBySecondaryTitle NOTIFY changed)
    Q_PROPERTY(QString orderByBrandPicture READ orderByBrandPicture NOTIFY sortingChanged)
    Q_PROPERTY(QString orderByFormatPicture READ orderByFormatPicture NOTIFY sortingChanged)
    Q_PROPERTY(QString orderByPrimaryPicture READ orderByPrimaryPicture NOTIFY sortingChanged)
    Q_PROPERTY(QString orderBySecondaryPicture READ orderBySecondaryPicture NOTIFY sortingChanged)
    Q_PROPERTY(bool withoutPriceVisible READ isWithoutPriceVisible NOTIFY changed)
    Q_PROPERTY(QString withoutPriceLabel READ withoutPriceLabel NOTIFY changed)
    Q_PROPERTY(QString withoutPriceInfoLabel READ withoutPriceInfoLabel NOTIFY changed)
    Q_PROPERTY(bool withoutPriceSwitch READ withoutPriceSwitch NOTIFY changed)

public:
    BrochurePriceSetterViewController(const WizardStepContext& context, QObject* parent);
    ~BrochurePriceSetterViewController() override;

    [[nodiscard]] QUrl view() const override;
    void viewDidLoad() override;
    void viewWillAppear() override;
    void serializeAutoSave() override;

    // A price field was left: `n` = tag - 100 names row and column.
    Q_INVOKABLE void priceFieldDidEndEditing(int tag, const QString& text);
    Q_INVOKABLE void orderByBrandButton() { sort(PriceSorting::Button::Brand); }
    Q_INVOKABLE void orderByFormatButton() { sort(PriceSorting::Button::Format); }
    Q_INVOKABLE void orderByPrimaryPVPButton() { sort(PriceSorting::Button::PrimaryPrice); }
    Q_INVOKABLE void orderBySecondaryPVPButton() { sort(PriceSorting::Button::SecondaryPrice); }
    Q_INVOKABLE void editVolumeButton(int row) override;
    Q_INVOKABLE void newProductButton(int row) override;
    Q_INVOKABLE void priceRecommendation(int row) override;
    Q_INVOKABLE void deleteProductButton(int row) override;
    Q_INVOKABLE void withoutPriceSwitchChanged(bool on);
    Q_INVOKABLE void showArchivePrice();
    Q_INVOKABLE void showProfitAccount();

    [[nodiscard]] PriceTableModel* table() { return &table_; }
    [[nodiscard]] HighlightZone* highlight() { return &highlight_; }
    [[nodiscard]] VolumeEditorViewController* volumeEditor() const { return volumeEditor_; }
    [[nodiscard]] const std::vector<PriceRow>& productsPerBrandsSelected() const {
        return productsPerBrandsSelected_;
    }
    [[nodiscard]] bool isArchivePriceVisible() const { return archivePrice_.has_value(); }
    [[nodiscard]] bool isPrimaryPriceVisible() const { return !withoutPriceSwitch_; }
    [[nodiscard]] bool isSecondaryPriceVisible() const { return !withoutPriceSwitch_ && secondPriceType_; }
    [[nodiscard]] bool isOrderBySecondaryVisible() const;
    [[nodiscard]] QString orderBySecondaryTitle() const;
    [[nodiscard]] QString orderByBrandPicture() const {
        return sorting_.picture(PriceSorting::Button::Brand);
    }
    [[nodiscard]] QString orderByFormatPicture() const {
        return sorting_.picture(PriceSorting::Button::Format);
    }
    [[nodiscard]] QString orderByPrimaryPicture() const {
        return sorting_.picture(PriceSorting::Button::PrimaryPrice);
    }
    [[nodiscard]] QString orderBySecondaryPicture() const {
        return sorting_.picture(PriceSorting::Button::SecondaryPrice);
    }
    [[nodiscard]] bool isWithoutPriceVisible() const { return withoutPriceVisible_; }
    [[nodiscard]] QString withoutPriceLabel() const;
    [[nodiscard]] QString withoutPriceInfoLabel() const;
    [[nodiscard]] bool withoutPriceSwitch() const { return withoutPriceSwitch_; }

signals:
    void changed();
    void sortingChanged();
    void volumeEditorChanged();

private:
    void rebuildRows();
    [[nodiscard]] PriceRow makeRow(const Product& brand, const Product::ProductFormat& format) const;
    [[nodiscard]] PriceTableRow cellOf(const PriceRow& row) const;
    [[nodiscard]] const PriceRow* rowAt(int row) const;
    [[nodiscard]] PriceRow* rowOf(const PriceRow& shown);
    [[nodiscard]] const PriceRow* shownAt(int row);
    void reloadTable();
    void setUpHighlight(bool withAlert);
    void setUpWithoutPrice();
    void sort(PriceSorting::Button button);
    bool changeVolume(std::optional<Int> volume, const PriceRow& row);
    void deleteRow(const PriceRow& row);
    void show(const Screen& screen);
    void showRecommendation(const Recommendation& recommendation);
    [[nodiscard]] QString brochureWord() const;

    const WizardStepContext context_;
    PriceRecommendationRoad recommendationRoad_; // the way of a row's recommendation button
    PriceTableModel table_;
    HighlightZone highlight_;
    PriceSorting sorting_;
    VolumeEditorViewController* volumeEditor_ = nullptr;
    std::vector<PriceRow> productsPerBrandsSelected_;
    std::optional<PriceType> secondPriceType_;
    std::optional<HashedResource> archivePrice_;
    bool isSecondaryPriceAllowed_ = false;
    bool covered_ = false; // a screen is on show over the prices
    bool withoutPriceVisible_ = false;
    bool withoutPriceSwitch_ = false;
};

} // namespace kavor
