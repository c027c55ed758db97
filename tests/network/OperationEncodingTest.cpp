#include "OperationTable.h"
#include "base/StopProcess.h"
#include "base/json/Json.h"
#include "brochures/engine/SaveBrochuresOrder.h"
#include "promotions/PromotionOrder.h"
#include "session/LoginResult.h"

#include <cmath>

namespace kavor {
namespace {

class EachOperation : public testing::TestWithParam<OperationCase> {};

TEST_P(EachOperation, SendsItsMethodPathAndParametersAndTakesItsAnswer) {
    const OperationCase& operation = GetParam();
    Rig rig;
    rig.server.answer(operation.path(), ScriptedAnswer::json(operation.answer));
    Outcome outcome;
    operation.start(rig.manager, outcome);
    EXPECT_FALSE(outcome.ended()) << "answers come later than the call";
    ASSERT_TRUE(waitFor([&] { return outcome.ended(); }));
    EXPECT_EQ(outcome.successes, 1);
    ASSERT_EQ(rig.server.requests().size(), 1);
    const ScriptedRequest& request = rig.server.requests().first();
    EXPECT_EQ(request.method, operation.method);
    EXPECT_EQ(request.target, "/api" + operation.target);
    EXPECT_EQ(request.header("authorization"), "Bearer stale");
    EXPECT_EQ(request.header("version"), "3.2.1");
    EXPECT_EQ(request.header("compilation"), "77");
    EXPECT_EQ(request.hasHeader("idempotency-key"), operation.changesServer);
    const QByteArray type = request.header("content-type");
    if (operation.bodyHas.empty()) {
        EXPECT_EQ(request.body, operation.form);
        EXPECT_EQ(type, operation.method == "GET" ? "" : "application/x-www-form-urlencoded; charset=utf-8");
    } else {
        EXPECT_EQ(type, "application/json");
        EXPECT_TRUE(json::isWellFormed(request.body.toStdString()));
        for (const QByteArray& piece : operation.bodyHas)
            EXPECT_TRUE(request.body.contains(piece))
                << piece.toStdString() << " in " << request.body.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Operations, EachOperation, testing::ValuesIn(everyOperation()),
                         [](const auto& each) { return each.param.name(); });

TEST(Operations, LogInWithATokenWithoutAPasswordAndSayTheirTerminalWhenItIsKnown) {
    Rig rig;
    rig.server.answer(loginPath, ScriptedAnswer::json(goodLogin));
    rig.manager.setAccessToken({});
    Outcome outcome;
    rig.manager.login({QStringLiteral("ana"), {}, QStringLiteral("once")}, outcome.completion<LoginResult>());
    AppSingleton::shared().fcmToken = "device 1";
    rig.manager.login({QStringLiteral("ana"), {}, QStringLiteral("once")}, outcome.completion<LoginResult>());
    ASSERT_TRUE(waitFor([&] { return outcome.successes == 2; }));
    QList<QByteArray> bodies{rig.server.requests()[0].body, rig.server.requests()[1].body};
    std::ranges::sort(bodies);
    EXPECT_EQ(bodies[0], "login=ana&terminal_code=device%201&token=once");
    EXPECT_EQ(bodies[1], "login=ana&token=once");
    EXPECT_EQ(rig.server.requests()[0].header("authorization"), "Bearer"); // the server drops trailing blanks
    EXPECT_EQ(rig.manager.accessToken(), "") << "the caller keeps the token, not the pipeline";
}

TEST(Operations, TellAMessageADemandAndAPromotionOnceUnderTheKeyOfTheirSender) {
    Rig rig;
    rig.server.setHandler([](const ScriptedRequest&) { return ScriptedAnswer::json(R"({"msg":"ok"})"); });
    Outcome outcome;
    rig.manager.claimOrder(5, {}, outcome.completion<MessageResponse>(), "mine");
    rig.manager.demandBrandQr({}, outcome.completion<DemandBrandQrErrorResponse>(), "mine");
    rig.manager.suggestionMailboxAdd(4, {}, outcome.completion<MessageResponse>(), "mine");
    rig.manager.promotionOrderSend({}, outcome.completion<GenericOrderResponse>(), "mine");
    ASSERT_TRUE(waitFor([&] { return outcome.successes == 4; }));
    for (const ScriptedRequest& request : rig.server.requests())
        EXPECT_EQ(request.header("idempotency-key"), "mine") << request.target.toStdString();
}

TEST(OperationsDeathTest, StopForACustomerWithoutASectionAndForAnOrderWithoutAJsonForm) {
    Rig rig;
    Outcome outcome;
    AppSingleton::shared().actualApplicationType.reset();
    EXPECT_EXIT(rig.manager.getCustomerDataFromTevoCode({}, outcome.completion<std::vector<Customer>>()),
                testing::ExitedWithCode(stoppedExitStatus), "actualApplicationType");
    SaveBrochuresOrder order;
    order.menu.beerBrands.emplace_back().beers.emplace_back().prices.push_back({1, std::nan("")});
    EXPECT_EXIT(rig.manager.saveOrder(order, outcome.completion<SaveBrochuresOrderResponse>()),
                testing::ExitedWithCode(stoppedExitStatus), "saveOrderURL");
}

} // namespace
} // namespace kavor
