#pragma once

#include "network/HttpSession.h"
#include "network/RequestRetrier.h"
#include "network/ServiceOperations.h"
#include "network/TrafficLog.h"
#include "network/records/NetworkConfiguration.h"

#include <QObject>

#include <functional>
#include <memory>
#include <string>

namespace kavor {

class AuthManager;
class Clock;
class Reachability;
struct Operation;
struct PipelineRequest;

// The operations of the backend over HTTP: one pipeline that adds the token, takes only status 200 for a
// success, repairs an expired token silently and maps every failure to what the user reads. Completions run
// on the main thread, later than the call; what a request never answers is told by RequestRetrier. Main
// thread only.
class NetworkManager : public QObject, public ServiceOperations {
    Q_OBJECT
public:
    struct Collaborators {
        const AuthManager& auth;
        Reachability& reachability;
        Clock& clock;
    };
    // A shared session is built from defaultConfiguration at once, so the application's version must be known
    // by now.
    NetworkManager(NetworkConfiguration configuration, const Collaborators& collaborators,
                   QObject* parent = nullptr);
    ~NetworkManager() override;

    // Replaces the session. Requests under way end on the old one, which goes with the last of them; what is
    // repeated goes over the new one.
    void configureSession(const SessionConfiguration& configuration);
    // 120 s for a request; "version" and "compilation" on each.
    [[nodiscard]] static SessionConfiguration defaultConfiguration();
    // For saving in the background: waits until the network can be reached.
    [[nodiscard]] static SessionConfiguration backgroundConfiguration();

    [[nodiscard]] const NetworkConfiguration& networkConfiguration() const { return networkConfiguration_; }
    // The passwords and tokens that no log may show, those to come included.
    [[nodiscard]] std::shared_ptr<const KnownSecrets> knownSecrets() const {
        return trafficLog_.knownSecrets();
    }
    [[nodiscard]] bool isTokenRefreshing() const { return retrier_.isTokenRefreshing(); }

    [[nodiscard]] bool isReachable() const override;
    [[nodiscard]] QString accessToken() const override { return accessToken_; }
    void setAccessToken(const QString& token) override;
    [[nodiscard]] QString baseUrl() const override;
    [[nodiscard]] QString forgotPasswordUrl() const override;

    void login(const LoginParameters& parameters, Completion<LoginResult> done) override;
    void userInformation(Completion<LoginResult> done) override;
    void appInformation(Completion<std::shared_ptr<const Catalogue>> done) override;
    void profileInformation(Completion<UserProfile> done) override;
    void suggestionMailboxAdd(Int categoryId, const QString& body, Completion<MessageResponse> done,
                              const QByteArray& idempotencyKey = {}) override;

    void getCustomerDataFromTevoCode(const QString& tevo, Completion<std::vector<Customer>> done) override;
    void searchMaps(const QString& direction, Completion<SearchMapsResponse> done) override;
    void priceRecommendation(Int productId, const QString& postalCode, const QString& locality,
                             Completion<PriceRecommendationResponse> done) override;

    void saveOrder(const SaveBrochuresOrder& order, Completion<SaveBrochuresOrderResponse> done,
                   const QByteArray& idempotencyKey = {}) override;
    void retrieveBrochureOrderList(const OrderListFilter& filter, Completion<OrderList> done) override;
    void retrieveBrochureOrder(Int orderId, Completion<RetrieveBrochureOrderListResponse> done) override;
    void deleteOrder(Int id, ApplicationType type, Completion<SimpleResponse> done) override;
    void claimOrder(Int orderId, const QString& comment, Completion<MessageResponse> done,
                    const QByteArray& idempotencyKey = {}) override;
    void demandBrandQr(const BrandQrDemand& demand, Completion<DemandBrandQrErrorResponse> done,
                       const QByteArray& idempotencyKey = {}) override;
    void sendRawOrder(const SaveBrochuresOrder& order, const QString& fileName,
                      Completion<SimpleResponse> done) override;
    void createTextileOrder(const SaveTextileOrder& order, Completion<SaveTextileOrderResponse> done,
                            const QByteArray& idempotencyKey = {}) override;
    void retrieveTextileOrder(Int orderId, Completion<RetrieveTextileOrderResponse> done) override;
    void promotionOrderSend(const PromotionOrder& order, Completion<GenericOrderResponse> done,
                            const QByteArray& idempotencyKey = {}) override;
    void sellingSheetOrderList(Completion<SellingSheetOrderListResponse> done) override;
    void sellingSheetOrderSend(const SellingSheetOrder& order, Completion<GenericOrderResponse> done,
                               const QByteArray& idempotencyKey = {}) override;
    void sellingSheetOrderDelete(Int orderId, const QString& orderToken,
                                 Completion<SimpleResponse> done) override;
    void activationOrder(const ActivationOrder& order, Completion<SaveBrochuresOrderActivationResponse> done,
                         const QByteArray& idempotencyKey = {}) override;
    void activationUserQuota(Completion<ActivationsUserQuota> done) override;

private:
    using RequestPointer = std::shared_ptr<PipelineRequest>;

    // The URL of an operation: baseURLPro, its path, and what the operation adds.
    [[nodiscard]] QUrl urlOf(const std::string& path, const QString& trailing = {}) const;

    // The single pipeline. `read` turns the body into the response, off the main thread.
    template <class Response, class Read>
    RequestPointer prepare(const Operation& operation, const Completion<Response>& done, Read read);
    template <class Response>
    void request(const Operation& operation, const Completion<Response>& done);
    [[nodiscard]] Operation loginOperation(const LoginParameters& parameters);

    void run(const RequestPointer& request);
    [[nodiscard]] HttpRequest adapted(const PipelineRequest& request) const;
    void received(const RequestPointer& request, const HttpAnswer& answer);
    void decode(const RequestPointer& request, const HttpAnswer& answer);
    void failed(const RequestPointer& request, const HttpAnswer& answer);
    void log(const PipelineRequest& request, const HttpAnswer& answer);
    void keepOutOfLog(const StoredCredentials& credentials);
    void repeatAfter(const RequestPointer& request, std::chrono::milliseconds delay);
    void silentLogin(const StoredCredentials& credentials, const RequestRetrier::LoginAnswers& answers);

    NetworkConfiguration networkConfiguration_;
    Reachability& reachability_;
    Clock& clock_;
    QString accessToken_;
    RequestRetrier retrier_;
    TrafficLog trafficLog_;
    HttpHeaders additionalHeaders_;
    HttpSession* sessionManager_ = nullptr; // a child, as its predecessors are that have not ended yet
};

} // namespace kavor
