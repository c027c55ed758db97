#pragma once

#include "brochures/wizard/WizardStepContext.h"
#include "brochures/wizard/ordersheet/OrderSheetModel.h"

#include <QVariantList>

#include <vector>

namespace kavor {

struct Product;

// Step 5: the order sheet that goes along with the menu, or none.
class BrochureOrderSheetViewController : public kavor::WizardStepViewController, public SerializeAutoSave {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the wizard")
    Q_PROPERTY(kavor::OrderSheetModel* carousel READ carousel CONSTANT)
    Q_PROPERTY(int currentIndex READ currentIndex NOTIFY changed)
    // "Se enviarán N unidades"; empty without an order sheet.
    Q_PROPERTY(QString numberOrderBrochuresToSend READ numberOrderBrochuresToSend NOTIFY changed)
    // The brands of the order sheet that are in the menu: {source, text} of each.
    Q_PROPERTY(QVariantList brandLogosCollection READ brandLogosCollection NOTIFY changed)
    // Says that there are none of them; empty where it is not to be said.
    Q_PROPERTY(QString noBrandAvailableLabel READ noBrandAvailableLabel NOTIFY changed)

public:
    BrochureOrderSheetViewController(const WizardStepContext& context, QObject* parent);

    [[nodiscard]] QUrl view() const override;
    void viewDidLoad() override;
    void viewWillAppear() override;
    void serializeAutoSave() override;

    // The user moved the carousel.
    Q_INVOKABLE void carouselCurrentItemIndexDidChange(int index);

    [[nodiscard]] OrderSheetModel* carousel() { return &carousel_; }
    [[nodiscard]] int currentIndex() const { return currentIndex_; }
    [[nodiscard]] QString numberOrderBrochuresToSend() const;
    [[nodiscard]] QVariantList brandLogosCollection() const;
    [[nodiscard]] QString noBrandAvailableLabel() const;

signals:
    void changed();

private:
    struct AvailableBrand {
        bool isSelected = false; // in the menu
        const Product* brand = nullptr;
    };

    void showEntry(int index);

    const WizardStepContext context_;
    OrderSheetModel carousel_;
    std::vector<AvailableBrand> availableBrands_; // every brand that the order sheet names
    int currentIndex_ = 0;
};

} // namespace kavor
