#include "NetworkFixture.h"

#include "session/LoginResult.h"

namespace kavor {

NetworkConfiguration configurationFor(const QString& base) {
    const std::string path = "/";
    return {{"",
             base.toStdString(),
             path + "first",
             path + "forgot",
             path + "loginURL",
             path + "getCustomerDataFromTevoCodeURL",
             path + "appInformationURL",
             path + "priceRecommendationURL",
             path + "searchMapsURL",
             path + "profileInformationURL",
             path + "sellingSheetOrderListURL",
             path + "sellingSheetOrderSendURL",
             path + "sellingSheetOrderDeleteURL",
             path + "promotionOrderSendURL",
             path + "saveOrderURL",
             path + "retrieveBrochureOrderListURL",
             path + "retrieveBrochureOrderURL",
             path + "activationOrderURL",
             path + "activationUserQuota",
             path + "sendRawOrder",
             path + "createTextileOrder",
             path + "retrieveTextileOrder",
             path + "deleteOrder",
             path + "userInformation",
             path + "menuMantelOnline",
             path + "claimOrder",
             path + "demandBrandQr",
             path + "suggestionMailboxAdd"}};
}

namespace {

// The version goes into the session when the manager is made.
NetworkConfiguration prepared(const ScriptedServer& server) {
    AppSingleton& app = AppSingleton::shared();
    app.version = "3.2.1";
    app.compilation = "77";
    app.fcmToken.reset();
    app.actualApplicationType = ApplicationType::orderBeer;
    return configurationFor(server.address("/api"));
}

} // namespace

Rig::Rig(bool withCredential)
    : auth(keychain, defaults, server.address("/api").toStdString())
    , manager(prepared(server), {auth, reachability, clock}) {
    manager.setAccessToken(QStringLiteral("stale"));
    if (withCredential)
        auth.addCredentials("ana", "s3cret", "stored");
}

Outcome& Rig::start() {
    Outcome& outcome = *outcomes.emplace_back(std::make_unique<Outcome>());
    manager.userInformation(outcome.completion<LoginResult>());
    return outcome;
}

} // namespace kavor
