#pragma once

#include "brochures/wizard/WizardStepContext.h"
#include "brochures/wizard/configuration/BrochureFormatsForm.h"
#include "brochures/wizard/configuration/ChalkboardForm.h"
#include "brochures/wizard/configuration/LanguagesForm.h"
#include "brochures/wizard/configuration/SecondPriceForm.h"
#include "screens/pointofsale/PointOfSaleForm.h"

#include <QQmlEngine>
#include <QString>

namespace kavor {

// Step 0 of the wizard: the point of sale, the languages, the second price list and the form of the brochure.
// Every change goes into the draft and its temporary copy at once; the texts when their field is left.
class BrochureConfigurationViewController : public kavor::WizardStepViewController, public SerializeAutoSave {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the wizard")
    Q_PROPERTY(kavor::PointOfSaleForm* pointOfSale READ pointOfSale CONSTANT)
    Q_PROPERTY(QString freeTextLabel READ freeTextLabel CONSTANT)
    Q_PROPERTY(bool freeTextVisible READ isFreeTextVisible CONSTANT)
    Q_PROPERTY(kavor::LanguagesForm* languages READ languages CONSTANT)
    Q_PROPERTY(kavor::SecondPriceForm* secondPrice READ secondPrice CONSTANT)
    Q_PROPERTY(kavor::BrochureFormatsForm* formats READ formats CONSTANT)
    Q_PROPERTY(kavor::ChalkboardForm* chalkboard READ chalkboard CONSTANT)

public:
    // The services outlive the step.
    BrochureConfigurationViewController(const WizardStepContext& context, QObject* parent);
    ~BrochureConfigurationViewController() override;

    [[nodiscard]] QUrl view() const override;
    void viewDidLoad() override;
    void viewWillAppear() override;
    void serializeAutoSave() override;

    Q_INVOKABLE void previewAction();

    [[nodiscard]] PointOfSaleForm* pointOfSale() { return &pointOfSale_; }
    [[nodiscard]] QString freeTextLabel() const;
    [[nodiscard]] bool isFreeTextVisible() const { return !pointOfSaleFields().freeText.empty(); }
    [[nodiscard]] LanguagesForm* languages() { return &languages_; }
    [[nodiscard]] SecondPriceForm* secondPrice() { return &secondPrice_; }
    [[nodiscard]] BrochureFormatsForm* formats() { return &formats_; }
    [[nodiscard]] ChalkboardForm* chalkboard() { return &chalkboard_; }

signals:
    // The draft has what the form holds.
    void committed();
    // The customer code was accepted: the preview may start.
    void previewSegueRequested();

private:
    [[nodiscard]] PointOfSaleFields pointOfSaleFields() const;
    void commit();

    const WizardStepContext context_; // the forms look into it
    PointOfSaleForm pointOfSale_;
    LanguagesForm languages_;
    SecondPriceForm secondPrice_;
    BrochureFormatsForm formats_;
    ChalkboardForm chalkboard_;
};

} // namespace kavor
