#include "RunningServer.h"
#include "catalogue/Content.h"

#include <gtest/gtest.h>

#include <set>

namespace kavor::demo {
namespace {

TEST(FilmOfTheDemoServer, ComesWholeOrInThePieceThatAPlayerAsksFor) {
    RunningServer server;
    server.login();
    const Json tutorials = Json::parse(server.get("/api/catalogue").text)["manuales"];
    ASSERT_EQ(tutorials.size(), 4u);
    std::set<std::string> films;
    for (const Json& tutorial : tutorials) {
        const std::string address = tutorial["video"]["path"].get<std::string>();
        const auto reply = server.get(address.substr(server.baseUrl().size()));
        EXPECT_EQ(reply.text.substr(4, 4), "ftyp") << address;
        EXPECT_LT(reply.text.size(), size_t(400'000)) << address;
        films.insert(reply.text);
    }
    EXPECT_EQ(films.size(), 4u);

    const std::string path = "/tutoriales/1.mp4", film = server.get(path).text;
    const std::string size = std::to_string(film.size());
    const auto last = film.size() - 1;
    struct Case {
        const char* range;
        size_t first, last;
    };
    for (const Case& piece : {Case{"bytes=0-", 0, last},
                              {"bytes=100-199", 100, 199},
                              {"bytes=1000-99999999", 1000, last},
                              {"bytes=-50", last - 49, last},
                              {"bytes=-99999999", 0, last}}) {
        const auto reply = server.raw("GET", path, piece.range);
        ASSERT_TRUE(reply) << piece.range;
        EXPECT_EQ(reply->status, 206) << piece.range;
        EXPECT_EQ(reply->get_header_value("Content-Range"),
                  "bytes " + std::to_string(piece.first) + "-" + std::to_string(piece.last) + "/" + size);
        EXPECT_TRUE(reply->body == film.substr(piece.first, piece.last - piece.first + 1)) << piece.range;
    }
    for (const std::string& beyond : {"bytes=" + size + "-", std::string("bytes=-0")}) {
        const auto reply = server.raw("GET", path, beyond);
        ASSERT_TRUE(reply) << beyond;
        EXPECT_EQ(reply->status, 416) << beyond;
        EXPECT_EQ(reply->get_header_value("Content-Range"), "bytes */" + size);
    }
    const auto head = server.raw("HEAD", path);
    EXPECT_EQ(head->status, 200);
    EXPECT_EQ(head->get_header_value("Content-Length"), size);
    EXPECT_EQ(head->get_header_value("Accept-Ranges"), "bytes");
    EXPECT_EQ(head->get_header_value("Content-Type"), "video/mp4");
    EXPECT_EQ(server.raw("GET", "/api/profile", "bytes=0-3")->status, 200) << "only films come in pieces";
}

TEST(ProfileFormOfTheDemoServer, ChangesWhatTheProfileAnswers) {
    RunningServer server;
    server.login();
    const auto user = [&] { return server.get("/api/profile").json["usuario"]; };
    const std::string path = user()["url"].get<std::string>().substr(server.baseUrl().size());
    EXPECT_NE(server.get(path).text.find("<form method=\"post\">"), std::string::npos);
    const httplib::Params change = {{"name", "Ana \"la\" <Jefa>"},
                                    {"email", "ana@kavor.example"},
                                    {"telefono", "600000001"},
                                    {"cp", "10003"},
                                    {"direccion1", ""},
                                    {"presupuesto", "99"}};
    const auto saved = server.form(path, change);
    EXPECT_NE(saved.text.find("Ana &quot;la&quot; &lt;Jefa&gt;"), std::string::npos);
    EXPECT_EQ(user()["name"], "Ana \"la\" <Jefa>");
    EXPECT_EQ(user()["cp"], "10003");
    EXPECT_TRUE(user()["direccion1"].is_null());
    EXPECT_EQ(user()["presupuesto"], "4.800,00 €");
    for (const httplib::Params& wrong : {httplib::Params{{"name", " "}},
                                         {{"email", "ana"}},
                                         {{"cp", "1000"}},
                                         {{"municipio", std::string(300, 'x')}}}) {
        EXPECT_NE(server.form(path, wrong).text.find("class=\"fault\""), std::string::npos);
    }
    EXPECT_EQ(user()["name"], "Ana \"la\" <Jefa>");
    EXPECT_EQ(server.get("/perfil/" + std::string(32, 'a')).status, 404);
    server.login("ayuda@kavor.example", "malta2024");
    EXPECT_EQ(user()["name"], "Nuño Casablana");
}

TEST(MailboxOfTheDemoServer, ShowsWhatWasSuggestedToTestsAndToABrowser) {
    RunningServer server;
    server.login();
    EXPECT_EQ(server.query("/api/suggestions", {{"category_id", "9"}, {"body", "a"}}).status, 422);
    EXPECT_EQ(server.query("/api/suggestions", {{"category_id", "1"}, {"body", "\n "}}).status, 422);
    EXPECT_EQ(server.query("/api/suggestions", {{"category_id", "2"}, {"body", "Más <b>cañas</b>\n& tapas"}})
                  .status,
              200);
    const Json suggestions = server.get("/demo/suggestions").json;
    ASSERT_EQ(suggestions.size(), 1u);
    EXPECT_EQ(suggestions[0]["account"], "rep@kavor.example");
    EXPECT_EQ(suggestions[0]["category"], "Pedidos y entregas");
    EXPECT_EQ(suggestions[0]["body"], "Más <b>cañas</b>\n& tapas");
    EXPECT_NE(server.get("/sugerencias").text.find("Más &lt;b&gt;cañas&lt;/b&gt;\n&amp; tapas"),
              std::string::npos);
}

TEST(MailboxOfTheDemoServer, TakesWhatFitsAQueryAndSaysSoOfWhatDoesNot) {
    RunningServer server;
    server.login();
    const auto send = [&](size_t length) {
        return server.query("/api/suggestions", {{"category_id", "1"}, {"body", std::string(length, 'a')}});
    };
    EXPECT_EQ(send(7500).status, 200);
    const auto refused = send(9000);
    EXPECT_EQ(refused.status, 422);
    EXPECT_EQ(refused.json["msg"], refused.json["errors"]["query"][0]);
    EXPECT_EQ(server.get("/demo/suggestions").json.size(), 1u);
}

} // namespace
} // namespace kavor::demo
