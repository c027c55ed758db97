#pragma once

#include "brochures/wizard/CatalogueCopy.h"
#include "brochures/wizard/WizardStepContext.h"
#include "brochures/wizard/products/BrandListModel.h"
#include "brochures/wizard/products/NewBrandForm.h"
#include "brochures/wizard/products/PriorityBrandSelectorView.h"

#include <memory>
#include <optional>
#include <vector>

namespace kavor {

class BrochureIntermediateData;

// Step 2: the brands of the kind's family with their formats, which the user selects within the limits of the
// kind.
class BrochureProductListViewController : public kavor::WizardStepViewController,
                                          public SerializeAutoSave,
                                          private PriorityFilterDelegate {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the wizard")
    Q_PROPERTY(kavor::BrandListModel* brandsList READ brandsList CONSTANT)
    Q_PROPERTY(kavor::PriorityBrandSelectorView* brandFilter READ brandFilter NOTIFY changed)
    Q_PROPERTY(kavor::NewBrandForm* formAddNewBrandView READ formAddNewBrandView NOTIFY formChanged)
    Q_PROPERTY(bool formAddNewBrandVisible READ isFormAddNewBrandVisible NOTIFY formChanged)
    Q_PROPERTY(bool newBrandVisible READ isNewBrandVisible NOTIFY changed)
    Q_PROPERTY(bool priorityBrandsVisible READ isPriorityBrandsVisible NOTIFY changed)
    Q_PROPERTY(QString informationLabel READ informationLabel NOTIFY changed)
    Q_PROPERTY(bool limitsVisible READ areLimitsVisible NOTIFY changed)
    Q_PROPERTY(QString minimumProductsSelectedLabel READ minimumProductsSelectedLabel NOTIFY changed)
    Q_PROPERTY(QString maximumBrandsSelectedLabel READ maximumBrandsSelectedLabel NOTIFY changed)
    Q_PROPERTY(int minimumNumberOfProducts READ minimumNumberOfProducts NOTIFY changed)
    Q_PROPERTY(int maximumNumberOfBrands READ maximumNumberOfBrands NOTIFY changed)
    Q_PROPERTY(QString setOfBrandsChoicesLabel READ setOfBrandsChoicesLabel NOTIFY changed)
    Q_PROPERTY(int currentNumberOfSelections READ currentNumberOfSelections NOTIFY counterChanged)
    Q_PROPERTY(QString currentProductsSelectedLabel READ currentProductsSelectedLabel NOTIFY counterChanged)
    Q_PROPERTY(double progress READ progress NOTIFY counterChanged)
    Q_PROPERTY(bool progressRed READ isProgressRed NOTIFY counterChanged)
    // Why the last tap on a format changed nothing; empty otherwise.
    Q_PROPERTY(QString refusal READ refusal NOTIFY refusalChanged)

public:
    BrochureProductListViewController(const WizardStepContext& context, QObject* parent);
    ~BrochureProductListViewController() override;

    [[nodiscard]] QUrl view() const override;
    void viewWillAppear() override;
    // The selections are in the draft already.
    void serializeAutoSave() override {}

    // A tap on a format of the brand in a row: selects it, or takes it out.
    Q_INVOKABLE void toggleFormat(int row, qint64 format);
    Q_INVOKABLE void addNewBrandBtn();
    Q_INVOKABLE void closeFormNewBrandBtn();
    Q_INVOKABLE void createNewBrandBtn();

    [[nodiscard]] BrandListModel* brandsList() { return &brands_; }
    [[nodiscard]] PriorityBrandSelectorView* brandFilter() const { return filter_; }
    [[nodiscard]] NewBrandForm* formAddNewBrandView() const { return form_; }
    [[nodiscard]] bool isFormAddNewBrandVisible() const { return form_ != nullptr; }
    [[nodiscard]] bool isNewBrandVisible() const { return newBrandVisible_; }
    [[nodiscard]] bool isPriorityBrandsVisible() const { return priorityBrandsVisible_; }
    [[nodiscard]] QString informationLabel() const { return information_; }
    [[nodiscard]] bool areLimitsVisible() const { return !isChalkboard_; }
    [[nodiscard]] QString minimumProductsSelectedLabel() const;
    [[nodiscard]] QString maximumBrandsSelectedLabel() const;
    // 0 where the kind has no such limit.
    [[nodiscard]] int minimumNumberOfProducts() const { return int(minimum_.value_or(0)); }
    [[nodiscard]] int maximumNumberOfBrands() const { return int(maximum_.value_or(0)); }
    // Empty when it is hidden.
    [[nodiscard]] QString setOfBrandsChoicesLabel() const;
    [[nodiscard]] int currentNumberOfSelections() const { return int(currentNumberOfSelections_); }
    [[nodiscard]] QString currentProductsSelectedLabel() const;
    // The count as a share of the maximum; it may pass 1.
    [[nodiscard]] double progress() const;
    [[nodiscard]] bool isProgressRed() const;
    [[nodiscard]] QString refusal() const { return refusal_; }

signals:
    void changed();
    void formChanged();
    void counterChanged();
    void refusalChanged();

private:
    void brandFilterDidChange() override;
    void readBrochureType();
    void readChalkboard();
    [[nodiscard]] QString informationText(const Brochures::Type& type) const;
    void readCustomer();
    void runCounter();
    [[nodiscard]] bool mayAddBrand(std::optional<Int> brand) const;
    void setRefusal(const QString& text);
    void addBrand();

    WizardStepContext context_;
    BrandListModel brands_;
    PriorityBrandSelectorView* filter_ = nullptr;
    NewBrandForm* form_ = nullptr;
    CatalogueCopy catalogueToGrow_; // made while the user fills in the form
    ApplicationFather family_ = ApplicationFather::orderBeer;
    bool isChalkboard_ = false;
    bool newBrandVisible_ = false;
    bool priorityBrandsVisible_ = false;
    std::optional<Int> minimum_;
    std::optional<Int> maximum_;
    std::vector<Int> numberOfFormatsToSelect_; // chalkboard: the allowed numbers of brands
    Int currentNumberOfSelections_ = 0;
    QString information_;
    QString refusal_;
};

} // namespace kavor
