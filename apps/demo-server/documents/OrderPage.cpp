#include "documents/OrderPage.h"

#include "catalogue/Content.h"
#include "catalogue/Posters.h"
#include "documents/ActivationPdf.h"
#include "documents/MenuPdf.h"
#include "documents/Page.h"
#include "server/OrderRecords.h"
#include "server/Time.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace kavor::demo {

namespace {

constexpr std::array stages = {OrderState::withoutConfirm, OrderState::confirmed, OrderState::inProcess,
                               OrderState::sent, OrderState::delivered};

std::string road(OrderState state) {
    std::string list = "<ol class=\"road\">";
    bool reached = false;
    for (const OrderState stage : stages) {
        list += reached ? "<li>" : "<li class=\"done\">";
        list += stateName(stage) + "</li>";
        reached = reached || stage == state;
    }
    return list + "</ol>";
}

std::string turn(const char* who, std::int64_t when, const std::string& words) {
    const std::string kind = std::string(who) == "Tú" ? "turn" : "turn programme";
    return "<div class=\"" + kind + "\"><small>" + who + ", " + wireDate(when) + "</small><p>" +
           escaped(words) + "</p></div>";
}

std::string qrWords(const Json& demand, const Catalogue& catalogue) {
    const Brand* brand = catalogue.brand(demand["brand_qr_id"].get<int>() - qrIdOf(0));
    std::string words = "Material QR de " + (brand ? brand->name : std::string("una marca retirada")) + ":";
    if (demand["type"] == 2) {
        words += " " + demand["quantity_qr_taco"].dump() + " tacos de madera.";
    } else {
        words += " " + demand["quantity_qr"].dump() + " vinilos de mesa y " +
                 demand["quantity_qr_circular"].dump() + " de puerta.";
    }
    const std::string comment = demand["comment"].get<std::string>();
    return comment.empty() ? words : words + "\n" + comment;
}

/// What the user wrote about the order, each with the programme's answer once that has come.
std::string conversation(const Order& order, Orders& orders, const Catalogue& catalogue) {
    std::string turns;
    for (const OrderMessage& message : orders.messages(order)) {
        const bool claim = message.kind == "claim";
        turns += turn("Tú", message.created,
                      claim ? message.body["comment"].get<std::string>() : qrWords(message.body, catalogue));
        const std::int64_t answered = orders.answeredAt(message);
        if (answered > now()) {
            turns += "<p><small>Pendiente de respuesta.</small></p>";
        } else {
            turns +=
                turn("Programa Kavor", answered,
                     claim ? "Gracias por avisar. Lo hemos revisado y el pedido vuelve a estar en marcha."
                           : "Autorizado. Lo imprimimos y lo enviamos al local.");
        }
    }
    return turns.empty() ? turns : "<div class=\"card\"><h2>Conversación</h2>" + turns + "</div>";
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

std::string orderHtml(const Order& order, Orders& orders, const Catalogue& catalogue) {
    const OrderState state = orders.stateOf(order);
    const std::string note = orders.noteOf(order);
    std::string content = "<div class=\"card\"><h2>" + escaped(stateName(state)) + "</h2>";
    if (std::ranges::find(stages, state) != stages.end()) {
        content += road(state) + (note.empty() ? "" : "<p>" + escaped(note) + "</p>");
    } else {
        content += "<p>" + escaped(note.empty() ? "Estamos revisando tu pedido." : note) + "</p>";
    }
    content += "</div><div class=\"card\"><table><tr><td>Pedido</td><td class=\"price\">" +
               std::to_string(order.id) + "</td></tr><tr><td>Fecha</td><td class=\"price\">" +
               wireDate(order.created) + "</td></tr>";
    if (!order.tevo.empty()) {
        content += "<tr><td>Código cliente</td><td class=\"price\">" + escaped(order.tevo) + "</td></tr>";
    }
    if (order.kind == "promotion") {
        const Poster* poster = posterOf(order.body["promotion_id"].get<int>());
        content += "<tr><td>Promoción</td><td class=\"price\">" +
                   escaped(poster ? poster->texts.front().title : "Retirada") +
                   "</td></tr><tr><td>Formatos</td><td class=\"price\">" +
                   std::to_string(order.body["supports"].size()) + "</td></tr>";
    }
    if (order.kind == "activation") {
        content += activationHtml(order, orders);
    }
    if (order.kind == "brochure") {
        for (const Json& line : order.body["order_lines"]) {
            content += std::string("<tr><td>Unidades, precio de ") + priceName(line["price"].get<int>()) +
                       "</td><td class=\"price\">" + line["quantity"].dump() + "</td></tr>";
        }
    }
    content += "</table></div>" + conversation(order, orders, catalogue) + "<p><a class=\"button\" href=\"" +
               orderPdf(order, catalogue.baseUrl()) + "\">Ver el PDF</a></p>";
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
