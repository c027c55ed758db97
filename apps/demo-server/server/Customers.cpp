#include "server/Customers.h"

#include "catalogue/Brands.h"
#include "catalogue/Dice.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstdio>

namespace kavor::demo {

namespace {

struct Town {
    const char* name;
    const char* province;
    const char* region;
    const char* postalCode;
    int provinceId;
    double latitude, longitude;
};
constexpr std::array towns = {
    Town{"Zamora", "Zamora", "Castilla y León", "49001", 49, 41.5034, -5.7446},
    Town{"Cuenca", "Cuenca", "Castilla-La Mancha", "16001", 16, 40.0704, -2.1374},
    Town{"Almería", "Almería", "Andalucía", "04001", 4, 36.8340, -2.4637},
    Town{"Pontevedra", "Pontevedra", "Galicia", "36001", 36, 42.4310, -8.6444},
    Town{"Huesca", "Huesca", "Aragón", "22001", 22, 42.1362, -0.4087},
    Town{"Reus", "Tarragona", "Cataluña", "43201", 43, 41.1549, 1.1087},
    Town{"Ávila", "Ávila", "Castilla y León", "05001", 5, 40.6566, -4.6818},
    Town{"Cáceres", "Cáceres", "Extremadura", "10003", 10, 39.4753, -6.3724},
    Town{"Soria", "Soria", "Castilla y León", "42001", 42, 41.7665, -2.4790},
    Town{"Gandía", "Valencia", "Comunidad Valenciana", "46701", 46, 38.9680, -0.1845},
    Town{"Torrelavega", "Cantabria", "Cantabria", "39300", 39, 43.3494, -4.0479},
    Town{"Éibar", "Guipúzcoa", "País Vasco", "20600", 20, 43.1849, -2.4716},
};
constexpr std::array barNames = {
    "Bar La Esquina del Boj",
    "Taberna Media Luna Vieja",
    "Café El Trasiego",
    "Cervecería Tres Tejas",
    "Mesón del Alcaraván",
    "Bar Puerta Chica",
    "La Barra de Hortensia",
    "Taberna El Candil Torcido",
    "Bar Los Soportales de Abajo",
    "Café Plaza del Trigal",
    "Bodegón La Sarga",
    "Cervecería Patio Hondo",
    "Bar El Quiosco Verde",
    "Taberna Ribera del Molino",
    "La Tasca de Evelio",
    "Café Nube Baja",
    "Bar Cuatro Esquinas y Media",
    "Mesón Las Alforjas",
    "Cervecería El Tonel Roto",
    "Bar Marea Muerta",
    "La Parra de Casilda",
    "Taberna Hierbaluisa",
    "Bar El Tranvía Amarillo",
    "Café Sombra y Sol",
    "Bodega Los Tres Jarros",
    "Bar Entrecalles",
    "Cervecería La Espuela",
    "Mesón del Ciruelo",
    "Taberna Palo Largo",
    "Bar La Peonza",
    "Café Correos Viejo",
    "La Cantina del Puente Seco",
    "Bar Monte Chico",
    "Taberna Dos Hermanas Gil",
    "Cervecería Alta Mar Adentro",
    "Bar El Último Farol",
};
constexpr std::array contacts = {"Hortensia Valbuey", "Evelio Carrascón", "Casilda Nogareda",
                                 "Tadeo Montelongo",  "Amparo Ruidíaz",   "Bruno Salcedín",
                                 "Nieves Tabarés",    "Iker Lasagaza",    "Remedios Calzón",
                                 "Xoán Pereiriña",    "Laia Montfullà",   "Gaspar Zurdillo"};

std::string handleOf(const std::string& name) {
    std::string handle;
    for (const char letter : sanitised(name)) {
        if (std::isalnum(static_cast<unsigned char>(letter))) {
            handle += letter;
        }
    }
    return handle;
}

std::string digits(Dice& dice, int number) {
    std::string text;
    for (int i = 0; i < number; ++i) {
        text += char('0' + dice.below(10));
    }
    return text;
}

Bar makeBar(int index) {
    Dice dice{std::uint64_t(index) + 4242};
    const Town& town = towns[size_t(index) % towns.size()];
    Bar bar;
    bar.id = 300 + index + 1;
    std::array<char, 16> code{};
    // Some regions number their bars without a letter.
    std::snprintf(code.data(), code.size(), index % 5 == 3 ? "%d" : "B%04d",
                  index % 5 == 3 ? 104'000 + index : index + 1);
    bar.code = code.data();
    bar.name = barNames[size_t(index)];
    const std::string handle = handleOf(bar.name);
    bar.contact = contacts[size_t(index * 5) % contacts.size()];
    bar.email = handle.substr(0, 16) + "@bares.example";
    bar.telephone = "600" + digits(dice, 6);
    bar.localPhone = "9" + digits(dice, 8);
    bar.postalCode = town.postalCode;
    bar.town = town.name;
    bar.townId = 1000 + index % int(towns.size());
    bar.province = town.province;
    bar.provinceId = town.provinceId;
    if (index % 3 != 2) {
        bar.url = "www." + handle.substr(0, 20) + ".example";
        bar.instagram = "@" + handle.substr(0, 18);
    }
    if (index % 4 == 0) {
        bar.facebook = "/" + handle.substr(0, 24);
        bar.twitter = "@" + handle.substr(0, 14);
    }
    if (index % 2 == 0) {
        bar.freeTexts = {"Cocina abierta hasta medianoche", "Terraza climatizada todo el año"};
    }
    bar.withLogo = index % 3 == 0;
    if (index % 3 != 1) {
        constexpr std::array beerPlaces = {1, 2, 4, 6, 8, 9}; // of each ten brands
        for (const int ten : {0, 10, 30}) {
            bar.priorityBrands.push_back(ten + beerPlaces[size_t(dice.below(int(beerPlaces.size())))]);
        }
    }
    return bar;
}

std::string money(double value) {
    std::array<char, 24> text{};
    std::snprintf(text.data(), text.size(), "%.2f €", value);
    std::string shown = text.data();
    std::ranges::replace(shown, '.', ',');
    return shown;
}

Json optionalText(const std::string& text) {
    return text.empty() ? Json(nullptr) : Json(text);
}

// The town that an address names, by its postal code or its name; none where it names no town.
const Town* townIn(const std::string& direction) {
    const auto* found = std::ranges::find_if(towns, [&](const Town& town) {
        return direction.find(town.postalCode) != std::string::npos ||
               direction.find(town.name) != std::string::npos;
    });
    return found == towns.end() ? nullptr : &*found;
}

// What stands before the first comma or number: the street, unless it is a town.
std::string streetIn(const std::string& direction) {
    std::string street = direction.substr(0, direction.find_first_of(",0123456789"));
    street.erase(street.find_last_not_of(' ') + 1);
    return townIn(street) ? std::string() : street;
}

// The first number that is no postal code.
std::string houseNumberIn(const std::string& direction) {
    const char* const digits = "0123456789";
    for (auto at = direction.find_first_of(digits); at != std::string::npos;) {
        const auto end = std::min(direction.find_first_not_of(digits, at), direction.size());
        if (end - at < 5) {
            return direction.substr(at, end - at);
        }
        at = direction.find_first_of(digits, end);
    }
    return {};
}

} // namespace

const std::vector<Bar>& bars() {
    static const std::vector<Bar> all = [] {
        std::vector<Bar> made;
        made.reserve(barNames.size());
        for (int i = 0; i < int(barNames.size()); ++i) {
            made.push_back(makeBar(i));
        }
        return made;
    }();
    return all;
}

const Bar* barOf(const std::string& code) {
    std::string wanted;
    for (const char letter : code) {
        if (letter != ' ') {
            wanted += char(std::toupper(static_cast<unsigned char>(letter)));
        }
    }
    const auto found = std::ranges::find(bars(), wanted, &Bar::code);
    return found == bars().end() ? nullptr : &*found;
}

Json customerRecord(const Bar& bar, const std::optional<std::string>& logo) {
    Json record = {{"id", bar.id},
                   {"name", bar.name},
                   {"email", bar.email},
                   {"telephone", bar.telephone},
                   {"contact", bar.contact},
                   {"local_phone", bar.localPhone},
                   {"url", optionalText(bar.url)},
                   {"facebook", optionalText(bar.facebook)},
                   {"twitter", optionalText(bar.twitter)},
                   {"instagram", optionalText(bar.instagram)}};
    for (size_t i = 0; i < bar.freeTexts.size(); ++i) {
        record["free_text_" + std::to_string(i + 1)] = bar.freeTexts[i];
    }
    record["cod_tevo"] = bar.code;
    record["placePostalCode"] = bar.postalCode;
    record["placeLocality"] = bar.town;
    record["placeLocalityId"] = bar.townId;
    record["placeProvinceId"] = bar.provinceId;
    record["placeProvinceName"] = bar.province;
    record["image_logo"] = orNull(logo);
    if (!bar.priorityBrands.empty()) {
        record["brands"] = bar.priorityBrands;
    }
    return record;
}

std::int64_t customerId(Database& database, const std::string& code, const std::string& name) {
    if (const Bar* bar = barOf(code)) {
        return bar->id;
    }
    const auto rows = database.query("SELECT id FROM customers WHERE tevo = ? AND name = ?", {code, name});
    if (!rows.empty()) {
        return rows.front().integer(0);
    }
    const auto last = database.query("SELECT COALESCE(MAX(id), 900) FROM customers");
    return database.run("INSERT INTO customers (id, tevo, name) VALUES (?, ?, ?)",
                        {last.front().integer(0) + 1, code, name});
}

Json addressesFor(const std::string& direction) {
    Json addresses = Json::array();
    if (direction.empty()) {
        return addresses;
    }
    const std::string number = houseNumberIn(direction);
    const std::string street = streetIn(direction);
    Dice dice{markOf(direction)};
    const auto add = [&](const Town& town) {
        std::string address = street;
        address.append(number.empty() ? "" : " ").append(number);
        address.append(address.empty() ? "" : ", ").append(town.postalCode).append(" ").append(town.name);
        address.append(", ").append(town.province);
        addresses.push_back({{"full_address", address},
                             {"number", number.empty() ? Json(nullptr) : Json(number)},
                             {"address", street},
                             {"city", town.name},
                             {"province", town.province},
                             {"comunidad_autonoma", town.region},
                             {"country_code", "ES"},
                             {"country", "España"},
                             {"zip", town.postalCode},
                             {"latitude", std::to_string(town.latitude + dice.fraction() / 100)},
                             {"longitude", std::to_string(town.longitude + dice.fraction() / 100)}});
    };
    const Town* named = townIn(direction);
    if (named) {
        add(*named);
    }
    const int first = dice.below(int(towns.size()));
    for (int i = 0; i < (named ? 1 : 3); ++i) {
        add(towns[size_t(first + i * 5) % towns.size()]);
    }
    // A whole province: neither a postal code nor a town.
    const Town& town = named ? *named : towns[size_t(first)];
    addresses.push_back({{"full_address", "Provincia de " + std::string(town.province) + ", España"},
                         {"province", town.province},
                         {"comunidad_autonoma", town.region},
                         {"country_code", "ES"},
                         {"country", "España"},
                         {"zip", nullptr},
                         {"latitude", std::to_string(town.latitude)},
                         {"longitude", std::to_string(town.longitude)}});
    return addresses;
}

Json recommendation(const std::string& brand, const std::string& format, double reference,
                    const std::string& postalCode, const std::string& locality) {
    Dice dice{markOf(brand + format + postalCode + locality)};
    Json table = Json::array();
    int menus = 4 + dice.below(9);
    for (int area = 0; area < 5; ++area) {
        const double usual = reference * (0.92 + 0.2 * dice.fraction());
        // Few menus around a place: the extremes are not told.
        const bool few = area == 0 && menus < 7;
        Json row = Json::array();
        row.push_back(few ? Json(nullptr) : Json(money(usual * 0.8)));
        row.push_back(money(usual));
        row.push_back(money(usual * 1.04));
        row.push_back(few ? Json(nullptr) : Json(money(usual * 1.35)));
        row.push_back(std::to_string(menus));
        table.push_back(std::move(row));
        menus = menus * 4 + dice.below(11);
    }
    return {{"tabla", std::move(table)},
            {"columnas",
             {"Código postal " + postalCode, locality.empty() ? "Localidad" : locality, "Provincia",
              "Comunidad", "España"}},
            {"filas", {"Precios", "Mínimo", "Más habitual", "Medio", "Máximo"}},
            {"brand_name", brand},
            {"product_name", format}};
}

} // namespace kavor::demo
