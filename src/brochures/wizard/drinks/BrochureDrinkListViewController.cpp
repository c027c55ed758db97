#include "brochures/wizard/drinks/BrochureDrinkListViewController.h"

#include "base/AppFormatter.h"
#include "base/NotificationCenter.h"
#include "brochures/engine/DrinkKinds.h"
#include "brochures/wizard/StepSupport.h"
#include "interaction/PressGuard.h"
#include "interaction/Questions.h"

#include <algorithm>
#include <utility>

namespace kavor {

namespace {

using Beverage = DrinkStock::Beverage;

const QString attention = QStringLiteral("Atención");
const QString failed = QStringLiteral("Error");

QString shownName(const std::optional<Beverage>& beverage) {
    return beverage ? fromUtf8(beverage->name) : QString();
}

std::optional<Int> numberOf(const std::optional<Beverage>& beverage) {
    return beverage ? std::optional(beverage->identifier) : std::nullopt;
}

} // namespace

BrochureDrinkListViewController::BrochureDrinkListViewController(const WizardStepContext& context,
                                                                 QObject* parent)
    : WizardStepViewController(parent)
    , context_(context)
    , selectedDrinks_(context_, stock_, table_) {
    connect(&selectedDrinks_, &SelectedDrinksForm::edited, this, &BrochureDrinkListViewController::edited);
}

QUrl BrochureDrinkListViewController::view() const {
    return stepView(QStringLiteral("BrochureDrinkListView.qml"));
}

void BrochureDrinkListViewController::viewDidLoad() {
    stock_ = DrinkStock(*context_.catalogue);
}

void BrochureDrinkListViewController::viewWillAppear() {
    reload();
}

void BrochureDrinkListViewController::reload() {
    dropGoneChoices();
    reloadLists();
    table_.reload(*context_.draft);
    emit changed();
}

void BrochureDrinkListViewController::serializeAutoSave() {
    selectedDrinks_.takeTyped();
}

const Validations& BrochureDrinkListViewController::validations() const {
    return context_.catalogue->information().validations;
}

QString BrochureDrinkListViewController::notPrintedText() const {
    return context_.kind && !printsDrinks(*context_.kind)
               ? QStringLiteral(
                     "Este tipo de pedido no imprime las bebidas: lo que elijas aquí no saldrá en él ni se "
                     "guardará con él.")
               : QString();
}

QString BrochureDrinkListViewController::priceName(PriceType type, const QString& otherwise) const {
    const Brochures::Price* price = context_.catalogue->price(type);
    return price ? fromUtf8(price->name) : otherwise;
}

QString BrochureDrinkListViewController::firstPriceLabel() const {
    return priceName(PriceType::main, QStringLiteral("Principal"));
}

QString BrochureDrinkListViewController::secondPriceLabel() const {
    const auto second = context_.draft->currentSecondPrice();
    return second ? priceName(*second, {}) : QString();
}

int BrochureDrinkListViewController::categoryDescriptionLength() const {
    return int(validations().categoryDescription);
}

QString BrochureDrinkListViewController::selectedText() const {
    const int number = table_.products();
    if (number == 0)
        return QStringLiteral("Ninguna bebida elegida");
    return number == 1 ? QStringLiteral("1 bebida elegida")
                       : QStringLiteral("%1 bebidas elegidas")
                             .arg(fromUtf8(AppFormatter::shared().integerFormatter(number)));
}

QString BrochureDrinkListViewController::barText() const {
    return page_ == Page::Selected ? QStringLiteral("Seguir eligiendo") : selectedText();
}

// ---- Pages

void BrochureDrinkListViewController::setPaged(bool paged) {
    if (paged_ == paged)
        return;
    paged_ = paged;
    emit pageChanged();
}

void BrochureDrinkListViewController::setPage(Page page) {
    if (page_ == page)
        return;
    if (page == Page::Selected)
        pageBefore_ = page_;
    page_ = page;
    // The second half of a double tap would choose in the list that came.
    if (paged_)
        NotificationCenter::shared().post(notification::viewChanged);
    emit pageChanged();
    emit changed();
}

void BrochureDrinkListViewController::showPage(Page page) {
    const bool reachable = page == Page::Products  ? selectedCategory_.has_value()
                           : page == Page::Formats ? selectedProduct_.has_value()
                                                   : true;
    if (reachable)
        setPage(page);
}

void BrochureDrinkListViewController::toggleSelected() {
    setPage(page_ == Page::Selected ? pageBefore_ : Page::Selected);
}

QVariantList BrochureDrinkListViewController::breadcrumb() const {
    QVariantList way;
    const auto add = [&way](const QString& text, Page page) {
        way << QVariantMap{{QStringLiteral("text"), text},
                           {QStringLiteral("page"), QVariant::fromValue(page)}};
    };
    add(QStringLiteral("Categorías"), Page::Categories);
    if (selectedCategory_)
        add(shownName(selectedCategory_), Page::Products);
    if (selectedProduct_)
        add(shownName(selectedProduct_), Page::Formats);
    return way;
}

// ---- Lists

void BrochureDrinkListViewController::edited() {
    autosave(context_.draft);
    reload();
}

void BrochureDrinkListViewController::reloadLists() {
    const auto category = numberOf(selectedCategory_);
    const auto product = numberOf(selectedProduct_);
    categories_.reload(stock_, *context_.draft, category);
    products_.reload(stock_, *context_.draft, category, product);
    formats_.reload(stock_, *context_.draft, product);
}

// A product is chosen while it is in the menu, a category of the user's own too.
void BrochureDrinkListViewController::dropGoneChoices() {
    const auto& selected = context_.draft->selectedBeverages;
    const auto category = numberOf(selectedCategory_);
    const auto found = category ? selected.find(*category) : selected.end();
    const auto product = numberOf(selectedProduct_);
    if (product && (found == selected.end() || !found->second.contains(*product)))
        selectedProduct_.reset();
    if (category && found == selected.end() && !stock_.category(*category))
        selectedCategory_.reset();
    const Page last = selectedProduct_    ? Page::Formats
                      : selectedCategory_ ? Page::Products
                                          : Page::Categories;
    pageBefore_ = std::min(pageBefore_, last);
    if (page_ != Page::Selected)
        setPage(std::min(page_, last));
}

void BrochureDrinkListViewController::reveal(const std::optional<std::string>& formatName) {
    const int row = table_.rowOf(selectedCategory_->identifier, numberOf(selectedProduct_), formatName);
    if (row >= 0)
        emit revealed(row);
}

void BrochureDrinkListViewController::chooseCategory(int row) {
    const DrinkChoice* choice = categories_.choiceAt(row);
    if (!choice)
        return;
    if (numberOf(selectedCategory_) != choice->identifier) {
        const auto* known = stock_.category(choice->identifier);
        selectedCategory_ = known ? known->category.beverage
                                  : context_.draft->beverageInfo(choice->identifier, 0, true, std::nullopt);
        selectedProduct_.reset();
        products_.setFilterText({});
        formats_.setFilterText({});
        reloadLists();
        emit changed();
    }
    reveal({});
    setPage(Page::Products);
}

void BrochureDrinkListViewController::chooseProduct(int row) {
    const DrinkChoice* choice = products_.choiceAt(row);
    if (!choice || !selectedCategory_)
        return;
    const Int category = selectedCategory_->identifier;
    const Int product = choice->identifier;
    const auto* known = stock_.product(category, product);
    if (!choice->taken && !(known && addProduct(known->beverage, category))) {
        context_.services.alerts.inform(failed, QStringLiteral("El producto no ha podido ser seleccionado."),
                                        this);
        return;
    }
    const bool other = numberOf(selectedProduct_) != product;
    selectedProduct_ = context_.draft->beverageInfo(category, product, false, std::nullopt);
    if (other)
        formats_.setFilterText({});
    edited();
    reveal({});
    setPage(Page::Formats);
}

void BrochureDrinkListViewController::tellRefusal() {
    context_.services.alerts.inform(failed, QStringLiteral("El producto no ha podido ser seleccionado."),
                                    this);
}

// A product that another category has brings no format beyond the limit: it shares those that it has.
bool BrochureDrinkListViewController::addProduct(Beverage product, Int category) {
    const auto names = context_.draft->selectedProductFormat.find(product.identifier);
    if (names != context_.draft->selectedProductFormat.end() &&
        Int(names->second.size()) >= validations().productFormatNumber)
        product.formatName.reset();
    return context_.draft->setBeverageSelected(true, product, category);
}

bool BrochureDrinkListViewController::mayAddFormat(Int product) {
    const auto names = context_.draft->selectedProductFormat.find(product);
    const Int number = names == context_.draft->selectedProductFormat.end() ? 0 : Int(names->second.size());
    if (number < validations().productFormatNumber)
        return true;
    context_.services.alerts.inform(attention,
                                    QStringLiteral("El número maximo de formatos para un producto es ") +
                                        QString::number(validations().productFormatNumber),
                                    this);
    return false;
}

void BrochureDrinkListViewController::chooseFormat(int row) {
    const DrinkChoice* choice = formats_.choiceAt(row);
    if (!choice || !selectedProduct_)
        return;
    if (choice->taken)
        reveal(choice->name);
    else if (mayAddFormat(selectedProduct_->identifier))
        addFormat(std::string(choice->name), selectedCategory_->identifier, selectedProduct_->identifier);
}

void BrochureDrinkListViewController::addFormat(const std::string& name, Int category, Int product) {
    if (!context_.draft->setBeverageFormatSelected(true, name, product, category))
        return;
    edited();
    reveal(name);
}

// ---- New items

void BrochureDrinkListViewController::askForName(const QString& title, const QString& text, Int limit,
                                                 std::function<void(const std::string&)> taken) {
    askForText(context_.services.alerts, this,
               {.title = title,
                .text = text + QStringLiteral(" (max: %1)").arg(limit),
                .caption = QStringLiteral("Nombre:"),
                .button = QStringLiteral("Crear"),
                .maximumLength = int(limit)},
               [taken = std::move(taken)](const QString& typed) {
                   if (const QString name = typed.trimmed(); !name.isEmpty())
                       taken(name.toStdString());
               });
}

void BrochureDrinkListViewController::addNewCategory() {
    askForName(QStringLiteral("Nueva categoría"),
               QStringLiteral("Introduzca un nombre para la nueva categoría"), validations().categoryName,
               [this](const std::string& name) { createCategory(name); });
}

void BrochureDrinkListViewController::createCategory(const std::string& name) {
    const Int category = context_.draft->addBeverageCategory(name);
    selectedCategory_ = context_.draft->beverageInfo(category, 0, true, std::nullopt);
    selectedProduct_.reset();
    categories_.setFilterText({});
    products_.setFilterText({});
    edited();
    reveal({});
    setPage(Page::Products);
}

void BrochureDrinkListViewController::addNewProduct() {
    if (!selectedCategory_) {
        context_.services.alerts.inform(attention, QStringLiteral("Seleccione primero una categoría."), this);
        return;
    }
    askForName(QStringLiteral("Nuevo producto"),
               QStringLiteral("Introduzca un nombre para el nuevo producto"), validations().productName,
               [this, category = selectedCategory_->identifier](const std::string& name) {
                   createProduct(name, category);
               });
}

void BrochureDrinkListViewController::createProduct(const std::string& name, Int category) {
    const auto product = context_.draft->addBeverageProduct(name, category);
    if (!product) {
        tellRefusal();
        return;
    }
    // As with a product of the catalogue that has no format, its price needs a place.
    context_.draft->setBeverageFormatSelected(true, "", *product, category);
    selectedProduct_ = context_.draft->beverageInfo(category, *product, false, std::nullopt);
    products_.setFilterText({});
    formats_.setFilterText({});
    edited();
    reveal({});
    setPage(Page::Formats);
}

void BrochureDrinkListViewController::addNewFormat() {
    if (!selectedProduct_) {
        context_.services.alerts.inform(attention, QStringLiteral("Seleccione primero un producto."), this);
        return;
    }
    const Int product = selectedProduct_->identifier;
    if (!mayAddFormat(product))
        return;
    askForName(QStringLiteral("Nuevo formato"), QStringLiteral("Introduzca un nombre para el nuevo formato"),
               validations().productFormatLength,
               [this, category = selectedCategory_->identifier, product](const std::string& name) {
                   createFormat(name, category, product);
               });
}

// A name that is there already, in whatever case, is selected and not doubled.
void BrochureDrinkListViewController::createFormat(const std::string& name, Int category, Int product) {
    const QString wanted = fromUtf8(name);
    const auto& all = formats_.all();
    auto same = std::ranges::find(all, name, &DrinkChoice::name);
    if (same == all.end())
        same = std::ranges::find_if(all, [&wanted](const DrinkChoice& each) {
            return fromUtf8(each.name).compare(wanted, Qt::CaseInsensitive) == 0;
        });
    const bool known = same != all.end();
    const bool taken = known && same->taken;
    const std::string chosen = known ? same->name : name;
    formats_.setFilterText({});
    if (taken)
        reveal(chosen);
    else
        addFormat(chosen, category, product);
}

} // namespace kavor
