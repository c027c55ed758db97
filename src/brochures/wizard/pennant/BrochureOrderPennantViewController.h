#pragma once

#include "brochures/engine/PennantProducts.h"
#include "brochures/wizard/WizardStepContext.h"
#include "screens/PickerRows.h"
#include "screens/covers/CoverGallery.h"

#include <QStringList>
#include <QVariantList>

#include <vector>

namespace kavor {

// Step 8: a string of pennants with up to eight products of the menu, or none.
class BrochureOrderPennantViewController : public kavor::WizardStepViewController, public SerializeAutoSave {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the wizard")
    // detailedCarousel: the styles of pennants.
    Q_PROPERTY(kavor::CoverGallery* detailedCarousel READ detailedCarousel CONSTANT)
    // Why there is no style; empty when there are styles.
    Q_PROPERTY(QString emptyMessage READ emptyMessage NOTIFY changed)
    Q_PROPERTY(bool withPennantSwitch READ withPennantSwitch NOTIFY changed)
    Q_PROPERTY(bool withoutPricePennantSwitch READ withoutPricePennantSwitch NOTIFY changed)
    // Whether the pennants may have prices at all, which is what the switch above can take away.
    Q_PROPERTY(bool withoutPriceOffered READ isWithoutPriceOffered NOTIFY changed)
    Q_PROPERTY(QString infoPennantLabel READ infoPennantLabel CONSTANT)
    // The rows of each of the eight pickers; the first is the empty choice.
    Q_PROPERTY(QStringList products READ products NOTIFY changed)
    // product01Picker to product08Picker: the row of each.
    Q_PROPERTY(QVariantList pickers READ pickers NOTIFY changed)
    // The string as it hangs: {name, brand, image, price, empty} of each of the eight.
    Q_PROPERTY(QVariantList pennants READ pennants NOTIFY changed)
    // What the string says of itself: how many of the eight places are taken.
    Q_PROPERTY(QString takenLabel READ takenLabel NOTIFY changed)

public:
    BrochureOrderPennantViewController(const WizardStepContext& context, QObject* parent);

    [[nodiscard]] QUrl view() const override;
    void viewDidLoad() override;
    void viewWillAppear() override;
    void serializeAutoSave() override;

    Q_INVOKABLE void actionwithPennantClick(bool on); // spelt so in the model
    Q_INVOKABLE void actionWithoutPriceClick(bool on);
    // A choice in the picker of a place, 0 to 7.
    Q_INVOKABLE void choose(int place, int row);
    // "Rellenar con los primeros ocho": the first products on offer take the places; asks when that would
    // push out others.
    Q_INVOKABLE void fill();

    [[nodiscard]] CoverGallery* detailedCarousel() { return &detailedCarousel_; }
    [[nodiscard]] QString emptyMessage() const;
    [[nodiscard]] bool withPennantSwitch() const;
    [[nodiscard]] bool withoutPricePennantSwitch() const;
    [[nodiscard]] bool isWithoutPriceOffered() const;
    [[nodiscard]] QString infoPennantLabel() const;
    [[nodiscard]] const QStringList& products() const { return rows_.names(); }
    [[nodiscard]] QVariantList pickers() const;
    [[nodiscard]] QVariantList pennants() const;
    [[nodiscard]] QString takenLabel() const;

signals:
    void changed();

private:
    void readStyles();
    void writeStyle();
    void edited();
    void fillNow();
    [[nodiscard]] std::size_t taken() const;
    [[nodiscard]] const PennantProduct* productAt(Int position) const;

    const WizardStepContext context_;
    std::vector<const Brochures::Style*> brochureStyles_; // on offer, in display order
    CoverGallery detailedCarousel_;
    std::vector<PennantProduct> showInPennantProducts_;
    PickerRows rows_; // of them
};

} // namespace kavor
