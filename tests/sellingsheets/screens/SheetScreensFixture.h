#pragma once

#include "device/Background.h"
#include "device/Clock.h"
#include "interaction/AlertPresenter.h"
#include "orders/OrderDiskManager.h"
#include "resources/PlainDownloader.h"
#include "screens/ScreenStack.h"
#include "sellingsheets/SheetFixture.h"
#include "sellingsheets/UnfinishedSheet.h"
#include "sellingsheets/screens/DataViewController.h"
#include "sellingsheets/screens/ModifySingleModuleViewController.h"
#include "sellingsheets/screens/ModulesManagementController.h"
#include "sellingsheets/screens/SellingSheetOrderListManagerViewController.h"
#include "session/AppSingleton.h"
#include "support/Alerts.h"
#include "support/DeviceFakes.h"
#include "support/FakeServices.h"
#include "support/TemporaryFolder.h"
#include "support/WaitFor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace kavor {

// The section of selling sheets on its stack, with the server and the device played by the test.
class SheetScreens : public ::testing::Test {
protected:
    using ListController = SellingSheetOrderListManagerViewController;
    static constexpr auto draftFolder = OrderDiskManager::DirectoryName::draft;

    TemporaryFolder folder;
    AppSingleton& session = AppSingleton::shared();
    FakeServices network;
    AlertPresenter alerts;
    RecordingUrlOpener urls;
    FakePhotoPicker photos;
    FakeReachability reachability;
    PlainDownloader downloader;
    ManualClock clock{QDateTime(QDate(2024, 6, 6), QTime(7, 8, 9))};
    OrderDiskManager orders{folder.path()};
    BackgroundWorkEnd backgroundWork;
    SellingSheetServices services{network, orders, alerts, urls, photos, reachability, downloader, clock};
    CatalogueBuilder builder;
    std::unique_ptr<ScreenStack> screens;
    ListController* list = nullptr;

    void SetUp() override {
        session.setFolders(folder.path(), folder / "caches");
        addSheets(builder);
        session.applicationInformation = builder.take();
    }
    void TearDown() override {
        screens.reset();
        UnfinishedSheet::shared().flush();
        StyleSingleton::shared() = {};
        session.applicationInformation.reset();
        session.setFolders({}, {});
    }

    // Opens the section as another run of the program does; the server has these sheets.
    void open(const std::vector<SellingSheetOrder>& sent = {}) {
        screens = std::make_unique<ScreenStack>();
        list = new ListController(services);
        QObject::connect(list, &ListController::screenRequested, screens.get(), &ScreenStack::push);
        screens->push({QUrl(), list});
        requests().sellingSheetOrderList.succeed({sent});
        settle();
    }
    // Until what runs beside the window is through.
    static void settle() {
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    template <class Controller>
    [[nodiscard]] Controller* top() const {
        return qobject_cast<Controller*>(screens->top()->controller);
    }
    [[nodiscard]] bool isListOnShow() const { return screens->top()->controller == list; }
    FakeServices::Requests& requests() { return network.requests; }
    auto& sends() { return requests().sellingSheetOrderSend; }

    void putDraft(const std::string& name, const SellingSheetOrder& sheet = completeSheet()) const {
        ASSERT_TRUE(orders.create(sheet, draftFolder, name));
    }
    [[nodiscard]] std::optional<SellingSheetOrder> draft(const std::string& name) const {
        return orders.retrieve<SellingSheetOrder>(OrderDiskManager::fileName(name), draftFolder);
    }
    [[nodiscard]] std::vector<std::string> draftNames() const {
        std::vector<std::string> names;
        for (const auto& file : orders.list<SellingSheetOrder>(draftFolder))
            names.push_back(OrderDiskManager::plainName(file.fileName));
        std::ranges::sort(names);
        return names;
    }
    [[nodiscard]] bool isKept() const {
        UnfinishedSheet::shared().flush();
        return std::filesystem::exists(folder.path() / UnfinishedSheet::stateFile) ||
               std::filesystem::exists(folder.path() /
                                       (std::string(UnfinishedSheet::stateFile) + ".recovery"));
    }
    // What was told last; the user has read it.
    std::string told() {
        std::string text = shown(alerts);
        while (alerts.isVisible())
            alerts.answerButton(0);
        return text;
    }
    static SellingSheetOrder sentSheet(Int id) {
        SellingSheetOrder sheet = completeSheet();
        sheet.identifier = id;
        sheet.orderToken = "t" + std::to_string(id);
        sheet.createdAt = "01-06-2024 10:00:00";
        return sheet;
    }
};

} // namespace kavor
