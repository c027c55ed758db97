#include "interaction/AlertPresenter.h"
#include "orders/screens/ClaimOrderViewController.h"
#include "orders/screens/DemandBrandQrController.h"
#include "session/AppSingleton.h"
#include "session/services/AuthManager.h"
#include "support/Alerts.h"
#include "support/CatalogueBuilder.h"
#include "support/DeviceFakes.h"
#include "support/FakeServices.h"

#include <gtest/gtest.h>

namespace kavor {
namespace {

using Demand = DemandBrandQrController;

class OrderMessagesTest : public ::testing::Test {
protected:
    AppSingleton& session = AppSingleton::shared();
    FakeServices network;
    MemoryUserDefaults defaults;
    MemoryKeychain keychain;
    AuthManager auth{keychain, defaults, "http://server.example"};
    AlertPresenter alerts;
    RecordingUrlOpener urls;
    FakeReachability reachability;
    OrderMessages messages;
    OrderMessageServices services{session, network, auth, alerts, urls, reachability, messages};
    CatalogueBuilder builder;

    void SetUp() override {
        auth.addCredentials("ana", "secret", "token");
        auto& validations = builder.information.validations;
        validations.lstMenuQrTableQuantity = {10, 20};
        validations.lstMenuQrDoorQuantity = {1, 2};
        validations.lstMenuQrTacoQuantity = {5, 15};
        const auto brand = [](Int id, const char* name, ApplicationFather family) {
            Brochures::BrandQr qr;
            qr.id = id;
            qr.position = -id;
            qr.name = name;
            qr.applicationFather = family;
            return qr;
        };
        builder.brochures().brandQrs = {brand(3, "Roble", ApplicationFather::orderBeer),
                                        brand(4, "Tinto", ApplicationFather::orderWine),
                                        brand(5, "Encina", ApplicationFather::orderBeer)};
        builder.parameters(BrochureType::menu).withTaco = true;
        session.applicationInformation = builder.take();
    }
    void TearDown() override { session.applicationInformation.reset(); }

    static OrderList::Order order(BrochureType kind = BrochureType::menu) {
        OrderList::Order result;
        result.id = 41;
        result.typeId = kind;
        result.pdv = "Bar Pepe";
        result.brandQrId = 5;
        return result;
    }
    auto& claims() { return network.requests.claimOrder; }
    auto& demands() { return network.requests.demandBrandQr; }
    BrandQrDemand demanded(std::size_t call = 0) { return std::get<0>(demands().calls.at(call)); }
    int closings(ScreenController& screen) {
        QObject::connect(&screen, &ScreenController::closed, &screen, [this] { ++closed_; });
        return closed_ = 0;
    }
    int closed_ = 0;
};

TEST_F(OrderMessagesTest, AClaimNeedsACommentAndTheNetworkAndGoesOutAsTyped) {
    ClaimOrderViewController screen(services, 41, QStringLiteral("Bar Pepe"));
    EXPECT_EQ(screen.titleLabel(), u"Nueva reclamación sobre el pedido 41 - Bar Pepe");
    for (const char* blank : {"", " \n\t"}) {
        screen.editText(QString::fromUtf8(blank));
        screen.sendClaimAction();
        EXPECT_EQ(shown(alerts), "Atencion | Has de informar de un comentario.");
        press(alerts, QStringLiteral("Aceptar"));
    }
    screen.editText(QStringLiteral(" Falta una caja\n"));
    network.reachable = false;
    screen.sendClaimAction();
    EXPECT_EQ(shown(alerts), "Error | No hay conexión a internet.");
    press(alerts, QStringLiteral("Aceptar"));
    EXPECT_TRUE(claims().calls.empty());
    EXPECT_EQ(screen.text(), u" Falta una caja\n");
    network.reachable = true;
    screen.sendClaimAction();
    screen.sendClaimAction(); // a second tap
    ASSERT_EQ(claims().calls.size(), 1U);
    EXPECT_EQ(std::get<0>(claims().calls[0]), 41);
    EXPECT_EQ(std::get<1>(claims().calls[0]), u" Falta una caja\n");
}

TEST_F(OrderMessagesTest, AClaimThatWasTakenIsToldToTheListAndLeavesWithTheTap) {
    ClaimOrderViewController screen(services, 41, QStringLiteral("Bar Pepe"));
    closings(screen);
    qint64 claimed = 0;
    QObject::connect(&screen, &ClaimOrderViewController::claimed, [&](qint64 id) { claimed = id; });
    screen.editText(QStringLiteral("Falta una caja"));
    screen.sendClaimAction();
    ASSERT_TRUE(claims().succeed({"Lo miramos."}));
    EXPECT_EQ(claimed, 41);
    EXPECT_EQ(alerts.text(), u"Lo miramos.");
    EXPECT_EQ(closed_, 0);
    screen.sendClaimAction(); // a press that was already on its way
    EXPECT_EQ(claims().calls.size(), 1U);
    ASSERT_TRUE(press(alerts, QStringLiteral("Continuar")));
    EXPECT_EQ(closed_, 1);
    EXPECT_FALSE(alerts.isVisible());
    EXPECT_EQ(ClaimOrderViewController(services, 41, {}).text(), u"");
}

TEST_F(OrderMessagesTest, AClaimThatFailedOffersAnotherTryWithItsText) {
    ClaimOrderViewController screen(services, 41, {});
    closings(screen);
    screen.editText(QStringLiteral("Falta una caja"));
    screen.sendClaimAction();
    ASSERT_TRUE(claims().fail(failureWith({"Ahora no.", "Ni luego."})));
    EXPECT_EQ(shown(alerts), "Incidencia | Ahora no.");
    ASSERT_TRUE(press(alerts, QStringLiteral("Cancelar")));
    EXPECT_EQ(claims().calls.size(), 1U);
    screen.sendClaimAction();
    claims().fail(failureWith({"Ahora no."}));
    ASSERT_TRUE(press(alerts, QStringLiteral("Intentar de nuevo")));
    ASSERT_EQ(claims().calls.size(), 3U);
    EXPECT_EQ(std::get<1>(claims().calls[2]), u"Falta una caja");
    EXPECT_EQ(closed_, 0);
}

// Whoever heard nothing and sends the same again must not have two claims or twice the material.
TEST_F(OrderMessagesTest, TheSameSentAgainAfterALostAnswerKeepsItsKeyAlsoOnAScreenOpenedAnew) {
    const auto key = [&](std::size_t call) { return std::get<2>(claims().calls.at(call)); };
    {
        ClaimOrderViewController screen(services, 41, {});
        screen.editText(QStringLiteral("Falta una caja"));
        screen.sendClaimAction();
        claims().fail(lostAnswer());
        press(alerts, QStringLiteral("Intentar de nuevo"));
        screen.leaveVeil();
        EXPECT_EQ(shown(alerts), "Atención | Es posible que la reclamación ya se haya enviado.");
        press(alerts, QStringLiteral("Aceptar"));
        claims().succeed({"Tarde."});
        EXPECT_FALSE(alerts.isVisible()) << "an answer that nobody waits for";
        EXPECT_EQ(screen.text(), u"Falta una caja");
    }
    ClaimOrderViewController screen(services, 41, {});
    screen.sendClaimAction();
    claims().fail(failureWith({"Ahora no."}));
    press(alerts, QStringLiteral("Intentar de nuevo"));
    ASSERT_EQ(claims().calls.size(), 4U);
    EXPECT_FALSE(key(0).isEmpty());
    EXPECT_EQ(key(1), key(0));
    EXPECT_EQ(key(2), key(0));
    EXPECT_NE(key(3), key(0)) << "the server answered: the next one is another intent";

    const auto demandedKey = [&](std::size_t call) { return std::get<1>(demands().calls.at(call)); };
    for (const int table : {1, 1, 2}) {
        Demand form(services, order());
        form.chooseQuantity(Demand::Table, table);
        form.sendDemandAction();
        form.leaveVeil();
        press(alerts, QStringLiteral("Aceptar"));
    }
    EXPECT_EQ(demandedKey(1), demandedKey(0));
    EXPECT_NE(demandedKey(2), demandedKey(0));
}

TEST_F(OrderMessagesTest, AClaimThatWasNotSentWaitsForItsOrderAndItsAuthor) {
    {
        ClaimOrderViewController screen(services, 41, {});
        closings(screen);
        screen.editText(QStringLiteral("Falta una caja"));
        screen.closeSceneAction();
        screen.closeSceneAction(); // a second tap asks nothing more
        EXPECT_EQ(shown(alerts), "Atención | ¿Salir sin enviar?");
        press(alerts, QStringLiteral("No"));
        EXPECT_FALSE(alerts.isVisible());
        EXPECT_EQ(closed_, 0);
        screen.closeSceneAction();
        press(alerts, QStringLiteral("Sí"));
        EXPECT_EQ(closed_, 1);
    }
    EXPECT_EQ(ClaimOrderViewController(services, 42, {}).text(), u"");
    EXPECT_EQ(ClaimOrderViewController(services, 41, {}).text(), u"Falta una caja");
    auth.updateCredentials("eva", "secret", "token");
    EXPECT_EQ(ClaimOrderViewController(services, 41, {}).text(), u"");
}

TEST_F(OrderMessagesTest, ADemandOffersTheBrandsOfItsFamilyAndOpensWithItsOwn) {
    const auto names = [](const Demand& screen) {
        QStringList result;
        for (const QVariant& brand : screen.brands())
            result << brand.toMap().value(QStringLiteral("text")).toString();
        return result;
    };
    Demand screen(services, order());
    EXPECT_EQ(screen.titleLabel(), u"Selecciona las unidades que deséas imprimir nuevamente - 41 - Bar Pepe");
    EXPECT_EQ(names(screen), QStringList({"Roble", "Encina"}));
    EXPECT_EQ(screen.brandQrCarouselLabel(), u"Encina");
    OrderList::Order stale = order();
    for (const std::optional<Int> brand : {std::optional<Int>(99), std::optional<Int>()}) {
        stale.brandQrId = brand;
        EXPECT_EQ(Demand(services, stale).brandQrCarouselLabel(), u"Roble");
    }
    Demand wine(services, order(BrochureType::wineA4));
    EXPECT_EQ(names(wine), QStringList({"Tinto"}));
}

TEST_F(OrderMessagesTest, ADemandSendsTheQuantitiesOfTheTypeOnShow) {
    Demand screen(services, order());
    EXPECT_EQ(screen.brandQrTypePicker(), 0);
    screen.sendDemandAction(); // nothing chosen is no fault
    EXPECT_EQ(demanded(), (BrandQrDemand{41, 5, 1, 0, 0, 0, {}}));
    demands().fail(failureWith({"Ahora no."}));
    press(alerts, QStringLiteral("Cancelar"));
    screen.carouselCurrentItemIndexDidChange(0);
    screen.chooseQuantity(Demand::Table, 2);
    screen.chooseQuantity(Demand::Door, 1);
    screen.chooseQuantity(Demand::Door, 7); // there is no such row
    screen.chooseQuantity(Demand::Taco, 1);
    screen.editText(QStringLiteral("Se borró"));
    screen.sendDemandAction();
    screen.sendDemandAction();
    ASSERT_EQ(demands().calls.size(), 2U);
    EXPECT_EQ(demanded(1), (BrandQrDemand{41, 3, 1, 20, 1, 0, QStringLiteral("Se borró")}));
    demands().fail(failureWith({"Ahora no."}));
    press(alerts, QStringLiteral("Cancelar"));
    screen.chooseType(1);
    EXPECT_EQ(screen.brandQrCarouselLabel(), u"Roble") << "the brand stays with another type";
    screen.sendDemandAction();
    EXPECT_EQ(demanded(2), (BrandQrDemand{41, 3, 2, 0, 0, 15, QStringLiteral("Se borró")}));
}

TEST_F(OrderMessagesTest, OnlyAKindWithBlocksOpensWithThemOrSendsThem) {
    OrderList::Order blocks = order();
    blocks.brandQrType = 2;
    EXPECT_TRUE(Demand(services, blocks).isTaco());
    blocks.typeId = BrochureType::beer;
    Demand screen(services, blocks);
    EXPECT_FALSE(screen.isTypePickerVisible());
    screen.chooseType(1);
    screen.sendDemandAction();
    EXPECT_EQ(demanded().type, 1);
}

TEST_F(OrderMessagesTest, WithoutMaterialNothingIsSent) {
    const auto problemOf = [&](const char* what, auto change, int type = 0) {
        CatalogueBuilder changed = builder;
        change(changed);
        session.applicationInformation = changed.take();
        Demand screen(services, order());
        screen.chooseType(type);
        EXPECT_EQ(screen.problem(), u"No hay material QR para este pedido.") << what;
        screen.sendDemandAction();
    };
    problemOf("brands", [](auto& all) { all.brochures().brandQrs.clear(); });
    problemOf("the kind", [](auto& all) { all.brochures().types.clear(); });
    problemOf(
        "blocks", [](auto& all) { all.information.validations.lstMenuQrTacoQuantity.clear(); }, 1);
    problemOf("vinyls", [](auto& all) {
        all.information.validations.lstMenuQrTableQuantity.clear();
        all.information.validations.lstMenuQrDoorQuantity.clear();
    });
    session.applicationInformation.reset();
    Demand(services, order()).sendDemandAction();
    EXPECT_TRUE(demands().calls.empty());
}

TEST_F(OrderMessagesTest, ADemandThatWasTakenHandsTheOrdersNewStateToTheList) {
    const auto answered = [&](DemandBrandQrErrorResponse answer) {
        Demand screen(services, order());
        closings(screen);
        DemandedBrandQr kept;
        QObject::connect(&screen, &Demand::demanded, [&](const DemandedBrandQr& each) { kept = each; });
        screen.editText(QStringLiteral("Se borró"));
        screen.sendDemandAction();
        EXPECT_TRUE(demands().succeed(answer));
        EXPECT_EQ(alerts.text(), u"En marcha.");
        EXPECT_EQ(closed_, 0);
        press(alerts, QStringLiteral("Continuar"));
        EXPECT_EQ(closed_, 1);
        EXPECT_EQ(kept.orderId, 41);
        return kept;
    };
    const DemandedBrandQr full = answered({"En marcha.", false, 4, "En proceso"});
    EXPECT_EQ(full.canDemandQr, false);
    EXPECT_EQ(full.orderStateId, OrderState::inProcess);
    EXPECT_EQ(full.orderStateName, u"En proceso");
    const DemandedBrandQr unknown = answered({"En marcha.", {}, 13, {}});
    EXPECT_FALSE(unknown.orderStateId || unknown.canDemandQr || unknown.orderStateName);
}

TEST_F(OrderMessagesTest, ADemandsCommentIsAskedForBeforeItIsLostAndStartsEmpty) {
    {
        Demand screen(services, order());
        closings(screen);
        screen.editText(QStringLiteral("Se borró"));
        screen.closeSceneAction();
        EXPECT_EQ(alerts.text(), u"¿Salir sin enviar?");
        press(alerts, QStringLiteral("Sí"));
        EXPECT_EQ(closed_, 1);
    }
    EXPECT_EQ(Demand(services, order()).text(), u"");
}

} // namespace
} // namespace kavor
