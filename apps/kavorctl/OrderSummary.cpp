#include "OrderInputs.h"
#include "base/AppFormatter.h"
#include "session/AppSingleton.h"

#include <algorithm>
#include <sstream>

namespace kavor::ctl {

namespace {

using Menu = SaveBrochuresOrder::Menu;

template <class Record>
std::string nameOf(const Record* record) {
    return record != nullptr ? record->name : "(fuera de catálogo)";
}

std::string priceName(const Catalogue& catalogue, Int type) {
    const auto* price = catalogue.price(static_cast<PriceType>(type));
    return price != nullptr ? price->name : "Principal";
}

void line(std::ostream& out, const std::string& caption, const std::string& value) {
    if (!value.empty())
        out << caption << ": " << value << '\n';
}

void writeCustomer(std::ostream& out, const Customer& customer) {
    line(out, "Local", customer.name.empty() ? "(Sin especificar)" : customer.name);
    line(out, "Código cliente", customer.tevo.value_or(""));
    line(out, "Contacto", customer.contact.value_or(""));
    line(out, "Email", customer.email.value_or(""));
    line(out, "Teléfono", customer.telephone.value_or(""));
    const std::string place = customer.placeLocality.value_or("");
    const std::string code = customer.placePostalCode.value_or("");
    line(out, "Población", code.empty() || place.empty() ? code + place : code + " " + place);
}

// One brand is highlighted: the last that holds the format.
const Menu::BeerBrand* highlightedBrand(const Menu& menu) {
    const Menu::BeerBrand* last = nullptr;
    for (const auto& brand : menu.beerBrands) {
        const auto holds = [&](const auto& beer) {
            return beer.id && beer.id == menu.highlightedProductIdentifier;
        };
        if (std::ranges::any_of(brand.beers, holds))
            last = &brand;
    }
    return last;
}

void writeBrand(std::ostream& out, const Catalogue& catalogue, const Menu::BeerBrand& brand,
                std::optional<Int> highlighted) {
    const Product* product = brand.brand ? catalogue.product(*brand.brand) : nullptr;
    out << "- " << (product != nullptr ? product->name : brand.name.value_or("(fuera de catálogo)")) << '\n';
    for (const auto& beer : brand.beers) {
        const auto* format = brand.brand && beer.id ? catalogue.format(*brand.brand, *beer.id) : nullptr;
        out << "    " << (format != nullptr ? format->icon : "(fuera de catálogo)");
        if (beer.volume)
            out << ", " << *beer.volume << " cl";
        for (const auto& price : beer.prices)
            out << ", " << priceName(catalogue, price.id) << " "
                << AppFormatter::shared().currencyFormatter(price.price);
        if (beer.isNew)
            out << ", nuevo";
        if (beer.id && beer.id == highlighted)
            out << ", destacado";
        out << '\n';
    }
}

// One of the catalogue's drinks may stand in a category of the user's own: then any category may know it.
std::string drinkName(const Catalogue& catalogue, const Brochures::Drink* category, Int identifier) {
    const auto nameIn = [&](const Brochures::Drink& drink) -> std::string {
        const auto found = std::ranges::find(drink.products, identifier, &Brochures::Drink::Product::id);
        return found == drink.products.end() ? "" : found->name;
    };
    if (category != nullptr)
        return nameIn(*category);
    if (identifier < 1 || !catalogue.information().brochures)
        return "";
    for (const auto& drink : catalogue.brochures().drinks) {
        if (std::string name = nameIn(drink); !name.empty())
            return name;
    }
    return "";
}

void writeDrinks(std::ostream& out, const Catalogue& catalogue, const Menu::OtherDrinkCategory& category) {
    const auto* drink = category.id ? catalogue.drink(*category.id) : nullptr;
    out << "- " << category.name.value_or(nameOf(drink)) << '\n';
    for (const auto& element : category.elements) {
        std::string name = element.name.value_or("");
        if (name.empty())
            name = drinkName(catalogue, drink, element.id);
        out << "    " << (name.empty() ? "(sin nombre)" : name);
        for (const auto& price : element.prices) {
            out << ", " << price.formatName.value_or("");
            if (price.value)
                out << " " << AppFormatter::shared().currencyFormatter(*price.value);
        }
        out << '\n';
    }
}

} // namespace

std::string summaryOf(const SaveBrochuresOrder& order) {
    const Catalogue& catalogue = AppSingleton::shared().catalogue();
    const Menu& menu = order.menu;
    std::ostringstream out;
    out << label(menu.orderType) << (order.filename ? " \"" + *order.filename + "\"" : "") << '\n';
    if (order.orderIdentifier)
        out << "Pedido: " << *order.orderIdentifier << '\n';
    writeCustomer(out, menu.customer);
    line(out, "Idioma", nameOf(catalogue.language(menu.language1Id)));
    if (menu.language2Id)
        line(out, "Segundo idioma", nameOf(catalogue.language(*menu.language2Id)));
    for (const auto& run : order.orderLines)
        out << "Nº de cartas (" << priceName(catalogue, static_cast<Int>(run.priceIdentifier))
            << "): " << AppFormatter::shared().integerFormatter(run.quantity) << '\n';
    if (menu.style)
        line(out, "Estilo", nameOf(catalogue.style(*menu.style)));
    if (menu.styleDigital)
        line(out, "Estilo online", nameOf(catalogue.style(*menu.styleDigital)));
    if (menu.stylePennant)
        line(out, "Estilo de banderín", nameOf(catalogue.style(*menu.stylePennant)));
    if (menu.orderSheetIdentifier)
        line(out, "Comandero", nameOf(catalogue.orderSheet(*menu.orderSheetIdentifier)));
    if (!menu.beerBrands.empty())
        out << "Marcas:\n";
    const Menu::BeerBrand* const highlighted = highlightedBrand(menu);
    for (const auto& brand : menu.beerBrands)
        writeBrand(out, catalogue, brand,
                   &brand == highlighted ? menu.highlightedProductIdentifier : std::nullopt);
    if (menu.otherDrinks && !menu.otherDrinks->empty()) {
        out << "Otras bebidas:\n";
        for (const auto& category : *menu.otherDrinks)
            writeDrinks(out, catalogue, category);
    }
    return out.str();
}

} // namespace kavor::ctl
