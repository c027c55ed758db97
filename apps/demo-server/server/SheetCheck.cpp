#include "catalogue/Content.h"
#include "server/OrderCheck.h"

#include <QString>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <chrono>
#include <optional>

namespace kavor::demo {

namespace {

/// What a reader sees as characters.
int lengthOf(const std::string& utf8) {
    const QString text = QString::fromStdString(utf8);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    int count = 0;
    while (finder.toNextBoundary() >= 0) {
        ++count;
    }
    return count;
}

void checkLength(const Json& order, const char* key, int most, Faults& faults) {
    if (lengthOf(order.value(key, "")) > most) {
        faults[key].push_back("El texto es demasiado largo: caben " + std::to_string(most) + " caracteres.");
    }
}

/// A date of the form "yyyy-MM-dd".
std::optional<std::chrono::sys_days> dateOf(const std::string& text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') {
        return std::nullopt;
    }
    int parts[3] = {0, 0, 0}, part = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        if (i == 4 || i == 7) {
            ++part;
        } else if (text[i] < '0' || text[i] > '9') {
            return std::nullopt;
        } else {
            parts[part] = parts[part] * 10 + text[i] - '0';
        }
    }
    const std::chrono::year_month_day date{std::chrono::year(parts[0]),
                                           std::chrono::month(unsigned(parts[1])),
                                           std::chrono::day(unsigned(parts[2]))};
    return date.ok() ? std::optional(std::chrono::sys_days(date)) : std::nullopt;
}

/// An empty date leaves that end open.
void checkDates(const Json& order, Faults& faults) {
    std::optional<std::chrono::sys_days> dates[2];
    const char* keys[2] = {"date_from", "date_to"};
    for (size_t i = 0; i < 2; ++i) {
        const std::string date = order[keys[i]].get<std::string>();
        dates[i] = dateOf(date);
        if (!date.empty() && !dates[i]) {
            faults[keys[i]].push_back("La fecha no es válida.");
        }
    }
    if (dates[0] && dates[1] && *dates[1] <= *dates[0]) {
        faults["date_to"].push_back("La vigencia termina antes de empezar.");
    }
}

void checkProduct(const Json& module, const std::string& path, const char* number, const Catalogue& catalogue,
                  Faults& faults) {
    const std::string product = "product" + std::string(number) + "_id";
    const std::string box = "product" + std::string(number) + "_box";
    const Format* format = catalogue.format(module[product].get<int>());
    if (!format || !format->onSellingSheet) {
        faults[path + product].push_back("El producto ya no está en el catálogo.");
    }
    if (module.value(box, 0) < 1) {
        faults[path + box].push_back("Pide al menos una caja.");
    }
}

void checkModules(const Json& items, const Catalogue& catalogue, Faults& faults) {
    for (size_t i = 0; i < items.size(); ++i) {
        const std::string path = "items[" + std::to_string(i) + "].";
        checkProduct(items[i], path, "1", catalogue, faults);
        if (items[i].contains("product2_id")) {
            checkProduct(items[i], path, "2", catalogue, faults);
        }
        if (items[i]["price"].get<double>() <= 0) {
            faults[path + "price"].push_back("El precio no es válido.");
        }
    }
}

} // namespace

Faults sellingSheetContentFaults(const Json& order, const Catalogue& catalogue) {
    Faults faults;
    const auto styles = sheetStyles();
    if (std::ranges::find(styles, order["style_id"].get<int>(), &SheetStyle::id) == styles.end()) {
        faults["style_id"].push_back("El estilo ya no está en el catálogo.");
    }
    if (order["title"].get<std::string>().empty()) {
        faults["title"].push_back("El título está vacío.");
    }
    checkLength(order, "title", sheetTitleLength, faults);
    checkLength(order, "sub_title", sheetSubtitleLength, faults);
    checkLength(order, "free_text", sheetFreeTextLength, faults);
    checkDates(order, faults);
    for (const char* key : {"email_to_send1", "email_to_send2", "email_to_send3"}) {
        const std::string address = order.value(key, "");
        if (!address.empty() && !isEmail(address)) {
            faults[key].push_back("«" + address + "» no es una dirección de correo.");
        }
    }
    checkModules(order["items"], catalogue, faults);
    return faults;
}

} // namespace kavor::demo
