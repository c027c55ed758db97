#pragma once

#include "brochures/wizard/WizardStepContext.h"
#include "brochures/wizard/promotions/MenuPromotionModel.h"

#include <QString>

#include <optional>

namespace kavor {

// Step 7: the promotions in the menu. The gallery and the form that add and change them are screens over the
// wizard.
class BrochurePromotionViewController : public kavor::WizardStepViewController, public SerializeAutoSave {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the wizard")
    Q_PROPERTY(kavor::MenuPromotionModel* listPromotionsTable READ listPromotionsTable CONSTANT)

public:
    BrochurePromotionViewController(const WizardStepContext& context, QObject* parent);

    [[nodiscard]] QUrl view() const override;
    void viewDidLoad() override {}
    void viewWillAppear() override;
    // The draft has the promotions already.
    void serializeAutoSave() override {}

    Q_INVOKABLE void createButton();
    // Of a row. One that left the catalogue can only be removed.
    Q_INVOKABLE void editButton(int row);
    Q_INVOKABLE void deleteButton(int row);

    [[nodiscard]] MenuPromotionModel* listPromotionsTable() { return &listPromotionsTable_; }
    // The promotions that are attached already.
    [[nodiscard]] std::vector<Int> promotionSelectIds() const;

private:
    void reload();
    void remove(const MenuPromotion& promotion);
    [[nodiscard]] std::optional<Brochures::Language> languageSelected() const;
    [[nodiscard]] const Posters::Promotion* promotionOf(Int id) const;

    WizardStepContext context_;
    MenuPromotionModel listPromotionsTable_;
};

} // namespace kavor
