#pragma once

#include "device/Background.h"
#include "device/Clock.h"
#include "orders/OrderDiskManager.h"
#include "resources/FontRegistry.h"
#include "resources/FontUpdater.h"
#include "resources/PlainDownloader.h"
#include "support/Alerts.h"
#include "support/DeviceFakes.h"
#include "support/FakeServices.h"
#include "support/TemporaryFolder.h"
#include "support/WaitFor.h"
#include "textile/TextileFixture.h"
#include "textile/UnfinishedTextile.h"
#include "textile/screens/TextileConfigurationViewController.h"
#include "textile/screens/TextileMenuViewController.h"
#include "textile/screens/TextileProductsViewController.h"
#include "textile/screens/TextileSendingViewController.h"

#include <gtest/gtest.h>

#include <memory>

namespace kavor {

// The section of clothing, with the server and the device played by the test.
class TextileScreens : public ::testing::Test {
protected:
    using Draft = TextileIntermediateData;
    using Menu = TextileMenuViewController;
    using Directory = OrderDiskManager::DirectoryName;

    TemporaryFolder folder;
    AppSingleton& session = AppSingleton::shared();
    FakeServices network;
    OrderDiskManager orders{folder.path()};
    AlertPresenter alerts;
    RecordingUrlOpener urls;
    ManualClock clock;
    PlainDownloader downloader;
    FakePhotoPicker photos;
    FakeReachability reachability;
    FontRegistry fonts;
    FontUpdater fontUpdater{folder / "caches", downloader, fonts};
    BackgroundWorkEnd backgroundWork;
    TextileServices services{network,    orders, alerts,       urls,  clock,
                             downloader, photos, reachability, fonts, fontUpdater};
    CatalogueBuilder builder;
    std::unique_ptr<Menu> menu;

    void SetUp() override {
        session.setFolders(folder.path(), folder / "caches");
        session.loginResult = LoginResult{};
        addTextile(builder);
        enterTextile(builder);
    }
    void TearDown() override {
        menu.reset();
        UnfinishedTextile::shared().removeAll();
        UnfinishedTextile::shared().flush();
        session.setFolders({}, {});
        leaveTextile();
    }

    static Draft& draft() { return *Draft::shared(); }
    Menu& open(Menu::Opening opening = Menu::Opening::UnfinishedOrder) {
        menu.reset();
        menu = std::make_unique<Menu>(services, opening);
        menu->viewWillAppear();
        return *menu;
    }
    // The process dies and starts anew, in a textile section.
    Menu& dieAndOpen(ApplicationType section = ApplicationType::textil) {
        menu.reset();
        UnfinishedTextile::shared().flush();
        Draft::setShared(std::make_shared<Draft>());
        enterTextile(builder, section);
        return open();
    }
    // With a draft that may be sent.
    void openFilled(int step = Menu::Send) {
        fillTextile(draft());
        UnfinishedTextile::shared().keep();
        open().buttonPushedAction(step);
    }
    template <class Step>
    Step& step(int button) {
        menu->buttonPushedAction(button);
        auto* found = dynamic_cast<Step*>(menu->activeViewController());
        if (!found)
            throw std::runtime_error("another step");
        return *found;
    }
    auto& configuration() { return step<TextileConfigurationViewController>(Menu::Configuration); }
    auto& products() { return step<TextileProductsViewController>(Menu::Products); }
    auto& sending() { return step<TextileSendingViewController>(Menu::Send); }

    auto& sends() { return network.requests.createTextileOrder; }
    [[nodiscard]] const SaveTextileOrder& sent(std::size_t call) {
        return std::get<0>(sends().calls.at(call));
    }
    [[nodiscard]] QByteArray keyOf(std::size_t call) { return std::get<1>(sends().calls.at(call)); }
    static SaveTextileOrderResponse answer(std::optional<Int> id, const std::string& order = {},
                                           const std::string& pdf = {}) {
        SaveTextileOrderResponse made;
        made.orderId = id;
        if (!order.empty())
            made.urlOrder = Url{order};
        if (!pdf.empty())
            made.urlPDF = Url{pdf};
        return made;
    }
    // What is told next; the user has read it. Files are written beside the window's thread.
    std::string told() {
        EXPECT_TRUE(waitFor([this] { return alerts.isVisible() && !menu->veil()->isVisible(); }));
        std::string text = shown(alerts);
        alerts.answerButton(0);
        return text;
    }
    bool press(const char* button, const QString& typed = {}) {
        EXPECT_TRUE(waitFor([this] { return alerts.isVisible(); }));
        return kavor::press(alerts, QString::fromUtf8(button), typed);
    }
    // "Guardar como" under a name, answered by the server.
    void saveAs(const char* name) {
        sending().storeOrderOnDiskAction();
        EXPECT_TRUE(press("Guardar", QString::fromUtf8(name)));
    }
    [[nodiscard]] std::optional<KeptTextileOrder> file(const char* name,
                                                       Directory directory = Directory::draft) const {
        return orders.retrieve<KeptTextileOrder>(OrderDiskManager::fileName(name), directory);
    }
};

} // namespace kavor
