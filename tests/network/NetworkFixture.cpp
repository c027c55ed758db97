#include "NetworkFixture.h"

#include "session/LoginResult.h"
#include "support/TemporaryFolder.h"

#include <regex>

namespace kavor {

std::vector<std::string> configurationKeys() {
    static const std::string shipped =
        contentOf(KAVOR_TEST_DATA "/../../apps/kavor/NetworkConfiguration.plist");
    static const std::regex entry("<key>(\\w+)</key>\\s*<string>");
    std::vector<std::string> keys;
    for (std::sregex_iterator found(shipped.begin(), shipped.end(), entry), end; found != end; ++found)
        keys.push_back((*found)[1]);
    return keys;
}

std::string configurationDocument(const std::function<std::string(const std::string& key)>& value) {
    std::string text = "<plist version=\"1.0\"><dict><key>urls</key><dict>"
                       "<key>unknown</key><integer>1</integer>";
    for (const std::string& key : configurationKeys()) {
        if (const std::string element = value(key); !element.empty())
            text += "<key>" + key + "</key>" + element;
    }
    return text + "</dict></dict></plist>";
}

NetworkConfiguration configurationFor(const QString& base) {
    return NetworkConfiguration::decode(configurationDocument([&](const std::string& key) {
                                            const bool isBase = key == "baseURLPro";
                                            return "<string>" + (isBase ? base.toStdString() : "/" + key) +
                                                   "</string>";
                                        }),
                                        "the tests' own")
        .value();
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
