#pragma once

#include "account/UserProfile.h"
#include "activations/ActivationOrder.h"
#include "brochures/engine/PriceRecommendationResponse.h"
#include "brochures/engine/RetrieveBrochureOrderListResponse.h"
#include "brochures/engine/SaveBrochuresOrder.h"
#include "catalogue/Catalogue.h"
#include "documents/Answers.h"
#include "network/ServiceOperations.h"
#include "network/records/ErrorRecords.h"
#include "orders/OrderList.h"
#include "promotions/PromotionOrder.h"
#include "sellingsheets/SellingSheetOrder.h"
#include "session/LoginResult.h"
#include "textile/SaveTextileOrder.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <deque>
#include <memory>
#include <optional>
#include <tuple>
#include <utility>
#include <variant>
#include <vector>

namespace kavor {

// A failure as the pipeline hands it to a screen.
inline RequestFailure failureWith(const QStringList& messages, int status = 400) {
    return {{RequestError::Kind::Status, status, QStringLiteral("status %1").arg(status), std::nullopt},
            messages};
}

// No answer came, so that nobody knows what the server did.
inline RequestFailure lostAnswer(RequestError::Kind kind = RequestError::Kind::Transport) {
    return {{kind, 0, QStringLiteral("no answer"), std::nullopt}, std::nullopt};
}

// One operation of the fake server: what it was called with, and its answers.
//     services.requests.login.calls.at(0)          the arguments, a tuple
//     services.requests.login.succeed(result)      answers the oldest call that waits, at once
//     services.requests.login.always(result)       answers this and every later call, later than the call
template <class Response, class... Arguments>
class FakeOperation {
public:
    std::vector<std::tuple<Arguments...>> calls;

    [[nodiscard]] int waiting() const { return int(waiting_.size()); }
    // False when no call waits.
    bool succeed(const Response& response) { return answerOldest(response); }
    bool fail(const RequestFailure& failure) { return answerOldest(failure); }
    void always(Response response) { standing_ = std::move(response); }
    void alwaysFail(RequestFailure failure) { standing_ = std::move(failure); }

    template <class... Given>
    void called(Completion<Response> done, Given&&... arguments) {
        calls.emplace_back(std::forward<Given>(arguments)...);
        if (!standing_) {
            waiting_.push_back(std::move(done));
            return;
        }
        QMetaObject::invokeMethod(
            qApp, [done = std::move(done), answer = *standing_] { deliver(done, answer); },
            Qt::QueuedConnection);
    }

private:
    using Answer = std::variant<Response, RequestFailure>;

    static void deliver(const Completion<Response>& done, const Answer& answer) {
        if (done.bound && !done.context)
            return;
        if (const auto* response = std::get_if<Response>(&answer))
            done.success(*response);
        else
            done.failure(std::get<RequestFailure>(answer));
    }
    bool answerOldest(const Answer& answer) {
        if (waiting_.empty())
            return false;
        const Completion<Response> done = std::move(waiting_.front());
        waiting_.pop_front();
        deliver(done, answer);
        return true;
    }

    std::deque<Completion<Response>> waiting_;
    std::optional<Answer> standing_;
};

// The server as tests play it: records every call and answers when the test says so.
class FakeServices : public ServiceOperations {
public:
    struct Requests {
        FakeOperation<LoginResult, LoginParameters> login;
        FakeOperation<LoginResult> userInformation;
        FakeOperation<std::shared_ptr<const Catalogue>> appInformation;
        FakeOperation<UserProfile> profileInformation;
        FakeOperation<MessageResponse, Int, QString, QByteArray> suggestionMailboxAdd; // with its key
        FakeOperation<std::vector<Customer>, QString> getCustomerDataFromTevoCode;
        FakeOperation<SearchMapsResponse, QString> searchMaps;
        FakeOperation<PriceRecommendationResponse, Int, QString, QString> priceRecommendation;
        FakeOperation<SaveBrochuresOrderResponse, SaveBrochuresOrder, QByteArray> saveOrder; // with its key
        FakeOperation<OrderList, OrderListFilter> retrieveBrochureOrderList;
        FakeOperation<RetrieveBrochureOrderListResponse, Int> retrieveBrochureOrder;
        FakeOperation<SimpleResponse, Int, ApplicationType> deleteOrder;
        FakeOperation<MessageResponse, Int, QString, QByteArray> claimOrder;                // with its key
        FakeOperation<DemandBrandQrErrorResponse, BrandQrDemand, QByteArray> demandBrandQr; // with its key
        FakeOperation<SimpleResponse, SaveBrochuresOrder, QString> sendRawOrder;
        FakeOperation<SaveTextileOrderResponse, SaveTextileOrder, QByteArray> createTextileOrder;
        FakeOperation<RetrieveTextileOrderResponse, Int> retrieveTextileOrder;
        FakeOperation<GenericOrderResponse, PromotionOrder, QByteArray> promotionOrderSend; // with its key
        FakeOperation<SellingSheetOrderListResponse> sellingSheetOrderList;
        FakeOperation<GenericOrderResponse, SellingSheetOrder, QByteArray>
            sellingSheetOrderSend; // with its key
        FakeOperation<SimpleResponse, Int, QString> sellingSheetOrderDelete;
        FakeOperation<SaveBrochuresOrderActivationResponse, ActivationOrder, QByteArray>
            activationOrder; // with its key
        FakeOperation<ActivationsUserQuota> activationUserQuota;
    };

    Requests requests;
    bool reachable = true;
    QString token;

    [[nodiscard]] bool isReachable() const override { return reachable; }
    [[nodiscard]] QString accessToken() const override { return token; }
    void setAccessToken(const QString& accessToken) override { token = accessToken; }
    [[nodiscard]] QString baseUrl() const override { return QStringLiteral("http://server.example"); }
    [[nodiscard]] QString forgotPasswordUrl() const override {
        return baseUrl() + QStringLiteral("/forgotten");
    }

    void login(const LoginParameters& parameters, Completion<LoginResult> done) override {
        requests.login.called(std::move(done), parameters);
    }
    void userInformation(Completion<LoginResult> done) override {
        requests.userInformation.called(std::move(done));
    }
    void appInformation(Completion<std::shared_ptr<const Catalogue>> done) override {
        requests.appInformation.called(std::move(done));
    }
    void profileInformation(Completion<UserProfile> done) override {
        requests.profileInformation.called(std::move(done));
    }
    void suggestionMailboxAdd(Int categoryId, const QString& body, Completion<MessageResponse> done,
                              const QByteArray& idempotencyKey = {}) override {
        requests.suggestionMailboxAdd.called(std::move(done), categoryId, body, idempotencyKey);
    }
    void getCustomerDataFromTevoCode(const QString& tevo, Completion<std::vector<Customer>> done) override {
        requests.getCustomerDataFromTevoCode.called(std::move(done), tevo);
    }
    void searchMaps(const QString& direction, Completion<SearchMapsResponse> done) override {
        requests.searchMaps.called(std::move(done), direction);
    }
    void priceRecommendation(Int productId, const QString& postalCode, const QString& locality,
                             Completion<PriceRecommendationResponse> done) override {
        requests.priceRecommendation.called(std::move(done), productId, postalCode, locality);
    }
    void saveOrder(const SaveBrochuresOrder& order, Completion<SaveBrochuresOrderResponse> done,
                   const QByteArray& idempotencyKey = {}) override {
        requests.saveOrder.called(std::move(done), order, idempotencyKey);
    }
    void retrieveBrochureOrderList(const OrderListFilter& filter, Completion<OrderList> done) override {
        requests.retrieveBrochureOrderList.called(std::move(done), filter);
    }
    void retrieveBrochureOrder(Int orderId, Completion<RetrieveBrochureOrderListResponse> done) override {
        requests.retrieveBrochureOrder.called(std::move(done), orderId);
    }
    void deleteOrder(Int id, ApplicationType type, Completion<SimpleResponse> done) override {
        requests.deleteOrder.called(std::move(done), id, type);
    }
    void claimOrder(Int orderId, const QString& comment, Completion<MessageResponse> done,
                    const QByteArray& idempotencyKey = {}) override {
        requests.claimOrder.called(std::move(done), orderId, comment, idempotencyKey);
    }
    void demandBrandQr(const BrandQrDemand& demand, Completion<DemandBrandQrErrorResponse> done,
                       const QByteArray& idempotencyKey = {}) override {
        requests.demandBrandQr.called(std::move(done), demand, idempotencyKey);
    }
    void sendRawOrder(const SaveBrochuresOrder& order, const QString& fileName,
                      Completion<SimpleResponse> done) override {
        requests.sendRawOrder.called(std::move(done), order, fileName);
    }
    void createTextileOrder(const SaveTextileOrder& order, Completion<SaveTextileOrderResponse> done,
                            const QByteArray& idempotencyKey = {}) override {
        requests.createTextileOrder.called(std::move(done), order, idempotencyKey);
    }
    void retrieveTextileOrder(Int orderId, Completion<RetrieveTextileOrderResponse> done) override {
        requests.retrieveTextileOrder.called(std::move(done), orderId);
    }
    void promotionOrderSend(const PromotionOrder& order, Completion<GenericOrderResponse> done,
                            const QByteArray& idempotencyKey) override {
        requests.promotionOrderSend.called(std::move(done), order, idempotencyKey);
    }
    void sellingSheetOrderList(Completion<SellingSheetOrderListResponse> done) override {
        requests.sellingSheetOrderList.called(std::move(done));
    }
    void sellingSheetOrderSend(const SellingSheetOrder& order, Completion<GenericOrderResponse> done,
                               const QByteArray& idempotencyKey = {}) override {
        requests.sellingSheetOrderSend.called(std::move(done), order, idempotencyKey);
    }
    void sellingSheetOrderDelete(Int orderId, const QString& orderToken,
                                 Completion<SimpleResponse> done) override {
        requests.sellingSheetOrderDelete.called(std::move(done), orderId, orderToken);
    }
    void activationOrder(const ActivationOrder& order, Completion<SaveBrochuresOrderActivationResponse> done,
                         const QByteArray& idempotencyKey = {}) override {
        requests.activationOrder.called(std::move(done), order, idempotencyKey);
    }
    void activationUserQuota(Completion<ActivationsUserQuota> done) override {
        requests.activationUserQuota.called(std::move(done));
    }
};

} // namespace kavor
