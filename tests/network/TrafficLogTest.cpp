#include "network/TrafficLog.h"

#include "NetworkFixture.h"
#include "network/KnownSecrets.h"
#include "session/LoginResult.h"
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
        {"Firebase registration token: T:T-t_4", "Firebase registration token: ***"},
    };
    for (const auto& row : table)
        EXPECT_EQ(redacted(row.text), row.shown);
    EXPECT_EQ(redactedHeader("authorization", "Bearer T"), "Bearer ***");
    EXPECT_EQ(redactedHeader("Set-Cookie", "session=T"), "***");
    EXPECT_EQ(redactedHeader("Location", "/x?token=T"), "/x?token=***");
}

TEST(KnownSecrets, AreBlankedInWhateverFormTheyStand) {
    KnownSecrets secrets;
    for (const char* secret : {R"(pá"s\ w&/<ñ>'%)", "s3cret-token", "s3cret", "€uro😀", "abc", ""})
        secrets.add(QString::fromUtf8(secret));
    const struct {
        const char* text;
        const char* shown;
    } table[] = {
        {R"(pá"s\ w&/<ñ>'%)", "***"},
        {"x=p%C3%A1%22s%5C%20w%26%2F%3C%C3%B1%3E%27%25&y", "x=***&y"},
        {"x=p%c3%a1%22s%5c+w%26/%3C%c3%b1%3E'%25&y", "x=***&y"},
        {"x=p%E1%22s%5C+w%26/%3C%F1%3E%27%25.", "x=***."},
        {"p%25C3%25A1%2522s%255C%2520w%2526%252F%253C%25C3%25B1%253E%2527%2525", "***"},
        {R"({"a":"pá\"s\\ w&\/<ñ>'%"})", R"({"a":"***"})"},
        {R"({"a":"p\u00e1\u0022s\u005C w\u0026\/\u003C\u00F1\u003e\u0027%"})", R"({"a":"***"})"},
        {R"({"a":"{\"b\":\"pá\\\"s\\\\ w&\\\/<\\u00f1>'%\"}"})", R"({"a":"{\"b\":\"***\"}"})"},
        {"<b>p&aacute;&quot;s\\ w&amp;/&lt;&ntilde;&gt;&#39;%</b>", "<b>***</b>"},
        {"<b>p&#225;&#34;s&#92; w&#x26;&#47;&#X3c;&#xF1;&gt;&apos;&#37;</b>", "<b>***</b>"},
        {"&lt;b&gt;p&amp;aacute;&amp;quot;s\\ w&amp;amp;/&amp;lt;&amp;ntilde;&amp;gt;&amp;#39;%&lt;",
         "&lt;b&gt;***&lt;"},
        {"pá\"s\\ w&/<\xF1>'% in Latin-1", "*** in Latin-1"},
        {"s3cret-token s3cret-tok s3cre", "*** ***-tok ***"},
        {"as3cretb%73%33%63ret", "a***b***"},
        {R"(€uro\ud83d\ude00 %E2%82%ACuro%F0%9F%98%80)", "*** ***"},
        {"S3CRET abc s3c", "S3CRET abc s3c"},
        {"the end of an answer: p%C3%A1%22s%5", "the end of an answer: ***"},
        {"", ""},
    };
    for (const auto& row : table)
        EXPECT_EQ(secrets.blanked(QString::fromUtf8(row.text)), QString::fromUtf8(row.shown)) << row.text;
}

// An error page may echo what it was asked, and an answer may hold its token twice.
TEST(TrafficLog, WritesALineForEachRequestAndNoSecretWhereverTheServerRepeatsIt) {
    TemporaryFolder folder;
    const auto file = folder / "traffic.log";
    Rig rig(true);
    qputenv("KAVOR_TRAFFIC_LOG", file.c_str());
    {
        NetworkManager manager(rig.manager.networkConfiguration(), {rig.auth, rig.reachability, rig.clock});
        qunsetenv("KAVOR_TRAFFIC_LOG");
        manager.setAccessToken("stale");
        AppSingleton::shared().fcmToken = "push-id";
        A echo = A::bytes("<p>cl&amp;ve stale stored s3cret one-time</p>", "text/html", 500);
        echo.headers.emplace_back("X-Echo", "cl%26ve stale");
        rig.server.then(loginPath, echo);
        rig.server.answer(loginPath, A::json(R"({"msg": "fresh", "token": "fresh"})"));
        rig.server.then(infoPath, A::empty(401));
        rig.server.answer(infoPath, A::json(R"({"msg": "{\"t\":\"fresh second\"}", "token": "second"})"));
        Outcome login;
        manager.login({"ana", "cl&ve", "one-time"}, login.completion<LoginResult>());
        ASSERT_TRUE(waitFor([&] { return login.ended(); }));
        Outcome read;
        manager.userInformation(read.completion<LoginResult>());
        ASSERT_TRUE(waitFor([&] { return read.ended(); }));
        AppSingleton::shared().fcmToken.reset();
    }
    const QByteArray text = QByteArray::fromStdString(contentOf(file));
    for (const char* secret : {"cl&ve", "cl&amp;ve", "cl%26ve", "stale", "stored", "s3cret", "one-time",
                               "fresh", "second", "push-id"})
        EXPECT_FALSE(text.contains(secret)) << secret;
    const QList<QByteArray> lines = text.trimmed().split('\n');
    ASSERT_EQ(lines.size(), 4) << "a login, and a read with a repair";
    const QJsonObject refused = QJsonDocument::fromJson(lines.first()).object();
    EXPECT_EQ(refused["operation"], "loginURL");
    EXPECT_EQ(refused["method"], "POST");
    EXPECT_EQ(refused["path"], "/api/loginURL");
    EXPECT_EQ(refused["status"], 500);
    EXPECT_EQ(QFileInfo(QString::fromStdString(file)).permissions() & (QFile::ReadGroup | QFile::ReadOther),
              QFile::Permissions());
    EXPECT_EQ(refused["answerBody"].toString(), "<p>*** *** *** *** ***</p>");
    EXPECT_EQ(refused["answerHeaders"]["X-Echo"].toString(), "*** ***");
}

TEST(KnownSecrets, OfAManagerAreThoseStoredAndThoseOfTheSessionAlsoWithoutATrafficLog) {
    Rig rig(true);
    NetworkManager manager(configurationFor(rig.server.address()), {rig.auth, rig.reachability, rig.clock});
    const auto known = manager.knownSecrets();
    EXPECT_EQ(known->blanked("stored s3cret one-time fresh").toStdString(), "*** *** one-time fresh");
    Outcome login;
    manager.login({"ana", "one-time", {}}, login.completion<LoginResult>());
    manager.setAccessToken("fresh");
    EXPECT_EQ(known->blanked("stored s3cret one-time fresh").toStdString(), "*** *** *** ***");
}

} // namespace
} // namespace kavor
