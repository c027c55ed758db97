#pragma once

#include "brochures/wizard/WizardStepContext.h"
#include "screens/covers/CoverGallery.h"

#include <QVariantList>

#include <vector>

namespace kavor {

// Step 9: the pennant of a brand that is in the menu.
class PennantBrandViewController : public kavor::WizardStepViewController, public SerializeAutoSave {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the wizard")
    // detailedCarousel: the sample of each pennant, and on its other side the small picture.
    Q_PROPERTY(kavor::CoverGallery* detailedCarousel READ detailedCarousel CONSTANT)
    // Whether none fits the menu; then the picture "without_pennant" stands in place of the carousel.
    Q_PROPERTY(bool withoutPennant READ isWithoutPennant NOTIFY changed)
    Q_PROPERTY(QString infoPennantBrandLabel READ infoPennantBrandLabel NOTIFY changed)
    Q_PROPERTY(QString helpTextPennantLabel READ helpTextPennantLabel NOTIFY changed)
    // The picture of the pennant's brands; empty without a pennant.
    Q_PROPERTY(QString imageBrand READ imageBrand NOTIFY changed)
    // Its brands: {text, available} of each; one that is not in the menu is not available.
    Q_PROPERTY(QVariantList brandLogosCollection READ brandLogosCollection NOTIFY changed)

public:
    PennantBrandViewController(const WizardStepContext& context, QObject* parent);

    [[nodiscard]] QUrl view() const override;
    void viewDidLoad() override;
    void viewWillAppear() override;
    void serializeAutoSave() override;

    [[nodiscard]] CoverGallery* detailedCarousel() { return &detailedCarousel_; }
    [[nodiscard]] bool isWithoutPennant() const { return pennantStylesFilter_.empty(); }
    [[nodiscard]] QString infoPennantBrandLabel() const;
    [[nodiscard]] QString helpTextPennantLabel() const;
    [[nodiscard]] QString imageBrand() const;
    [[nodiscard]] QVariantList brandLogosCollection() const;

signals:
    void changed();

private:
    [[nodiscard]] bool isSelected(Int brand) const;
    // Null when none fits the menu.
    [[nodiscard]] const Brochures::PennantBrand* pennant() const;

    const WizardStepContext context_;
    std::vector<const Brochures::PennantBrand*> pennantStyles_;       // by position
    std::vector<const Brochures::PennantBrand*> pennantStylesFilter_; // those with a brand of the menu
    CoverGallery detailedCarousel_;
};

} // namespace kavor
