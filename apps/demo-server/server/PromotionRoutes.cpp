#include "documents/AccountPages.h"
#include "server/DemoServer.h"
#include "server/OrderRecords.h"
#include "server/Time.h"

#include <httplib.h>

#include <set>

namespace kavor::demo {

void DemoServer::addPromotionRoutes() {
    route("POST", "/api/promotions", Access::bearerWrite,
          [this](const Call& call) { return sendPromotion(call); });
    // One address for tests and for a browser, which says that it wants a page.
    route("GET", "/demo/mails", Access::open, [this](const Call& call) {
        const bool browser = call.request.get_header_value("Accept").find("text/html") != std::string::npos;
        return browser ? Answer::page(mailsHtml(mails())) : Answer::json(mails());
    });
}

Answer DemoServer::sendPromotion(const Call& call) {
    const Json body = call.json();
    if (const Faults faults = promotionFormFaults(body); !faults.empty()) {
        return refusal(faults);
    }
    if (const Faults faults = promotionContentFaults(body); !faults.empty()) {
        return refusal(faults);
    }
    if (!body["save"].get<bool>()) {
        return Answer::json({{"url", previewUrl("promotion", body)}});
    }
    Order order;
    order.account = call.account.id;
    order.kind = "promotion";
    order.type = 6;
    order.tevo = body["customer"].value("cod_tevo", "");
    order.pdv = body["customer"].value("name", "");
    order.body = body;
    orders_.add(order);
    std::vector<std::string> recipients;
    for (const Json& email : body["emails"]) {
        recipients.push_back(email["email"].get<std::string>());
    }
    const Poster* poster = posterOf(body["promotion_id"].get<int>());
    mail(call.account, order, recipients,
         std::string("Cartelería: ") + poster->texts.front().title +
             (order.pdv.empty() ? "" : " para " + order.pdv));
    return Answer::json({{"url", orderPdf(order, baseUrl_)}, {"order_id", order.id}});
}

void DemoServer::mail(const Account& account, const Order& order, const std::vector<std::string>& recipients,
                      const std::string& subject) {
    for (const std::string& recipient : std::set<std::string>(recipients.begin(), recipients.end())) {
        if (recipient.find_first_not_of(' ') != std::string::npos) {
            database_.run("INSERT INTO mails (account, order_id, created, recipient, subject, url) "
                          "VALUES (?, ?, ?, ?, ?, ?)",
                          {account.id, order.id, now(), recipient, subject, orderPdf(order, baseUrl_)});
        }
    }
}

Json DemoServer::mails() {
    Json list = Json::array();
    for (const SqlRow& row :
         database_.query("SELECT mails.created, accounts.login, recipient, subject, order_id, url FROM mails "
                         "LEFT JOIN accounts ON accounts.id = mails.account ORDER BY mails.id DESC")) {
        list.push_back({{"created", wireDate(row.integer(0))},
                        {"account", row.text(1)},
                        {"to", row.text(2)},
                        {"subject", row.text(3)},
                        {"order_id", row.integer(4)},
                        {"url_pdf", row.text(5)}});
    }
    return list;
}

} // namespace kavor::demo
