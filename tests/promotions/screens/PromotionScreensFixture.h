#pragma once

#include "device/Background.h"
#include "device/Clock.h"
#include "interaction/AlertPresenter.h"
#include "promotions/PromotionFixture.h"
#include "promotions/UnfinishedPromotion.h"
#include "promotions/screens/PromotionStyleSelectorViewController.h"
#include "promotions/screens/PromotionViewController.h"
#include "resources/PlainDownloader.h"
#include "session/AppSingleton.h"
#include "support/Alerts.h"
#include "support/DeviceFakes.h"
#include "support/FakeServices.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <memory>

namespace kavor {

// The section of promotions, with the server and the device played by the test.
class PromotionScreens : public ::testing::Test {
protected:
    TemporaryFolder folder;
    AppSingleton& session = AppSingleton::shared();
    FakeServices network;
    AlertPresenter alerts;
    RecordingUrlOpener urls;
    FakePhotoPicker photos;
    FakeReachability reachability;
    PlainDownloader downloader;
    ManualClock clock;
    BackgroundWorkEnd backgroundWork;
    PromotionServices services{network, alerts, urls, photos, reachability, downloader, clock};
    CatalogueBuilder builder;
    std::unique_ptr<PromotionViewController> form;

    void SetUp() override {
        session.setFolders(folder.path(), folder / "caches");
        session.loginResult = LoginResult{};
        session.actualSection = SectionIdentifier::promotion(PromotionType::promotion);
        session.actualApplicationType = ApplicationType::carteleria;
        addPromotions(builder);
        builder.information.validations.promotionHourDayInit = "6";
        session.applicationInformation = builder.take();
    }
    void TearDown() override {
        form.reset();
        UnfinishedPromotion::shared().flush();
        session.actualSection.reset();
        session.actualApplicationType.reset();
        session.applicationInformation.reset();
        session.appendPromotionToMenu = false;
        session.setFolders({}, {});
    }

    // The form of a promotion in a language, as another run of the program opens it.
    PromotionViewController& open(Int promotion, Int language,
                                  std::optional<MenuPromotionUse> use = std::nullopt) {
        form.reset();
        const auto catalogue = session.applicationInformation;
        const auto& all = catalogue->information().promotion->promotions;
        const auto found = std::ranges::find(all, promotion, &Posters::Promotion::id);
        form = std::make_unique<PromotionViewController>(
            services, catalogue, promotionTuple(*found, std::optional(language)), std::move(use));
        form->viewWillAppear();
        return *form;
    }
    // What a complete order of promotion 1 takes.
    void complete() {
        form->customer()->editText("establishmentNameTextField", "Bar Sol");
        form->formatTable()->switchFormat(0, true);
    }
    // What was told last; the user has read it.
    std::string told() {
        std::string text = shown(alerts);
        while (alerts.isVisible())
            alerts.answerButton(0);
        return text;
    }
    // Whether an unfinished order would come back.
    [[nodiscard]] bool isKept() const {
        UnfinishedPromotion::shared().flush();
        return std::filesystem::exists(folder.path() / "promotionDraft");
    }
    auto& sends() { return network.requests.promotionOrderSend; }
    [[nodiscard]] std::string key(std::size_t send) {
        return std::get<1>(sends().calls.at(send)).toStdString();
    }
    [[nodiscard]] const PromotionOrder& order(std::size_t send) {
        return std::get<0>(sends().calls.at(send));
    }
    static GenericOrderResponse answer(std::optional<Int> id, const char* pdf = nullptr) {
        GenericOrderResponse response;
        response.orderIdentifier = id;
        if (pdf)
            response.PDFURL = Url{pdf};
        return response;
    }
};

} // namespace kavor
