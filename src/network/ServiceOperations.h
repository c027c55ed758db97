#pragma once

#include "catalogue/Enumerations.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace kavor {

class Catalogue;
struct ActivationOrder;
struct ActivationsUserQuota;
struct Customer;
struct DemandBrandQrErrorResponse;
struct GenericOrderResponse;
struct LoginResult;
struct MessageResponse;
struct OrderList;
struct PriceRecommendationResponse;
struct PromotionOrder;
struct RetrieveBrochureOrderListResponse;
struct RetrieveTextileOrderResponse;
struct SaveBrochuresOrder;
struct SaveBrochuresOrderActivationResponse;
struct SaveBrochuresOrderResponse;
struct SaveTextileOrder;
struct SaveTextileOrderResponse;
struct SearchMapsResponse;
struct SellingSheetOrder;
struct SellingSheetOrderListResponse;
struct SimpleResponse;
struct UserProfile;

// The server asks for a newer version of the application.
struct ServerResponseError {
    QString errorMessage;
    QUrl updateLink;
};

// The error that ended a request.
struct RequestError {
    enum class Kind {
        Status,   // any status other than 200
        Decoding, // a body that is not the operation's record
        TimedOut,
        Transport, // no network, connection lost, body cut short ...
    };
    Kind kind = Kind::Transport;
    int status = 0;               // HTTP status, 0 when there was no answer
    QString localizedDescription; // Spanish
    std::optional<ServerResponseError> updateNeeded;
};

// What a failure completion receives.
struct RequestFailure {
    RequestError error;
    std::optional<QStringList> messages;
};

// Where an answer goes. With a context the completion runs only while that object lives. Both functions run
// on the main thread, later than the call that started the request.
template <class Response>
struct Completion {
    QPointer<QObject> context;
    std::function<void(const Response&)> success;
    std::function<void(const RequestFailure&)> failure;
    bool bound = true; // false: runs without a context

    Completion(QObject* receiver, std::function<void(const Response&)> onSuccess,
               std::function<void(const RequestFailure&)> onFailure)
        : context(receiver)
        , success(std::move(onSuccess))
        , failure(std::move(onFailure))
        , bound(receiver != nullptr) {}
};

struct LoginParameters {
    QString login;
    std::optional<QString> password;
    std::optional<QString> token;
};

struct OrderListFilter {
    QString orderId;
    QString tevo;
    QString pdv;
    std::optional<Int> sinConfirmar;
    std::optional<Int> sinCompletar;
    std::optional<Int> currentYear;
    bool cloud = false;
};

struct BrandQrDemand {
    Int orderId = 0;
    Int brandQrId = 0;
    Int type = 0;
    Int quantityQr = 0;
    Int quantityQrCircular = 0;
    Int quantityQrTaco = 0;
    QString comment;
    bool operator==(const BrandQrDemand&) const = default;
};

// Every operation of the backend as one typed function, named after its key in the configuration. Screens
// know the server through this interface only; NetworkManager is its version over HTTP.
class ServiceOperations {
public:
    virtual ~ServiceOperations() = default;

    [[nodiscard]] virtual bool isReachable() const = 0;
    [[nodiscard]] virtual QString accessToken() const = 0;
    virtual void setAccessToken(const QString& token) = 0;
    // baseURLPro, the address of the backend and the server of the stored credential.
    [[nodiscard]] virtual QString baseUrl() const = 0;
    // The web page for a forgotten password, absolute.
    [[nodiscard]] virtual QString forgotPasswordUrl() const = 0;

    virtual void login(const LoginParameters& parameters, Completion<LoginResult> done) = 0;
    virtual void userInformation(Completion<LoginResult> done) = 0;
    // Decodes and indexes the catalogue off the main thread.
    virtual void appInformation(Completion<std::shared_ptr<const Catalogue>> done) = 0;
    virtual void profileInformation(Completion<UserProfile> done) = 0;
    virtual void suggestionMailboxAdd(Int categoryId, const QString& body, Completion<MessageResponse> done,
                                      const QByteArray& idempotencyKey = {}) = 0;

    // Uses the application type of the section entered; the process stops without one.
    virtual void getCustomerDataFromTevoCode(const QString& tevo, Completion<std::vector<Customer>> done) = 0;
    virtual void searchMaps(const QString& direction, Completion<SearchMapsResponse> done) = 0;
    virtual void priceRecommendation(Int productId, const QString& postalCode, const QString& locality,
                                     Completion<PriceRecommendationResponse> done) = 0;

    // Under one key the server takes an order, a claim, a demand or a suggestion once, however often it is
    // sent; without a key each call is an intent of its own.
    virtual void saveOrder(const SaveBrochuresOrder& order, Completion<SaveBrochuresOrderResponse> done,
                           const QByteArray& idempotencyKey = {}) = 0;
    virtual void retrieveBrochureOrderList(const OrderListFilter& filter, Completion<OrderList> done) = 0;
    virtual void retrieveBrochureOrder(Int orderId, Completion<RetrieveBrochureOrderListResponse> done) = 0;
    virtual void deleteOrder(Int id, ApplicationType type, Completion<SimpleResponse> done) = 0;
    virtual void claimOrder(Int orderId, const QString& comment, Completion<MessageResponse> done,
                            const QByteArray& idempotencyKey = {}) = 0;
    virtual void demandBrandQr(const BrandQrDemand& demand, Completion<DemandBrandQrErrorResponse> done,
                               const QByteArray& idempotencyKey = {}) = 0;
    virtual void sendRawOrder(const SaveBrochuresOrder& order, const QString& fileName,
                              Completion<SimpleResponse> done) = 0;
    virtual void createTextileOrder(const SaveTextileOrder& order, Completion<SaveTextileOrderResponse> done,
                                    const QByteArray& idempotencyKey = {}) = 0;
    virtual void retrieveTextileOrder(Int orderId, Completion<RetrieveTextileOrderResponse> done) = 0;
    virtual void promotionOrderSend(const PromotionOrder& order, Completion<GenericOrderResponse> done,
                                    const QByteArray& idempotencyKey = {}) = 0;
    virtual void sellingSheetOrderList(Completion<SellingSheetOrderListResponse> done) = 0;
    virtual void sellingSheetOrderSend(const SellingSheetOrder& order, Completion<GenericOrderResponse> done,
                                       const QByteArray& idempotencyKey = {}) = 0;
    virtual void sellingSheetOrderDelete(Int orderId, const QString& orderToken,
                                         Completion<SimpleResponse> done) = 0;
    virtual void activationOrder(const ActivationOrder& order,
                                 Completion<SaveBrochuresOrderActivationResponse> done,
                                 const QByteArray& idempotencyKey = {}) = 0;
    virtual void activationUserQuota(Completion<ActivationsUserQuota> done) = 0;
};

} // namespace kavor
