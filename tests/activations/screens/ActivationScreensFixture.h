#pragma once

#include "activations/ActivationFixture.h"
#include "activations/ActivationMemory.h"
#include "activations/screens/ActivationDetailViewController.h"
#include "activations/screens/ActivationElementsSelectionViewController.h"
#include "activations/screens/ActivationsBrandSelectionViewController.h"
#include "activations/screens/ActivationsSelectionViewController.h"
#include "activations/screens/ActivationsSendViewController.h"
#include "device/Clock.h"
#include "device/FileExport.h"
#include "interaction/AlertPresenter.h"
#include "resources/PlainDownloader.h"
#include "screens/ScreenStack.h"
#include "session/AppSingleton.h"
#include "support/Alerts.h"
#include "support/DeviceFakes.h"
#include "support/FakeServices.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <memory>

namespace kavor {

// Keeps what was handed to the user.
class RecordingExport : public FileExport {
public:
    QString name;
    QByteArray content;
    bool works = true;

    std::optional<QString> saveAndOpen(const QString& wanted, const QByteArray& bytes) override {
        if (!works)
            return std::nullopt;
        name = wanted;
        content = bytes;
        return QStringLiteral("Descargas/") + wanted;
    }
};

// The section of activations on its stack, with the server and the device played by the test. It is
// 22-11-2026, a Sunday, at half past six.
class ActivationScreens : public ::testing::Test {
protected:
    TemporaryFolder folder;
    AppSingleton& session = AppSingleton::shared();
    FakeServices network;
    AlertPresenter alerts;
    RecordingUrlOpener urls;
    FakePhotoPicker photos;
    FakeReachability reachability;
    PlainDownloader downloader;
    ManualClock clock{QDateTime(QDate(2026, 11, 22), QTime(18, 30))};
    RecordingExport files;
    CatalogueBuilder builder;
    std::unique_ptr<ScreenStack> screens;
    std::unique_ptr<ActivationServices> services;

    void SetUp() override {
        static int account = 0; // each test is another user: nothing of the one before is remembered
        session.userEmail = "rep" + std::to_string(++account);
        session.setFolders(folder.path(), folder / "caches");
        addActivations(builder);
        openSection();
    }
    void TearDown() override {
        screens.reset();
        session.applicationInformation.reset();
        session.userEmail.reset();
        session.setFolders({}, {});
    }
    void openSection() {
        session.applicationInformation = builder.take();
        screens = std::make_unique<ScreenStack>();
        services = std::make_unique<ActivationServices>(ActivationServices{
            network, alerts, urls, photos, reachability, downloader, clock, files, *screens});
        screens->push({QUrl(), new QObject}); // the dashboard
        screens->push({QUrl(), new ActivationsBrandSelectionViewController(*services)});
    }
    // The screen on show; null when it is another one.
    template <class Controller>
    Controller* top() const {
        return qobject_cast<Controller*>(screens->top()->controller);
    }
    ActivationsBrandSelectionViewController& brands() const {
        return *top<ActivationsBrandSelectionViewController>();
    }
    ActivationsSelectionViewController& choice() const { return *top<ActivationsSelectionViewController>(); }
    ActivationElementsSelectionViewController& elements() const {
        return *top<ActivationElementsSelectionViewController>();
    }
    ActivationsSendViewController& form() const { return *top<ActivationsSendViewController>(); }

    // To the elements of an activation of the first definition.
    void openElements(Int activation = 21, const ActivationsUserQuota& quota = {}) {
        brands().selectBrand(1);
        network.requests.activationUserQuota.succeed(quota);
        choice().selectActivation(activation);
        choice().nextAction();
    }
    void openForm(Int activation = 21, const ActivationsUserQuota& quota = {}) {
        openElements(activation, quota);
        elements().nextAction();
    }
    void chooseHours(int from, int to) const {
        form().hours()->openStart();
        form().hours()->pickHour(from);
        form().hours()->select();
        form().hours()->openEnd();
        form().hours()->pickHour(to);
        form().hours()->select();
    }
    void choosePlace() {
        form().locationAction();
        press(alerts, "Usar", "Mayor 1");
        network.requests.searchMaps.succeed({{address("Calle Mayor 1, Madrid", "28013", "Madrid")}});
        alerts.answerChoice(0);
    }
    void complete() {
        form().calendar()->tap("05-12-2026");
        chooseHours(20, 23);
        form().customer()->editText("establishmentNameTextField", "Bar Sol");
        choosePlace();
        form().attributes()->finish(0, "2,5");
    }
    void send() const {
        form().sendAction();
        form().confirmSend();
    }
    // What was told last; the user has read it.
    std::string told() {
        std::string text = shown(alerts);
        if (alerts.isVisible())
            alerts.answerButton(0);
        return text;
    }
    static SearchMapsResponse::Address address(const std::string& full, std::optional<std::string> zip = {},
                                               std::optional<std::string> city = {}) {
        SearchMapsResponse::Address result;
        result.fullAddress = full;
        result.zip = std::move(zip);
        result.city = std::move(city);
        return result;
    }
    static SaveBrochuresOrderActivationResponse answer(std::optional<Int> id, const char* url = nullptr,
                                                       std::optional<Int> made = {},
                                                       std::optional<Int> quota = {}) {
        return {url ? std::optional(Url{url}) : std::nullopt, id, quota, made};
    }
    auto& sends() { return network.requests.activationOrder; }
    [[nodiscard]] const ActivationOrder& order(std::size_t place) {
        return std::get<0>(sends().calls.at(place));
    }
    [[nodiscard]] QByteArray key(std::size_t place) { return std::get<1>(sends().calls.at(place)); }
};

} // namespace kavor
