#pragma once

#include "catalogue/Shared.h"
#include "textile/screens/TextileCart.h"
#include "textile/screens/TextileStepViewController.h"

#include <vector>

namespace kavor {

// The second step: brand, format with model, colour and units per size, and the cart.
class TextileProductsViewController : public kavor::TextileStepViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the section")
    Q_PROPERTY(kavor::TextileChoiceModel* brands READ brands CONSTANT)
    Q_PROPERTY(kavor::TextileChoiceModel* formats READ formats CONSTANT)
    Q_PROPERTY(kavor::TextileChoiceModel* colors READ colors CONSTANT)
    Q_PROPERTY(kavor::TextileSizeModel* sizes READ sizes CONSTANT)
    Q_PROPERTY(kavor::TextileCart* cart READ cart CONSTANT)
    // As GarmentPicture takes it; "image" is "sinseleccion" while nothing is chosen.
    Q_PROPERTY(QVariantMap garment READ garment NOTIFY selectionChanged)
    Q_PROPERTY(QString selectionText READ selectionText NOTIFY selectionChanged)
    // The units of all sizes that the fields show.
    Q_PROPERTY(QString sizesTotal READ sizesTotal NOTIFY selectionChanged)
    // What the button says: whether it adds a line or changes one.
    Q_PROPERTY(QString addTitle READ addTitle NOTIFY selectionChanged)

public:
    explicit TextileProductsViewController(TextileDesk& desk, QObject* parent = nullptr);
    ~TextileProductsViewController() override;

    [[nodiscard]] QUrl view() const override;

    // Taps on an element of the models, by its key.
    Q_INVOKABLE void selectBrand(const QString& key);
    Q_INVOKABLE void selectFormatAndGender(const QString& key);
    Q_INVOKABLE void selectColor(const QString& key);
    Q_INVOKABLE void selectCartLine(const QString& key);
    // The text of a size's field while it is typed, and when the field is left.
    Q_INVOKABLE void editUnits(qlonglong size, const QString& text);
    Q_INVOKABLE void finishUnits(qlonglong size, const QString& text);
    // One more or less.
    Q_INVOKABLE void stepUnits(qlonglong size, int by);
    Q_INVOKABLE void addToCartAction();

    // What the section offers, by position.
    [[nodiscard]] const std::vector<const Textile::Item*>& availableItems() const { return availableItems_; }
    [[nodiscard]] const std::vector<const Product*>& availableBrands() const { return availableBrands_; }
    [[nodiscard]] TextileChoiceModel* brands() { return &brands_; }
    [[nodiscard]] TextileChoiceModel* formats() { return &formats_; }
    [[nodiscard]] TextileChoiceModel* colors() { return &colors_; }
    [[nodiscard]] TextileSizeModel* sizes() { return &sizes_; }
    [[nodiscard]] TextileCart* cart() { return &cart_; }
    [[nodiscard]] QVariantMap garment() const;
    [[nodiscard]] QString selectionText() const;
    [[nodiscard]] QString sizesTotal() const;
    [[nodiscard]] QString addTitle() const;

signals:
    void selectionChanged();

private:
    void findAvailable();
    void reload();
    void showBrands();
    void showFormats();
    void showColors();
    void showSizes();
    void tell(const char* title, const char* text);
    void setUnits(Int size, UInt units);
    [[nodiscard]] const char* refusal() const;
    [[nodiscard]] UInt shownUnits(Int size) const;
    [[nodiscard]] const Textile::Item* matchingItem() const;

    TextileDesk& desk_;
    std::vector<const Textile::Item*> availableItems_;
    std::vector<const Product*> availableBrands_;
    TextileChoiceModel brands_;
    TextileChoiceModel formats_;
    TextileChoiceModel colors_;
    TextileSizeModel sizes_;
    TextileCart cart_;
};

} // namespace kavor
