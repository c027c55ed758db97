#pragma once

#include "catalogue/Catalogue.h"
#include "sellingsheets/SellingSheetOrder.h"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace kavor {

// A sheet as SheetPageView.qml draws it: a small page that grows with each module.
class SheetPage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the screen")
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed)
    Q_PROPERTY(QString styleImage READ styleImage NOTIFY changed)
    Q_PROPERTY(QString validity READ validity NOTIFY changed)
    Q_PROPERTY(QString freeText READ freeText NOTIFY changed)
    Q_PROPERTY(bool programmeLogo READ hasProgrammeLogo NOTIFY changed)
    Q_PROPERTY(QString logo READ logo NOTIFY changed)
    // The taxes, and "3 páginas" where each module has a page of its own.
    Q_PROPERTY(QString foot READ foot NOTIFY changed)
    // Each {image, boxes, name, second: {image, boxes, name} or none, price, bottle, reference}.
    Q_PROPERTY(QVariantList modules READ modules NOTIFY modulesChanged)
    // The same as one reads it out.
    Q_PROPERTY(QString text READ text NOTIFY changed)

public:
    explicit SheetPage(std::shared_ptr<const Catalogue> catalogue, QObject* parent = nullptr);

    void show(const SellingSheetOrder& order);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString subtitle() const;
    [[nodiscard]] QString styleImage() const;
    [[nodiscard]] QString validity() const;
    [[nodiscard]] QString freeText() const;
    [[nodiscard]] bool hasProgrammeLogo() const { return order_.isNRVLogoIncluded; }
    [[nodiscard]] QString logo() const;
    [[nodiscard]] QString foot() const;
    [[nodiscard]] const QVariantList& modules() const { return modules_; }
    [[nodiscard]] QString text() const;

signals:
    void changed();
    void modulesChanged();

private:
    std::shared_ptr<const Catalogue> catalogue_;
    SellingSheetOrder order_;
    QVariantList modules_;
};

// The words of a module: "2 cajas de Encina Tercio".
QString boxesText(const Catalogue& catalogue, Int product, Int boxes);
// "Encina Tercio"; says that it left the catalogue where it did.
QString productText(const Catalogue& catalogue, Int product);
// "1,25 € por botella"; empty where a product has no bottles.
QString bottleText(const Catalogue& catalogue, const SellingSheetOrder::Item& module);
// What the programme asks for a bottle of the module's products: "Programa: 3,00 €"; empty where it says
// nothing.
QString programmeText(const Catalogue& catalogue, const SellingSheetOrder::Item& module);
// The picture of a product's box, else of the product.
QString productImage(const Catalogue& catalogue, Int product);

} // namespace kavor
