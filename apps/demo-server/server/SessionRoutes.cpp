#include "catalogue/Content.h"
#include "drawing/Scenes.h"
#include "server/Customers.h"
#include "server/DemoServer.h"

#include <QBuffer>
#include <QImage>

#include <httplib.h>

namespace kavor::demo {

namespace {

std::string logoData(const Bar& bar) {
    QImage image(240, 240, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    drawBarLogo(painter, QRectF(0, 0, 240, 240), bar.name, bar.id);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return "data:image/png;base64," + bytes.toBase64().toStdString();
}

} // namespace

void DemoServer::addSessionRoutes() {
    route("POST", "/api/login", Access::open, [this](const Call& call) { return login(call); });
    route("GET", "/api/user", Access::bearer, [this](const Call& call) {
        return Answer::json(
            accounts_.answer(call.account, accounts_.newToken(call.account), catalogue_.notifications()));
    });
    route("GET", "/api/catalogue", Access::bearer, [this](const Call&) {
        Answer answer;
        answer.body = catalogueText_;
        return answer;
    });
    route("GET", "/api/customers", Access::bearer, [this](const Call& call) { return customers(call); });
    route("POST", "/api/places", Access::bearer, [](const Call& call) {
        return Answer::json({{"addresses", addressesFor(call.parameter("direction"))}});
    });
    route("POST", "/api/prices", Access::bearer, [this](const Call& call) { return prices(call); });
}

Answer DemoServer::login(const Call& call) {
    const std::string name = call.parameter("login");
    if (accounts_.isThrottled(name)) {
        return refusal({{"login", {"Demasiados intentos. Espera un minuto y vuelve a probar."}}}, 429);
    }
    const std::optional<Account> account = call.request.has_param("password")
                                               ? accounts_.byPassword(name, call.parameter("password"))
                                               : accounts_.byUserToken(name, call.parameter("token"));
    if (!account) {
        return refusal({{"login", {"El usuario o la contraseña no son correctos."}}});
    }
    return Answer::json(accounts_.answer(*account, accounts_.newToken(*account), catalogue_.notifications()));
}

Answer DemoServer::customers(const Call& call) {
    if (!call.number("application_type_id")) {
        return refusal({{"application_type_id", {"Falta el tipo de pedido."}}});
    }
    Json found = Json::array();
    if (const Bar* bar = barOf(call.parameter("tevo"))) {
        found.push_back(customerRecord(*bar, bar->withLogo ? std::optional(logoData(*bar)) : std::nullopt));
    }
    return Answer::json(found);
}

Answer DemoServer::prices(const Call& call) {
    const Format* format = catalogue_.format(int(call.number("product_id").value_or(0)));
    if (!format) {
        return refusal({{"product_id", {"El formato ya no está en el catálogo."}}});
    }
    return Answer::json(recommendation(catalogue_.brandOfFormat(format->id)->name, format->icon,
                                       format->price.value_or(format->minimalPrice * 2),
                                       call.parameter("placePostalCode"), call.parameter("placeLocality")));
}

} // namespace kavor::demo
