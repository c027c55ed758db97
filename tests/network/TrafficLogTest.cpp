#include "network/TrafficLog.h"

#include "NetworkFixture.h"
#include "shell/LoginResult.h"
#include "support/TemporaryFolder.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace kavor {
namespace {

using A = ScriptedAnswer;

TEST(TrafficLog, TakesSecretsOutOfEveryKindOfText) {
    const struct {
        QByteArray text;
        QByteArray shown;
    } table[] = {
        {R"({"msg":"hola","token":"T"})", R"({"msg":"hola","token":"***"})"},
        {R"({"user_token" : "T\"T", "n": 1})", R"({"user_token" : "***", "n": 1})"},
        {R"([{"Password":12},{"a":"token"}])", R"([{"Password":"***"},{"a":"token"}])"},
        {R"({"tokens":["T",{"x":"}T"}],"b":2})", R"({"tokens":"***","b":2})"},
        {R"({"\u0074oken":"T"})", R"({"\u0074oken":"***"})"},
        {R"({"a":1,"token":"T cut short)", R"({"a":1,"token":"***")"},
        {"login=ana&password=p%26T&token=T", "login=ana&password=***&token=***"},
        {"<a href='x?token=T&b=1'>Bearer T</a>", "<a href='x?token=***&b=1'>Bearer ***</a>"},
        {R"({"url":"https:\/\/a.es\/p.pdf?order_token=T"})",
         R"({"url":"https:\/\/a.es\/p.pdf?order_token=***"})"},
        {"terminal_code=T", "terminal_code=***"},
    };
    for (const auto& row : table)
        EXPECT_EQ(redacted(row.text), row.shown);
    EXPECT_EQ(redactedHeader("authorization", "Bearer T"), "Bearer ***");
    EXPECT_EQ(redactedHeader("Set-Cookie", "session=T"), "***");
    EXPECT_EQ(redactedHeader("Location", "/x?token=T"), "/x?token=***");
}

TEST(TrafficLog, WritesOneLineForEachRequestAndNothingSecret) {
    TemporaryFolder folder;
    const auto file = folder / "traffic.log";
    qputenv("KAVOR_TRAFFIC_LOG", file.c_str());
    {
        Rig rig(true);
        qunsetenv("KAVOR_TRAFFIC_LOG");
        AppSingleton::shared().fcmToken = "push-id";
        rig.server.then(infoPath, A::empty(401));
        rig.server.then(infoPath, A::json(R"({"msg": "ok", "user_token": "second"})"));
        rig.server.answer(loginPath, A::json(goodLogin));
        const Outcome& outcome = rig.start();
        ASSERT_TRUE(waitFor([&] { return outcome.ended(); }));
        AppSingleton::shared().fcmToken.reset();
    }
    const QByteArray text = QByteArray::fromStdString(contentOf(file));
    for (const char* secret : {"s3cret", "stale", "fresh", "stored", "second", "push-id"})
        EXPECT_FALSE(text.contains(secret)) << secret;
    const QList<QByteArray> lines = text.trimmed().split('\n');
    ASSERT_EQ(lines.size(), 3);
    const QJsonObject login = QJsonDocument::fromJson(lines[1]).object();
    EXPECT_EQ(login["operation"], "loginURL");
    EXPECT_EQ(login["method"], "POST");
    EXPECT_EQ(login["path"], "/api/loginURL");
    EXPECT_EQ(login["status"], 200);
    EXPECT_EQ(login["requestBody"], "login=ana&password=***&terminal_code=***");
    EXPECT_EQ(login["answerBody"], R"({"msg": "ok", "token": "***"})");
    EXPECT_EQ(QJsonDocument::fromJson(lines[0]).object()["status"], 401);
    EXPECT_EQ(QFileInfo(QString::fromStdString(file)).permissions() & (QFile::ReadGroup | QFile::ReadOther),
              QFile::Permissions());
}

} // namespace
} // namespace kavor
