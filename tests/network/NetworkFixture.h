#pragma once

#include "device/Clock.h"
#include "network/NetworkManager.h"
#include "session/AppSingleton.h"
#include "session/services/AuthManager.h"
#include "support/DeviceFakes.h"
#include "support/ScriptedServer.h"
#include "support/WaitFor.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kavor {

// How a request ended so far.
struct Outcome {
    int successes = 0;
    int failures = 0;
    std::optional<RequestFailure> failure;
    [[nodiscard]] bool ended() const { return successes + failures > 0; }

    // Notes the end of a request here.
    template <class Response>
    Completion<Response> completion(QObject* context = nullptr) {
        return {context, [this](const Response&) { ++successes; },
                [this](const RequestFailure& what) {
                    ++failures;
                    failure = what;
                }};
    }
};

inline const char* genericText =
    "Se ha producido una incidencia. Por favor, póngase en contacto con el equipo de soporte.";

// The keys of the configuration that the client is shipped with.
std::vector<std::string> configurationKeys();
// A configuration file with an element for each of them; an empty text leaves the key out.
std::string configurationDocument(const std::function<std::string(const std::string& key)>& value);
// A configuration whose paths are "/" and the key, below the given base address.
NetworkConfiguration configurationFor(const QString& base);

// A manager against a scripted server; its paths are "/api/" and the key of the operation.
struct Rig {
    explicit Rig(bool withCredential = false);

    // Starts the cheapest operation there is, "userInformation".
    Outcome& start();
    [[nodiscard]] bool waitForRequests(qsizetype count) {
        return waitFor([&] { return server.requests().size() >= count; });
    }

    ScriptedServer server;
    MemoryKeychain keychain;
    MemoryUserDefaults defaults;
    FakeReachability reachability;
    ManualClock clock;
    AuthManager auth;
    NetworkManager manager;
    std::vector<std::unique_ptr<Outcome>> outcomes; // of start()
};

inline const QByteArray infoPath = "/api/userInformation";
inline const QByteArray loginPath = "/api/loginURL";
inline const QByteArray goodLogin = R"({"msg": "ok", "token": "fresh"})";

} // namespace kavor
