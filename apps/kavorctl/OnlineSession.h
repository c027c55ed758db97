#pragma once

#include "CommandContext.h"
#include "catalogue/services/FontUpdater.h"
#include "catalogue/services/ResourceUpdateRun.h"
#include "device/Clock.h"
#include "device/FontRegistry.h"
#include "device/ImageCache.h"
#include "device/KeychainStore.h"
#include "device/PlainDownloader.h"
#include "device/Reachability.h"
#include "device/UserDefaults.h"
#include "network/AuthManager.h"
#include "network/NetworkManager.h"
#include "orders/OrderDiskManager.h"
#include "shell/LoginResult.h"
#include "shell/services/CatalogueUpdate.h"
#include "shell/services/SessionStore.h"

#include <QEventLoop>

#include <functional>
#include <memory>
#include <optional>

namespace kavor::ctl {

// Fonts are downloaded here, and there is nothing to draw with them.
class FontFiles : public FontRegistry {
public:
    bool registerFont(const QString&, const QByteArray&) override { return true; }
    void unregisterFont(const QString&) override {}
    [[nodiscard]] std::optional<QFont> font(const QString&, int) const override { return std::nullopt; }
};

// The client's session and its way to the server without a window: the same documents folder, credential and
// engine. Needs a QCoreApplication.
class OnlineSession {
public:
    // Opens the documents folder; a CommandFailure when the property list or the folder can't be had.
    explicit OnlineSession(const CommandContext& context);

    AppSingleton& session;
    SystemClock clock;
    QtReachability reachability;
    FileUserDefaults defaults;
    std::unique_ptr<KeychainStore> keychain;
    AuthManager auth;
    NetworkManager network;
    OrderDiskManager orders;
    SessionStore sessions;
    PlainDownloader downloader;
    ImageCache images;
    FontFiles fonts;
    FontUpdater fontUpdater;
    ResourceUpdateRun resources;
    CatalogueUpdate catalogue;

    // Takes the stored token; a CommandFailure when nobody is logged in.
    void requireLogin();
    // Logs in and keeps the credential; a CommandFailure with the server's word.
    void logIn(const QString& account, const QString& password);

    // Runs a request to its end: the record, or a CommandFailure with the title and the first message.
    template <class Response, class Start>
    Response await(const QString& title, Start start) {
        std::optional<Response> response;
        std::optional<RequestFailure> failure;
        QEventLoop loop;
        start(Completion<Response>(
            &loop,
            [&](const Response& answer) {
                response = answer;
                loop.quit();
            },
            [&](const RequestFailure& reason) {
                failure = reason;
                loop.quit();
            }));
        while (!response && !failure)
            loop.exec();
        if (failure)
            fail(title, *failure);
        return std::move(*response);
    }

private:
    OnlineSession(const CommandContext& context, const NetworkConfiguration& configuration);
    [[noreturn]] static void fail(const QString& title, const RequestFailure& failure);
};

// A password without an echo from the terminal, or the first line of standard input.
std::string readPassword(std::ostream& prompt);

} // namespace kavor::ctl
