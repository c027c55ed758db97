#include "OperationTable.h"

#include "account/UserProfile.h"
#include "activations/ActivationOrder.h"
#include "base/json/Json.h"
#include "brochures/engine/PriceRecommendationResponse.h"
#include "brochures/engine/RetrieveBrochureOrderListResponse.h"
#include "brochures/engine/SaveBrochuresOrder.h"
#include "catalogue/Catalogue.h"
#include "documents/Answers.h"
#include "network/records/ErrorRecords.h"
#include "orders/OrderList.h"
#include "promotions/PromotionOrder.h"
#include "sellingsheets/SellingSheetOrder.h"
#include "session/LoginResult.h"
#include "textile/SaveTextileOrder.h"

#include <algorithm>
#include <iterator>

namespace kavor {

namespace {

template <class Response>
QByteArray encoded() {
    return QByteArray::fromStdString(json::encode(Response()).value());
}

SaveBrochuresOrder brochure() {
    SaveBrochuresOrder order;
    order.filename = "Bar Ñ & Cía";
    return order;
}

using NM = NetworkManager;
using Cases = std::vector<OperationCase>;
using Start = std::function<void(NM&, Outcome&)>;

OperationCase get(const QByteArray& target, const QByteArray& answer, const Start& start) {
    return {"GET", target, "", answer, start};
}

// Asks only, but by POST: its parameters stand in the target or in a form.
OperationCase ask(const QByteArray& target, const QByteArray& answer, const Start& start,
                  const QByteArray& form = {}) {
    return {"POST", target, form, answer, start};
}

// Changes something at the server; with pieces of what its JSON body holds.
OperationCase change(const QByteArray& target, const QByteArray& answer, const Start& start,
                     const std::vector<QByteArray>& bodyHas = {}, const QByteArray& method = "POST") {
    return {method, target, "", answer, start, true, bodyHas};
}

OperationCase takingAnyAnswer(OperationCase each) {
    each.takesAnyDocument = true;
    return each;
}

const QByteArray message = R"({"msg": "hecho"})";

Cases sessionCases() {
    return {
        ask(
            "/loginURL", goodLogin,
            [](NM& m, Outcome& o) {
                m.login({QStringLiteral("ana+1@bar.es"), QStringLiteral("a&b ñ=%"), {}},
                        o.completion<LoginResult>());
            },
            "login=ana%2B1%40bar.es&password=a%26b%20%C3%B1%3D%25"),
        get("/userInformation", goodLogin,
            [](NM& m, Outcome& o) { m.userInformation(o.completion<LoginResult>()); }),
        get("/appInformationURL", encoded<ApplicationInformation>(),
            [](NM& m, Outcome& o) { m.appInformation(o.completion<std::shared_ptr<const Catalogue>>()); }),
        get("/profileInformationURL", encoded<UserProfile>(),
            [](NM& m, Outcome& o) { m.profileInformation(o.completion<UserProfile>()); }),
        change("/suggestionMailboxAdd?body=M%C3%A1s%20%26%20mejor%2B%3F&category_id=4", message,
               [](NM& m, Outcome& o) {
                   m.suggestionMailboxAdd(4, QStringLiteral("Más & mejor+?"),
                                          o.completion<MessageResponse>());
               }),
        get("/getCustomerDataFromTevoCodeURL?application_type_id=1&tevo=B%2F00%2B1", R"([{"name": "Bar"}])",
            [](NM& m, Outcome& o) {
                m.getCustomerDataFromTevoCode(QStringLiteral("B/00+1"),
                                              o.completion<std::vector<Customer>>());
            }),
        ask("/searchMapsURL?direction=Calle%20Mayor%2C%203", encoded<SearchMapsResponse>(),
            [](NM& m, Outcome& o) {
                m.searchMaps(QStringLiteral("Calle Mayor, 3"), o.completion<SearchMapsResponse>());
            }),
        ask("/priceRecommendationURL?placeLocality=Alcal%C3%A1&placePostalCode=28801&product_id=12",
            encoded<PriceRecommendationResponse>(),
            [](NM& m, Outcome& o) {
                m.priceRecommendation(12, QStringLiteral("28801"), QStringLiteral("Alcalá"),
                                      o.completion<PriceRecommendationResponse>());
            }),
    };
}

Cases brochureCases() {
    return {
        change("/saveOrderURL", encoded<SaveBrochuresOrderResponse>(),
               [](NM& m, Outcome& o) { m.saveOrder(brochure(), o.completion<SaveBrochuresOrderResponse>()); },
               {"\n  \"name_archive_tablet\": \"Bar Ñ & Cía\"", "\"save\": 3"}),
        ask(
            "/retrieveBrochureOrderListURL", encoded<OrderList>(),
            [](NM& m, Outcome& o) {
                m.retrieveBrochureOrderList({.orderId = {},
                                             .tevo = {},
                                             .pdv = QStringLiteral("Bar Ñ"),
                                             .sinConfirmar = 7,
                                             .sinCompletar = {},
                                             .currentYear = 0,
                                             .cloud = true},
                                            o.completion<OrderList>());
            },
            "cloud=1&current_year=0&order_id=&pdv=Bar%20%C3%91&sin_confirmar=7&tevo="),
        get("/retrieveBrochureOrderURL/31", encoded<RetrieveBrochureOrderListResponse>(),
            [](NM& m, Outcome& o) {
                m.retrieveBrochureOrder(31, o.completion<RetrieveBrochureOrderListResponse>());
            }),
        takingAnyAnswer(change(
            "/deleteOrder", "{}",
            [](NM& m, Outcome& o) {
                m.deleteOrder(9, ApplicationType::orderFood, o.completion<SimpleResponse>());
            },
            {"\"application_type_id\": 3", "\"id\": 9"}, "DELETE")),
        change("/claimOrder?comment=falta%20%22todo%22&order_id=5", message,
               [](NM& m, Outcome& o) {
                   m.claimOrder(5, QStringLiteral("falta \"todo\""), o.completion<MessageResponse>());
               }),
        change("/demandBrandQr?brand_qr_id=2&comment=ya&order_id=1&quantity_qr=4&quantity_qr_circular=5&"
               "quantity_qr_taco=6&type=3",
               message,
               [](NM& m, Outcome& o) {
                   m.demandBrandQr({1, 2, 3, 4, 5, 6, QStringLiteral("ya")},
                                   o.completion<DemandBrandQrErrorResponse>());
               }),
        takingAnyAnswer(change("/sendRawOrder", "{}",
                               [](NM& m, Outcome& o) {
                                   m.sendRawOrder(brochure(), QStringLiteral("2024.zvo"),
                                                  o.completion<SimpleResponse>());
                               },
                               {"\"fileName\": \"2024.zvo\"", "\"name_archive_tablet\""})),
    };
}

Cases otherCases() {
    const QByteArray generic = encoded<GenericOrderResponse>();
    return {
        change("/createTextileOrder", encoded<SaveTextileOrderResponse>(),
               [](NM& m, Outcome& o) { m.createTextileOrder({}, o.completion<SaveTextileOrderResponse>()); },
               {"\"order\": {", "\"lines\": []"}),
        get("/retrieveTextileOrder/8", encoded<RetrieveTextileOrderResponse>(),
            [](NM& m, Outcome& o) {
                m.retrieveTextileOrder(8, o.completion<RetrieveTextileOrderResponse>());
            }),
        change("/promotionOrderSendURL", generic,
               [](NM& m, Outcome& o) { m.promotionOrderSend({}, o.completion<GenericOrderResponse>()); },
               {"\"promotion_id\": 0"}),
        get("/sellingSheetOrderListURL", encoded<SellingSheetOrderListResponse>(),
            [](NM& m, Outcome& o) {
                m.sellingSheetOrderList(o.completion<SellingSheetOrderListResponse>());
            }),
        change("/sellingSheetOrderSendURL", generic,
               [](NM& m, Outcome& o) { m.sellingSheetOrderSend({}, o.completion<GenericOrderResponse>()); },
               {"\"style_id\": 0"}),
        takingAnyAnswer(change("/sellingSheetOrderDeleteURL?order_id=6&order_token=x%3D%3D", "{}",
                               [](NM& m, Outcome& o) {
                                   m.sellingSheetOrderDelete(6, QStringLiteral("x=="),
                                                             o.completion<SimpleResponse>());
                               })),
        change("/activationOrderURL", encoded<SaveBrochuresOrderActivationResponse>(),
               [](NM& m, Outcome& o) {
                   m.activationOrder({}, o.completion<SaveBrochuresOrderActivationResponse>());
               },
               {"\"activation_id\": 0"}),
        get("/activationUserQuota", encoded<ActivationsUserQuota>(),
            [](NM& m, Outcome& o) { m.activationUserQuota(o.completion<ActivationsUserQuota>()); }),
    };
}

} // namespace

const std::vector<OperationCase>& everyOperation() {
    static const Cases table = [] {
        Cases all = sessionCases();
        for (Cases more : {brochureCases(), otherCases()})
            std::ranges::move(more, std::back_inserter(all));
        return all;
    }();
    return table;
}

} // namespace kavor
