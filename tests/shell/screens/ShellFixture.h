#pragma once

#include "base/NotificationCenter.h"
#include "device/Background.h"
#include "device/Clock.h"
#include "device/PushRegistration.h"
#include "interaction/AlertPresenter.h"
#include "orders/OrderDiskManager.h"
#include "orders/services/OrderSync.h"
#include "resources/FontRegistry.h"
#include "resources/FontUpdater.h"
#include "resources/ImageCache.h"
#include "resources/PlainDownloader.h"
#include "resources/ResourceUpdateRun.h"
#include "session/AppSingleton.h"
#include "session/StateFile.h"
#include "session/services/AuthManager.h"
#include "session/services/SessionStore.h"
#include "shell/screens/LoginViewController.h"
#include "shell/screens/WelcomeViewController.h"
#include "shell/services/AppDelegate.h"
#include "shell/services/CatalogueUpdate.h"
#include "support/DeviceFakes.h"
#include "support/FakeServices.h"
#include "support/ScriptedServer.h"
#include "support/TemporaryFolder.h"
#include "support/WaitFor.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace kavor {

// Counts what is asked of the synchronisation.
class CountingBackgroundSync : public BackgroundOrderSync {
public:
    int scheduled = 0;
    int runs = 0;
    void startOrderSync() override { scheduleBrochureSync(); }
    void replanBrochureSync() override { scheduleBrochureSync(); }
    void scheduleBrochureSync() override { ++scheduled; }
    void handleBrochureSync(const std::shared_ptr<BackgroundTask>&) override { ++runs; }
};

// The shell with fake services, over a documents folder of its own.
class ShellTest : public ::testing::Test {
protected:
    using Root = AppDelegate::RootKind;

    ShellTest() {
        session.loginResult.reset();
        session.userEmail.reset();
        session.userPassword.reset();
        session.actualSection.reset();
        session.applicationInformation.reset();
        session.autoLoginUser.reset();
        session.autoLoginToken.reset();
        session.fcmToken.reset();
        session.version = "1.2.3";
        session.compilation = "45";
        QObject::connect(&application, &AppDelegate::rootSet, &application,
                         [this](Root kind, bool) { roots.push_back(kind); });
    }

    // The rights that the server always sends, and nothing more.
    static LoginResult rights(const std::string& msg = "ok") {
        LoginResult result;
        result.msg = msg;
        result.token = "fresh";
        result.showLogoNrv = false;
        result.sendOrderInformation = false;
        result.notifications.emplace();
        return result;
    }
    static std::shared_ptr<const Catalogue> catalogueWith(std::vector<HashedResource> images = {}) {
        ApplicationInformation information;
        information.images = std::move(images);
        return std::make_shared<const Catalogue>(std::move(information));
    }
    void storeRights(const LoginResult& result) {
        ASSERT_TRUE(state_file::write(folder.path(), state_file::loginResult, result));
    }
    void storeCatalogue() {
        ASSERT_TRUE(state_file::write(folder.path(), state_file::applicationInformation,
                                      catalogueWith()->information()));
    }
    void remember(const std::string& account = "ana", const std::string& password = "secret") {
        auth.addCredentials(account, password, "stored");
        defaults.setBoolean(QLatin1String(default_key::loadIntoInitialViewController), true);
    }
    [[nodiscard]] bool loadsItself() const {
        return defaults.boolean(QLatin1String(default_key::loadIntoInitialViewController));
    }
    // Answers the alert on show after checking that it is this one.
    void answer(const QString& title, const QString& text, int button = 0) {
        ASSERT_TRUE(alerts.current());
        EXPECT_EQ(alerts.title(), title);
        EXPECT_EQ(alerts.text(), text);
        alerts.answerButton(button);
    }
    [[nodiscard]] LoginViewController::Services loginServices() {
        return {session, network, auth, defaults, notifications, alerts, urls};
    }
    [[nodiscard]] WelcomeViewController::Services welcomeServices() {
        return {session, application, network, auth,  catalogue,   notifications,
                orders,  alerts,      urls,    clock, reachability};
    }

    TemporaryFolder folder;
    AppSingleton& session = openSession(folder);
    NotificationCenter notifications;
    FakeServices network;
    MemoryUserDefaults defaults;
    MemoryKeychain keychain;
    AuthManager auth{keychain, defaults, "http://server.example"};
    SessionStore sessions{session};
    RecordingNotifications localNotifications;
    NoPushRegistration push;
    ManualBackgroundTasks tasks;
    CountingBackgroundSync sync;
    AlertPresenter alerts;
    RecordingUrlOpener urls;
    ManualClock clock;
    FakeReachability reachability;
    OrderDiskManager orders{folder.path()};
    PlainDownloader downloader;
    ImageCache images{folder / "images", downloader};
    FontRegistry fonts;
    FontUpdater fontUpdater{folder / "caches", downloader, fonts};
    ResourceUpdateRun resources{images, fontUpdater, notifications};
    BackgroundWorkEnd backgroundWork; // a screen that is gone may still read the orders
    AppDelegate application{
        {session, sessions, network, auth, defaults, notifications, localNotifications, push, tasks, sync}};
    CatalogueUpdate catalogue{{session, network, resources, sessions, defaults, clock}};
    std::vector<Root> roots; // in the order in which they were set

private:
    static AppSingleton& openSession(const TemporaryFolder& folder) {
        AppSingleton::shared().setFolders(folder.path(), folder.path());
        return AppSingleton::shared();
    }
};

} // namespace kavor
