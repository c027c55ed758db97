#include "account/UserProfile.h"
#include "activations/ActivationOrder.h"
#include "base/StopProcess.h"
#include "brochures/engine/PriceRecommendationResponse.h"
#include "brochures/engine/RetrieveBrochureOrderListResponse.h"
#include "brochures/engine/SaveBrochuresOrder.h"
#include "catalogue/Catalogue.h"
#include "documents/Answers.h"
#include "network/NetworkManager.h"
#include "network/Pipeline.h"
#include "network/records/ErrorRecords.h"
#include "orders/OrderList.h"
#include "promotions/PromotionOrder.h"
#include "sellingsheets/SellingSheetOrder.h"
#include "session/AppSingleton.h"
#include "session/LoginResult.h"
#include "textile/SaveTextileOrder.h"

#include <QJsonDocument>
#include <QJsonObject>

// The operations of the backend, each with its method and the form of its parameters.
namespace kavor {

namespace {

constexpr char formType[] = "application/x-www-form-urlencoded; charset=utf-8";
constexpr char jsonType[] = "application/json";

enum class Effect { LooksUp, ChangesServer };

Operation getting(const char* name, const QUrl& url, const Parameters& query = {}) {
    return {.name = QString::fromLatin1(name), .url = withQuery(url, query)};
}

Operation postingQuery(const char* name, const QUrl& url, const Parameters& query, Effect effect,
                       const QByteArray& idempotencyKey = {}) {
    return {QString::fromLatin1(name),       "POST",        withQuery(url, query), {}, formType,
            effect == Effect::ChangesServer, idempotencyKey};
}

Operation postingForm(const char* name, const QUrl& url, const Parameters& form) {
    return {QString::fromLatin1(name), "POST", url, urlEncoded(form), formType, false};
}

// The process stops when the record has no JSON form.
template <class Record>
Operation postingRecord(const char* name, const QUrl& url, const Record& record,
                        const QByteArray& idempotencyKey = {}) {
    const auto body = json::encodePretty(record);
    if (!body)
        stopProcess(std::string("JSON form of the body of ") + name + ": " + body.error().text());
    return {QString::fromLatin1(name),
            "POST",
            url,
            QByteArray::fromStdString(*body),
            jsonType,
            true,
            idempotencyKey};
}

QString segment(Int identifier) {
    return QLatin1Char('/') + parameterValue(qint64(identifier));
}

void addWhenSet(Parameters& parameters, const QString& key, const std::optional<QString>& value) {
    if (value)
        parameters[key] = *value;
}

void addWhenSet(Parameters& parameters, const QString& key, const std::optional<Int>& value) {
    if (value)
        parameters[key] = parameterValue(qint64(*value));
}

// The catalogue with its indexes, built where the answer is decoded.
json::Decoded<std::shared_ptr<const Catalogue>> readCatalogue(const json::Source& body) {
    auto information = json::decode<ApplicationInformation>(body);
    if (!information)
        return tl::unexpected(std::move(information.error()));
    return std::make_shared<const Catalogue>(std::move(*information));
}

} // namespace

// ---- Session and catalogue

Operation NetworkManager::loginOperation(const LoginParameters& parameters) {
    for (const auto& secret : {parameters.password, parameters.token})
        trafficLog_.keepOut(secret.value_or(QString()));
    Parameters form{{QStringLiteral("login"), parameters.login}};
    addWhenSet(form, QStringLiteral("password"), parameters.password);
    addWhenSet(form, QStringLiteral("token"), parameters.token);
    if (const auto& terminal = AppSingleton::shared().fcmToken) {
        form[QStringLiteral("terminal_code")] = QString::fromStdString(*terminal);
        trafficLog_.keepOut(QString::fromStdString(*terminal));
    }
    return postingForm("loginURL", urlOf(networkConfiguration_.urls.loginURL), form);
}

void NetworkManager::login(const LoginParameters& parameters, Completion<LoginResult> done) {
    request(loginOperation(parameters), done);
}

void NetworkManager::userInformation(Completion<LoginResult> done) {
    request(getting("userInformation", urlOf(networkConfiguration_.urls.userInformation)), done);
}

void NetworkManager::appInformation(Completion<std::shared_ptr<const Catalogue>> done) {
    const auto operation = getting("appInformationURL", urlOf(networkConfiguration_.urls.appInformationURL));
    run(prepare(operation, done, readCatalogue));
}

void NetworkManager::profileInformation(Completion<UserProfile> done) {
    request(getting("profileInformationURL", urlOf(networkConfiguration_.urls.profileInformationURL)), done);
}

void NetworkManager::suggestionMailboxAdd(Int categoryId, const QString& body,
                                          Completion<MessageResponse> done,
                                          const QByteArray& idempotencyKey) {
    const Parameters query{{QStringLiteral("category_id"), parameterValue(qint64(categoryId))},
                           {QStringLiteral("body"), body}};
    const QUrl url = urlOf(networkConfiguration_.urls.suggestionMailboxAdd);
    request(postingQuery("suggestionMailboxAdd", url, query, Effect::ChangesServer, idempotencyKey), done);
}

// ---- Customers and places

void NetworkManager::getCustomerDataFromTevoCode(const QString& tevo,
                                                 Completion<std::vector<Customer>> done) {
    const auto type = AppSingleton::shared().actualApplicationType;
    if (!type)
        stopProcess("application type of the section entered (actualApplicationType)");
    const Parameters query{{QStringLiteral("tevo"), tevo},
                           {QStringLiteral("application_type_id"), parameterValue(qint64(*type))}};
    const QUrl url = urlOf(networkConfiguration_.urls.getCustomerDataFromTevoCodeURL);
    request(getting("getCustomerDataFromTevoCodeURL", url, query), done);
}

void NetworkManager::searchMaps(const QString& direction, Completion<SearchMapsResponse> done) {
    const QUrl url = urlOf(networkConfiguration_.urls.searchMapsURL);
    request(postingQuery("searchMapsURL", url, {{QStringLiteral("direction"), direction}}, Effect::LooksUp),
            done);
}

void NetworkManager::priceRecommendation(Int productId, const QString& postalCode, const QString& locality,
                                         Completion<PriceRecommendationResponse> done) {
    const Parameters query{{QStringLiteral("product_id"), parameterValue(qint64(productId))},
                           {QStringLiteral("placePostalCode"), postalCode},
                           {QStringLiteral("placeLocality"), locality}};
    const QUrl url = urlOf(networkConfiguration_.urls.priceRecommendationURL);
    request(postingQuery("priceRecommendationURL", url, query, Effect::LooksUp), done);
}

// ---- Brochure orders

void NetworkManager::saveOrder(const SaveBrochuresOrder& order, Completion<SaveBrochuresOrderResponse> done,
                               const QByteArray& idempotencyKey) {
    const QUrl url = urlOf(networkConfiguration_.urls.saveOrderURL);
    request(postingRecord("saveOrderURL", url, order, idempotencyKey), done);
}

void NetworkManager::retrieveBrochureOrderList(const OrderListFilter& filter, Completion<OrderList> done) {
    Parameters form{{QStringLiteral("order_id"), filter.orderId},
                    {QStringLiteral("tevo"), filter.tevo},
                    {QStringLiteral("pdv"), filter.pdv},
                    {QStringLiteral("cloud"), parameterValue(filter.cloud)}};
    addWhenSet(form, QStringLiteral("sin_confirmar"), filter.sinConfirmar);
    addWhenSet(form, QStringLiteral("sin_completar"), filter.sinCompletar);
    addWhenSet(form, QStringLiteral("current_year"), filter.currentYear);
    const QUrl url = urlOf(networkConfiguration_.urls.retrieveBrochureOrderListURL);
    request(postingForm("retrieveBrochureOrderListURL", url, form), done);
}

void NetworkManager::retrieveBrochureOrder(Int orderId, Completion<RetrieveBrochureOrderListResponse> done) {
    const QUrl url = urlOf(networkConfiguration_.urls.retrieveBrochureOrderURL, segment(orderId));
    request(getting("retrieveBrochureOrderURL", url), done);
}

void NetworkManager::deleteOrder(Int id, ApplicationType type, Completion<SimpleResponse> done) {
    const QJsonObject body{{QStringLiteral("id"), qint64(id)},
                           {QStringLiteral("application_type_id"), qint64(type)}};
    request(Operation{QStringLiteral("deleteOrder"), "DELETE", urlOf(networkConfiguration_.urls.deleteOrder),
                      QJsonDocument(body).toJson(), jsonType, true},
            done);
}

void NetworkManager::claimOrder(Int orderId, const QString& comment, Completion<MessageResponse> done,
                                const QByteArray& idempotencyKey) {
    const Parameters query{{QStringLiteral("order_id"), parameterValue(qint64(orderId))},
                           {QStringLiteral("comment"), comment}};
    const QUrl url = urlOf(networkConfiguration_.urls.claimOrder);
    request(postingQuery("claimOrder", url, query, Effect::ChangesServer, idempotencyKey), done);
}

void NetworkManager::demandBrandQr(const BrandQrDemand& demand, Completion<DemandBrandQrErrorResponse> done,
                                   const QByteArray& idempotencyKey) {
    const Parameters query{
        {QStringLiteral("order_id"), parameterValue(qint64(demand.orderId))},
        {QStringLiteral("brand_qr_id"), parameterValue(qint64(demand.brandQrId))},
        {QStringLiteral("type"), parameterValue(qint64(demand.type))},
        {QStringLiteral("quantity_qr"), parameterValue(qint64(demand.quantityQr))},
        {QStringLiteral("quantity_qr_circular"), parameterValue(qint64(demand.quantityQrCircular))},
        {QStringLiteral("quantity_qr_taco"), parameterValue(qint64(demand.quantityQrTaco))},
        {QStringLiteral("comment"), demand.comment}};
    const QUrl url = urlOf(networkConfiguration_.urls.demandBrandQr);
    request(postingQuery("demandBrandQr", url, query, Effect::ChangesServer, idempotencyKey), done);
}

void NetworkManager::sendRawOrder(const SaveBrochuresOrder& order, const QString& fileName,
                                  Completion<SimpleResponse> done) {
    const RawOrder raw{order, fileName.toStdString()};
    request(postingRecord("sendRawOrder", urlOf(networkConfiguration_.urls.sendRawOrder), raw), done);
}

// ---- The other orders

void NetworkManager::createTextileOrder(const SaveTextileOrder& order,
                                        Completion<SaveTextileOrderResponse> done,
                                        const QByteArray& idempotencyKey) {
    const QUrl url = urlOf(networkConfiguration_.urls.createTextileOrder);
    request(postingRecord("createTextileOrder", url, order, idempotencyKey), done);
}

void NetworkManager::retrieveTextileOrder(Int orderId, Completion<RetrieveTextileOrderResponse> done) {
    const QUrl url = urlOf(networkConfiguration_.urls.retrieveTextileOrder, segment(orderId));
    request(getting("retrieveTextileOrder", url), done);
}

void NetworkManager::promotionOrderSend(const PromotionOrder& order, Completion<GenericOrderResponse> done,
                                        const QByteArray& idempotencyKey) {
    const QUrl url = urlOf(networkConfiguration_.urls.promotionOrderSendURL);
    request(postingRecord("promotionOrderSendURL", url, order, idempotencyKey), done);
}

void NetworkManager::sellingSheetOrderList(Completion<SellingSheetOrderListResponse> done) {
    request(getting("sellingSheetOrderListURL", urlOf(networkConfiguration_.urls.sellingSheetOrderListURL)),
            done);
}

void NetworkManager::sellingSheetOrderSend(const SellingSheetOrder& order,
                                           Completion<GenericOrderResponse> done,
                                           const QByteArray& idempotencyKey) {
    const QUrl url = urlOf(networkConfiguration_.urls.sellingSheetOrderSendURL);
    request(postingRecord("sellingSheetOrderSendURL", url, order, idempotencyKey), done);
}

void NetworkManager::sellingSheetOrderDelete(Int orderId, const QString& orderToken,
                                             Completion<SimpleResponse> done) {
    const Parameters query{{QStringLiteral("order_id"), parameterValue(qint64(orderId))},
                           {QStringLiteral("order_token"), orderToken}};
    const QUrl url = urlOf(networkConfiguration_.urls.sellingSheetOrderDeleteURL);
    request(postingQuery("sellingSheetOrderDeleteURL", url, query, Effect::ChangesServer), done);
}

void NetworkManager::activationOrder(const ActivationOrder& order,
                                     Completion<SaveBrochuresOrderActivationResponse> done,
                                     const QByteArray& idempotencyKey) {
    const QUrl url = urlOf(networkConfiguration_.urls.activationOrderURL);
    request(postingRecord("activationOrderURL", url, order, idempotencyKey), done);
}

void NetworkManager::activationUserQuota(Completion<ActivationsUserQuota> done) {
    request(getting("activationUserQuota", urlOf(networkConfiguration_.urls.activationUserQuota)), done);
}

} // namespace kavor
