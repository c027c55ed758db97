#pragma once

#include "sellingsheets/SheetModules.h"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <vector>

namespace kavor {

// One product of a module: a brand, and a carousel of its formats that selling sheets offer.
class SheetProductChooser : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the form")
    // Each {source, text}.
    Q_PROPERTY(QVariantList brands READ brands CONSTANT)
    Q_PROPERTY(int brand READ brand NOTIFY changed)
    Q_PROPERTY(QVariantList formats READ formats NOTIFY brandChanged)
    Q_PROPERTY(int format READ format NOTIFY changed)
    // "Caja de 24 botellas"; empty for what comes in no box.
    Q_PROPERTY(QString boxText READ boxText NOTIFY changed)

public:
    explicit SheetProductChooser(std::shared_ptr<const Catalogue> catalogue, QObject* parent = nullptr);

    // Answers false, and chooses the first one, where the format is not on offer.
    bool show(Int format);

    Q_INVOKABLE void chooseBrand(int index);
    Q_INVOKABLE void chooseFormat(int index);

    // Empty where nothing is on offer.
    [[nodiscard]] SheetFormat chosen() const;
    [[nodiscard]] QVariantList brands() const;
    [[nodiscard]] int brand() const { return brand_; }
    [[nodiscard]] QVariantList formats() const;
    [[nodiscard]] int format() const { return format_; }
    [[nodiscard]] QString boxText() const;

signals:
    void changed();
    void brandChanged();

private:
    void takeBrand(int brand, int format);

    std::shared_ptr<const Catalogue> catalogue_;
    std::vector<const Product*> brandList_;
    std::vector<const Product::ProductFormat*> productList_;
    int brand_ = -1;
    int format_ = -1;
};

} // namespace kavor
