#include "documents/OrderPage.h"

#include "catalogue/Content.h"
#include "documents/MenuPdf.h"
#include "server/OrderRecords.h"
#include "server/Time.h"

#include <array>
#include <cstdio>

namespace kavor::demo {

namespace {

constexpr const char* sheet =
    "body{margin:0;background:#FAF6EE;color:#20262B;font:17px/1.5 Cabin,Roboto,sans-serif}"
    "header{background:#123F31;color:#FAF6EE;padding:22px 20px;border-bottom:6px solid #E0A126}"
    "header h1{margin:0;font-size:26px}header p{margin:4px 0 0;opacity:.85}"
    "main{max-width:640px;margin:0 auto;padding:20px}"
    ".card{background:#fff;border:1px solid #E6DFD1;border-radius:12px;padding:16px 18px;margin:0 0 16px}"
    "ol.road{list-style:none;display:flex;padding:0;margin:8px 0 0}"
    "ol.road li{flex:1;text-align:center;font-size:14px;color:#6B7280;border-top:5px solid "
    "#E6DFD1;padding-top:8px}"
    "ol.road li.done{border-color:#E0A126;color:#123F31;font-weight:bold}"
    "a.button{display:inline-block;background:#123F31;color:#fff;padding:13px 22px;border-radius:12px;"
    "text-decoration:none}table{width:100%;border-collapse:collapse}td{padding:5px 0;border-bottom:1px solid "
    "#E6DFD1}"
    "td.price{text-align:right;white-space:nowrap;font-weight:bold}h2{font-size:20px;margin:0 0 "
    "8px;color:#123F31}"
    "small{color:#6B7280}";

std::string pageOf(const std::string& title, const std::string& subtitle, const std::string& content) {
    return "<!DOCTYPE html><html lang=\"es\"><head><meta charset=\"utf-8\"><meta name=\"viewport\" "
           "content=\"width=device-width,initial-scale=1\"><title>" +
           escaped(title) + "</title><style>" + sheet + "</style></head><body><header><h1>" + escaped(title) +
           "</h1><p>" + escaped(subtitle) + "</p></header><main>" + content + "</main></body></html>";
}

std::string road(OrderState state) {
    constexpr std::array stages = {OrderState::withoutConfirm, OrderState::confirmed, OrderState::inProcess,
                                   OrderState::sent, OrderState::delivered};
    std::string list = "<ol class=\"road\">";
    bool reached = false;
    for (const OrderState stage : stages) {
        list += reached ? "<li>" : "<li class=\"done\">";
        list += stateName(stage) + "</li>";
        reached = reached || stage == state;
    }
    return list + "</ol>";
}

std::string money(double price) {
    std::array<char, 24> words{};
    std::snprintf(words.data(), words.size(), "%.2f", price);
    std::string shown = words.data();
    shown[shown.find('.')] = ',';
    return shown + "&nbsp;€";
}

std::string kindTitle(const Order& order) {
    if (order.kind == "textile") {
        return "Pedido textil";
    }
    if (order.kind == "promotion") {
        return "Cartelería";
    }
    if (order.kind == "activation") {
        return "Activación";
    }
    return kindName(order.type);
}

} // namespace

std::string escaped(const std::string& text) {
    std::string safe;
    for (const char letter : text) {
        switch (letter) {
        case '&':
            safe += "&amp;";
            break;
        case '<':
            safe += "&lt;";
            break;
        case '>':
            safe += "&gt;";
            break;
        case '"':
            safe += "&quot;";
            break;
        default:
            safe += letter;
        }
    }
    return safe;
}

std::string orderHtml(const Order& order, OrderState state, const Catalogue& catalogue) {
    std::string content = "<div class=\"card\"><h2>" + escaped(stateName(state)) + "</h2>";
    if (state == OrderState::incidence || state == OrderState::canceled) {
        content += "<p>" + escaped(order.note.empty() ? "Estamos revisando tu pedido." : order.note) + "</p>";
    } else {
        content += road(state);
    }
    content += "</div><div class=\"card\"><table><tr><td>Pedido</td><td class=\"price\">" +
               std::to_string(order.id) + "</td></tr><tr><td>Fecha</td><td class=\"price\">" +
               wireDate(order.created) + "</td></tr>";
    if (!order.tevo.empty()) {
        content += "<tr><td>Código cliente</td><td class=\"price\">" + escaped(order.tevo) + "</td></tr>";
    }
    if (order.kind == "brochure") {
        for (const Json& line : order.body["order_lines"]) {
            content += std::string("<tr><td>Unidades, precio de ") + priceName(line["price"].get<int>()) +
                       "</td><td class=\"price\">" + line["quantity"].dump() + "</td></tr>";
        }
    }
    content += "</table></div><p><a class=\"button\" href=\"" + orderPdf(order, catalogue.baseUrl()) +
               "\">Ver el PDF</a></p>";
    return pageOf(kindTitle(order), order.pdv.empty() ? "Sin especificar" : order.pdv, content);
}

std::string menuHtml(const Order& order, const Catalogue& catalogue) {
    const Json& menu = order.body["menu"];
    const bool withoutPrices = menu.value("without_price_beer", false);
    std::string content;
    for (const Json& item : menu["items"]) {
        const ShownBrand brand = shownBrand(item, catalogue);
        content += "<div class=\"card\"><h2>" + escaped(brand.name) + " <small>" + escaped(brand.style) +
                   "</small></h2><table>";
        for (const Json& sold : item["sub_items"]) {
            content += "<tr><td>" + escaped(soldFormatName(sold, catalogue)) + "</td><td class=\"price\">";
            for (const Json& price : sold["sub_item_prices"]) {
                if (!withoutPrices && price["price_type"] == 1) {
                    content += money(price["price"].get<double>());
                }
            }
            content += "</td></tr>";
        }
        content += "</table></div>";
    }
    return pageOf(kindName(order.type), order.pdv, content);
}

std::string plainHtml(const std::string& title, const std::vector<std::string>& sentences) {
    std::string content = "<div class=\"card\">";
    for (const std::string& sentence : sentences) {
        content += "<p>" + sentence + "</p>";
    }
    return pageOf(title, "Programa Kavor, servidor de demostración", content + "</div>");
}

} // namespace kavor::demo
