#pragma once

#include "brochures/wizard/style/StyleContext.h"
#include "screens/PickerRows.h"

#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace kavor {

// The QR material of a digital brochure: vinyls or wooden blocks, how many, and the brand printed on them.
class BrandQrForm : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the style step")
    Q_PROPERTY(bool visible READ isVisible NOTIFY changed)
    Q_PROPERTY(QStringList brandQrTypes READ brandQrTypes NOTIFY changed)
    Q_PROPERTY(int brandQrTypePicker READ brandQrTypePicker NOTIFY changed)
    Q_PROPERTY(bool wooden READ isWooden NOTIFY changed)
    Q_PROPERTY(QStringList tableQuantities READ tableQuantities NOTIFY changed)
    Q_PROPERTY(QStringList doorQuantities READ doorQuantities NOTIFY changed)
    Q_PROPERTY(QStringList tacoQuantities READ tacoQuantities NOTIFY changed)
    Q_PROPERTY(int brandQrQuantityTablePicker READ brandQrQuantityTablePicker NOTIFY changed)
    Q_PROPERTY(int brandQrQuantityDoorPicker READ brandQrQuantityDoorPicker NOTIFY changed)
    Q_PROPERTY(int brandQrQuantityTacoPicker READ brandQrQuantityTacoPicker NOTIFY changed)
    // What is wrong with the quantities, each beside its picker; empty when nothing is.
    Q_PROPERTY(QString tableError READ tableError NOTIFY changed)
    Q_PROPERTY(QString doorError READ doorError NOTIFY changed)
    Q_PROPERTY(QString tacoError READ tacoError NOTIFY changed)
    // The entries of the carousel on show: {source, text}.
    Q_PROPERTY(QVariantList brands READ brands NOTIFY changed)
    Q_PROPERTY(int currentBrand READ currentBrand NOTIFY currentBrandChanged)

public:
    enum Quantity { Table, Door, Taco };
    Q_ENUM(Quantity)

    using QObject::QObject;

    void appear(const StyleContext& context);
    // Writes type and quantities on show into the draft.
    void serialize();

    Q_INVOKABLE void chooseType(int row);
    Q_INVOKABLE void chooseQuantity(int quantity, int row);
    // The carousel of the brands was moved.
    Q_INVOKABLE void brandQrCarouselDidChange(int index);

    [[nodiscard]] bool isVisible() const { return visible_; }
    [[nodiscard]] QStringList brandQrTypes() const;
    [[nodiscard]] int brandQrTypePicker() const { return type_; }
    [[nodiscard]] bool isWooden() const { return type_ == 1; }
    [[nodiscard]] QStringList tableQuantities() const { return offered(Table).names(); }
    [[nodiscard]] QStringList doorQuantities() const { return offered(Door).names(); }
    [[nodiscard]] QStringList tacoQuantities() const { return offered(Taco).names(); }
    [[nodiscard]] QString tableError() const { return errorOf(Table); }
    [[nodiscard]] QString doorError() const { return errorOf(Door); }
    [[nodiscard]] QString tacoError() const { return errorOf(Taco); }
    // -1 while the draft holds a quantity that the picker doesn't offer.
    [[nodiscard]] int brandQrQuantityTablePicker() const { return rows_[Table]; }
    [[nodiscard]] int brandQrQuantityDoorPicker() const { return rows_[Door]; }
    [[nodiscard]] int brandQrQuantityTacoPicker() const { return rows_[Taco]; }
    [[nodiscard]] QVariantList brands() const;
    [[nodiscard]] int currentBrand() const { return currentBrand_; }
    // The pictures of the carousel on show.
    [[nodiscard]] QStringList images() const;

signals:
    void changed();
    void currentBrandChanged();
    // The draft has a new choice.
    void edited();

private:
    [[nodiscard]] const std::vector<Int>& list(Quantity quantity) const;
    [[nodiscard]] PickerRows offered(Quantity quantity) const;
    [[nodiscard]] int rowOf(Quantity quantity) const;
    [[nodiscard]] std::optional<Int> stored(Quantity quantity) const;
    [[nodiscard]] std::optional<Int> chosen(Quantity quantity) const;
    [[nodiscard]] QString errorOf(Quantity quantity) const;
    void filterBrands();

    StyleContext context_;
    std::vector<Brochures::BrandQr> filteredBrandQrs_;
    bool visible_ = false;
    int type_ = 0;
    int rows_[3] = {0, 0, 0};
    int currentBrand_ = 0;
};

} // namespace kavor
