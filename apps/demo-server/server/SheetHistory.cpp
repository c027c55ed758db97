#include "server/SheetHistory.h"

#include "server/Time.h"

namespace kavor::demo {

namespace {

constexpr std::int64_t hour = 3600, day = 24 * hour; ///< seconds

/// "yyyy-MM-dd", so many days from today on.
std::string dayFromNow(int days) {
    const std::string date = wireDate(now() + days * day); // "dd-MM-yyyy ..."
    return date.substr(6, 4) + "-" + date.substr(3, 2) + "-" + date.substr(0, 2);
}

/// The first formats that sheets offer, each of another brand.
std::vector<int> offered(const Catalogue& catalogue) {
    std::vector<int> formats;
    for (const Brand& brand : catalogue.brands()) {
        for (const Format& format : brand.formats) {
            if (format.onSellingSheet && format.isBottle) {
                formats.push_back(format.id);
                break;
            }
        }
    }
    return formats;
}

/// Modules of one product, every second one with another product beside it.
Json modules(const std::vector<int>& formats, size_t first, int count) {
    Json items = Json::array();
    for (int i = 0; i < count && !formats.empty(); ++i) {
        const size_t place = first + size_t(i) * 2;
        Json item = {{"id", i + 1},           {"code_promotion", "HV-" + std::to_string(100 + i)},
                     {"position", i},         {"product1_id", formats[place % formats.size()]},
                     {"product1_box", 2 + i}, {"price", 34.9 + 12 * i}};
        if (i % 2 == 1) {
            item["product2_id"] = formats[(place + 1) % formats.size()];
            item["product2_box"] = 1;
        }
        items.push_back(std::move(item));
    }
    return items;
}

Order sheet(std::int64_t account, int daysAgo, Json body) {
    Order order;
    order.account = account;
    order.kind = "sheet";
    order.type = 7;
    order.created = startOfDay(now() - daysAgo * day) + 11 * hour;
    order.filename = body["name_order"].get<std::string>();
    order.seeded = true;
    order.body = std::move(body);
    return order;
}

Json bodyOf(const char* name, const char* title, int style, int from, int to) {
    return {{"id", 0},
            {"save", true},
            {"token", ""},
            {"created_at", ""},
            {"style_id", style},
            {"name_order", name},
            {"title", title},
            {"taxes_included", true},
            {"date_from", dayFromNow(from)},
            {"date_to", dayFromNow(to)},
            {"include_logo_nrv", true},
            {"show_one_module_per_page", false},
            {"email_to_send1", "barra@kavor.example"},
            {"email_to_send2", ""},
            {"email_to_send3", ""}};
}

} // namespace

std::vector<Order> pastSheets(const Catalogue& catalogue, std::int64_t account) {
    const auto formats = offered(catalogue);
    Json winter = bodyOf("Barra de invierno", "Invierno en la barra", 3, -150, -60);
    winter["sub_title"] = "Para noches largas";
    winter["show_one_module_per_page"] = true;
    winter["items"] = modules(formats, 3, 2);
    Json feast = bodyOf("Fiestas del barrio", "¡Fiestas!", 4, -10, 20);
    feast["items"] = modules(formats, 1, 1);
    Json summer = bodyOf("Terraza de verano", "Verano en la terraza", 2, -20, 45);
    summer["sub_title"] = "Botellas frías, precios templados";
    summer["free_text"] = "Hasta fin de existencias. Pregunta a tu comercial.";
    summer["distribution_logo_url"] = catalogue.baseUrl() + "/logos/distribuidora.png";
    summer["items"] = modules(formats, 0, 3);
    std::vector<Order> sheets{sheet(account, 152, std::move(winter)), sheet(account, 12, std::move(feast)),
                              sheet(account, 21, std::move(summer))};
    sheets[1].linked = false;
    return sheets;
}

} // namespace kavor::demo
