#pragma once

#include "brochures/wizard/WizardStep.h"
#include "brochures/wizard/WizardStepContext.h"
#include "brochures/wizard/drinks/BeveragesTableView.h"
#include "brochures/wizard/drinks/DrinkListModel.h"
#include "brochures/wizard/drinks/DrinkStock.h"
#include "brochures/wizard/drinks/SelectedDrinksForm.h"

#include <QVariantList>

#include <functional>
#include <optional>

namespace kavor {

struct TextQuestion;

// Shows the selected drinks anew when they changed elsewhere.
class ReloadableDelegate {
public:
    virtual ~ReloadableDelegate() = default;
    virtual void reload() = 0;
};

// Step 3: the other drinks of the menu, from three lists (categories, products, formats) into a table with
// their prices and descriptions. Each change goes at once to the draft and to its temporary copy.
class BrochureDrinkListViewController : public kavor::WizardStepViewController,
                                        public SerializeAutoSave,
                                        public ReloadableDelegate {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the wizard")
    Q_PROPERTY(kavor::CategoriesDataSource* categoriesDataSource READ categoriesDataSource CONSTANT)
    Q_PROPERTY(kavor::ProductDataSource* productsDataSource READ productsDataSource CONSTANT)
    Q_PROPERTY(kavor::FormatDataSource* formatsDataSource READ formatsDataSource CONSTANT)
    Q_PROPERTY(kavor::BeveragesTableView* selectedProductsTable READ selectedProductsTable CONSTANT)
    Q_PROPERTY(kavor::SelectedDrinksForm* selectedDrinks READ selectedDrinks CONSTANT)
    // Says that the kind shows drinks and prints none; empty for one that prints them.
    Q_PROPERTY(QString notPrintedText READ notPrintedText CONSTANT)
    Q_PROPERTY(QString firstPriceLabel READ firstPriceLabel NOTIFY changed)
    // Empty without a second price.
    Q_PROPERTY(QString secondPriceLabel READ secondPriceLabel NOTIFY changed)
    Q_PROPERTY(int categoryDescriptionLength READ categoryDescriptionLength CONSTANT)
    Q_PROPERTY(QString selectedText READ selectedText NOTIFY changed)
    // The button that leads to the drinks of the menu and back.
    Q_PROPERTY(QString barText READ barText NOTIFY changed)
    // Where one list is shown at a time: which, and the way that led there (entries of {text, page}).
    Q_PROPERTY(bool paged READ isPaged WRITE setPaged NOTIFY pageChanged)
    Q_PROPERTY(Page page READ page NOTIFY pageChanged)
    Q_PROPERTY(QVariantList breadcrumb READ breadcrumb NOTIFY changed)

public:
    enum class Page { Categories, Products, Formats, Selected };
    Q_ENUM(Page)

    BrochureDrinkListViewController(const WizardStepContext& context, QObject* parent);

    [[nodiscard]] QUrl view() const override;
    void viewDidLoad() override;
    void viewWillAppear() override;
    void serializeAutoSave() override;
    void reload() override;

    // A row of a list was chosen.
    Q_INVOKABLE void chooseCategory(int row);
    Q_INVOKABLE void chooseProduct(int row);
    Q_INVOKABLE void chooseFormat(int row);
    Q_INVOKABLE void addNewCategory();
    Q_INVOKABLE void addNewProduct();
    Q_INVOKABLE void addNewFormat();
    Q_INVOKABLE void showPage(kavor::BrochureDrinkListViewController::Page page);
    // To the drinks of the menu, and back to the list that was on show.
    Q_INVOKABLE void toggleSelected();

    [[nodiscard]] CategoriesDataSource* categoriesDataSource() { return &categories_; }
    [[nodiscard]] ProductDataSource* productsDataSource() { return &products_; }
    [[nodiscard]] FormatDataSource* formatsDataSource() { return &formats_; }
    [[nodiscard]] BeveragesTableView* selectedProductsTable() { return &table_; }
    [[nodiscard]] SelectedDrinksForm* selectedDrinks() { return &selectedDrinks_; }
    [[nodiscard]] const std::optional<DrinkStock::Beverage>& selectedCategory() const {
        return selectedCategory_;
    }
    [[nodiscard]] const std::optional<DrinkStock::Beverage>& selectedProduct() const {
        return selectedProduct_;
    }
    [[nodiscard]] QString notPrintedText() const;
    [[nodiscard]] QString firstPriceLabel() const;
    [[nodiscard]] QString secondPriceLabel() const;
    [[nodiscard]] int categoryDescriptionLength() const;
    [[nodiscard]] QString selectedText() const;
    [[nodiscard]] QString barText() const;
    [[nodiscard]] bool isPaged() const { return paged_; }
    void setPaged(bool paged);
    [[nodiscard]] Page page() const { return page_; }
    [[nodiscard]] QVariantList breadcrumb() const;

signals:
    void changed();
    void pageChanged();
    // A row of the table came that the user should see.
    void revealed(int row);

private:
    [[nodiscard]] const Validations& validations() const;
    [[nodiscard]] QString priceName(PriceType type, const QString& otherwise) const;
    void edited();
    void reloadLists();
    void dropGoneChoices();
    void setPage(Page page);
    void reveal(const std::optional<std::string>& formatName);
    void askForName(const QString& title, const QString& text, Int limit,
                    std::function<void(const std::string&)> taken);
    void createCategory(const std::string& name);
    void createProduct(const std::string& name, Int category);
    void createFormat(const std::string& name, Int category, Int product);
    [[nodiscard]] bool addProduct(DrinkStock::Beverage product, Int category);
    void tellRefusal();
    // Refuses the format beyond the limit with its message.
    bool mayAddFormat(Int product);
    void addFormat(const std::string& name, Int category, Int product);

    WizardStepContext context_;
    DrinkStock stock_;
    CategoriesDataSource categories_;
    ProductDataSource products_;
    FormatDataSource formats_;
    BeveragesTableView table_;
    SelectedDrinksForm selectedDrinks_; // on the table
    std::optional<DrinkStock::Beverage> selectedCategory_;
    std::optional<DrinkStock::Beverage> selectedProduct_;
    bool paged_ = false;
    Page page_ = Page::Categories;
    Page pageBefore_ = Page::Categories; // the list that the selected drinks took the place of
};

} // namespace kavor
