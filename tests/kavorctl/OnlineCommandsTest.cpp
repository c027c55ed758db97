#include "RunCommand.h"
#include "base/BundleVersion.h"
#include "base/json/Json.h"
#include "brochures/engine/SaveBrochuresOrder.h"
#include "catalogue/ApplicationInformation.h"
#include "orders/OrderDiskManager.h"
#include "support/LogCapture.h"
#include "support/ScriptedServer.h"
#include "support/TemporaryFolder.h"

#include <QLockFile>

#include <gtest/gtest.h>

#include <iostream>

namespace kavor {
namespace {

// Standard input with this text, while it lives.
class TypedInput {
public:
    explicit TypedInput(const std::string& text)
        : text_(text)
        , former_(std::cin.rdbuf(text_.rdbuf())) {
        std::cin.clear();
    }
    TypedInput(const TypedInput&) = delete;
    TypedInput& operator=(const TypedInput&) = delete;
    ~TypedInput() { std::cin.rdbuf(former_); }

private:
    std::istringstream text_;
    std::streambuf* former_;
};

class OnlineCommandsTest : public ::testing::Test {
protected:
    OnlineCommandsTest() {
        qputenv("KAVOR_KEYCHAIN", "file");
        QByteArray configuration = QByteArray::fromStdString(
            contentOf(KAVOR_TEST_DATA "/../../apps/kavor/NetworkConfiguration.plist"));
        configuration.replace("http://127.0.0.1:8480", server.address().toUtf8());
        folder.put("conf.plist", configuration.toStdString());
        server.answer("/api/login", ScriptedAnswer::json(R"({"msg":"ok","token":"T1"})"));
    }
    ~OnlineCommandsTest() override {
        qunsetenv("KAVOR_OFFLINE");
        qunsetenv("KAVOR_KEYCHAIN");
    }

    [[nodiscard]] Outcome online(std::vector<std::string> arguments) const {
        arguments.insert(arguments.end(), {"--configuration", folder / "conf.plist", "--documents", documents,
                                           "--caches", folder / "caches"});
        return kavorctl(arguments);
    }
    [[nodiscard]] Outcome logIn(const std::string& typed = "secreta\n") const {
        const TypedInput input(typed);
        return online({"login", "ana"});
    }
    void putDraft(const std::string& name) const {
        SaveBrochuresOrder order;
        order.filename = name;
        ASSERT_TRUE(OrderDiskManager(documents).create(order, OrderDiskManager::DirectoryName::draft, name));
    }

    TemporaryFolder folder;
    std::filesystem::path documents = folder / "documents";
    ScriptedServer server;
    LogCapture log;
};

const QByteArray listPath = "/api/orders/list";

TEST_F(OnlineCommandsTest, LogsInWithThePasswordOfTheFirstLine) {
    EXPECT_EQ(logIn("secreta\r\nno\n").status, ctl::fine);
    const ScriptedRequest login = server.requestsTo("/api/login").value(0);
    EXPECT_EQ(login.body, "login=ana&password=secreta");
    EXPECT_EQ(login.header("version"), QByteArray::fromStdString(bundleVersion()));
    EXPECT_GT(login.header("compilation").toInt(), 0);
}

TEST_F(OnlineCommandsTest, SendsNothingWithoutPasswordOrNetwork) {
    for (const char* typed : {"", "\n", "\r\n"})
        EXPECT_EQ(logIn(typed).status, ctl::wrongUsage);
    folder.put("order.json", R"({"save":3,"order_lines":[],"menu":{}})");
    put(documents / "UserDefaults", "{}");
    putDraft("Local");
    qputenv("KAVOR_OFFLINE", "1");
    EXPECT_EQ(logIn().err, "No hay conexión a internet.\n");
    EXPECT_EQ(online({"catalogue", "fetch"}).err, "No hay conexión a internet.\n");
    EXPECT_EQ(online({"catalogue", "fetch"}).status, ctl::requestFailed);
    const Outcome list = online({"orders", "list"});
    EXPECT_NE(list.out.find("  Local\n"), std::string::npos) << list.out;
    EXPECT_EQ(list.status, ctl::fine);
    EXPECT_TRUE(server.requests().isEmpty());
}

TEST_F(OnlineCommandsTest, TellsWhyARequestFailedAndStillListsTheDevice) {
    putDraft("Local");
    EXPECT_NE(online({"orders", "list"}).out.find("  Local\n"), std::string::npos); // nobody is logged in
    ASSERT_EQ(logIn().status, ctl::fine);
    const std::vector<std::pair<ScriptedAnswer, std::string>> table{
        {ScriptedAnswer::json(R"({"msg":"roto"})", 500), ": roto (HTTP 500)\n"},
        {ScriptedAnswer::json(R"({"msg":"m","errors":{}})", 422), "(código 422). (HTTP 422)\n"},
        {ScriptedAnswer::json(R"({"msg":"Nueva","update_link":"https://kavor.example/v"})", 505),
         ": Nueva (HTTP 505)\nhttps://kavor.example/v\n"},
        {ScriptedAnswer::json("{"), "(No se ha podido leer la respuesta del servidor.)\n"},
        {ScriptedAnswer::cut(R"({"resumen":{}})", 5), "(Se ha perdido la conexión con el servidor.)\n"}};
    for (const auto& [answer, reason] : table) {
        server.answer(listPath, answer);
        server.answer("/api/catalogue", answer);
        const Outcome list = online({"orders", "list"});
        EXPECT_NE(list.out.find("  Local\n"), std::string::npos) << list.out;
        for (const Outcome& outcome : {list, online({"catalogue", "fetch"})}) {
            EXPECT_EQ(outcome.status, ctl::requestFailed);
            EXPECT_TRUE(outcome.err.ends_with(reason)) << outcome.err;
        }
    }
}

TEST_F(OnlineCommandsTest, ListsTheOrdersSentWithTheServersState) {
    ASSERT_EQ(logIn().status, ctl::fine);
    const QByteArray answer = R"({"resumen":{},"pedidos":[
        {"id":9,"fecha":"02-03-2020 10:11:12","can_demand_qr":false,"tipo":"x","tipoId":5,"estado":"En curso",
         "estadoId":5,"token":"t"}]})";
    server.answer(listPath, ScriptedAnswer::json(answer));
    const Outcome list = online({"orders", "list", "--json"});
    EXPECT_EQ(list.out, "[\n  {\n    \"date\": \"02-03-2020 10:11:12\",\n"
                        "    \"section\": \"Brochure(chalkboard)\",\n    \"serverId\": 9,\n"
                        "    \"state\": \"En curso\"\n  }\n]\n");
}

TEST_F(OnlineCommandsTest, ShowsTheProfileAndSendsSuggestionsAndClaims) {
    ASSERT_EQ(logIn().status, ctl::fine);
    server.answer("/api/profile",
                  ScriptedAnswer::json(R"({"usuario":{"name":"Ana","zona":"","presupuesto":"10 €",
        "disponible":"4 €","cartas_realizadas":"1","textil_presupuesto":"0 €","textil_disponible":"0 €",
        "textil_pedidos":"3"}})"));
    EXPECT_EQ(online({"profile"}).out,
              "Nombre: Ana\nCartas: 4 € de 10 €, 1 pedido\nTextil: 0 € de 0 €, 3 pedidos\n");
    EXPECT_TRUE(json::isWellFormed(online({"profile", "--json"}).out));
    const auto says = ScriptedAnswer::json(R"({"msg":"Gracias."})");
    server.answer("/api/orders/claim", says);
    server.answer("/api/suggestions", says);
    const Outcome claim = online({"orders", "claim", "41", " Falta una caja"});
    EXPECT_EQ(claim.out, "Gracias.\n") << claim.err;
    EXPECT_EQ(online({"suggest", "--category", "3", "Más papel"}).out, "Gracias.\n");
    EXPECT_EQ(server.requestsTo("/api/orders/claim").value(0).target,
              "/api/orders/claim?comment=%20Falta%20una%20caja&order_id=41");
    EXPECT_EQ(server.requestsTo("/api/suggestions").value(0).target,
              "/api/suggestions?body=M%C3%A1s%20papel&category_id=3");
    EXPECT_EQ(online({"orders", "claim", "41", " "}).status, ctl::wrongUsage);
    EXPECT_EQ(online({"suggest", "Más papel"}).status, ctl::wrongUsage);
    qputenv("KAVOR_OFFLINE", "1");
    EXPECT_EQ(online({"orders", "claim", "41", "Falta"}).err, "No hay conexión a internet.\n");
    EXPECT_EQ(server.requestsTo("/api/orders/claim").size(), 1);
}

TEST_F(OnlineCommandsTest, SendsAnActivationUnderTheKeyOfItsIntentAndTellsTheQuotas) {
    ASSERT_EQ(logIn().status, ctl::fine);
    folder.put("party.json", R"({"customer":{"name":"Bar Sol","full_address":"Mayor 1"},"activation":)"
                             R"({"activation_id":1,"date_event":"","time_from":"-","time_to":"-"}})");
    server.answer("/api/activations", ScriptedAnswer::json(R"({"order_id":7,"number_made":2})"));
    const std::vector<std::string> send{"activation", "send", folder / "party.json", "--intent", "fiesta"};
    EXPECT_EQ(online(send).out, "{\n  \"number_made\": 2,\n  \"order_id\": 7\n}\n");
    EXPECT_EQ(online(send).status, ctl::fine);
    const auto sent = server.requestsTo("/api/activations");
    ASSERT_EQ(sent.size(), 2);
    EXPECT_FALSE(sent[0].header("idempotency-key").isEmpty());
    EXPECT_EQ(sent[0].header("idempotency-key"), sent[1].header("idempotency-key"));
    server.answer("/api/activations/quota",
                  ScriptedAnswer::json(R"({"activations":[{"id":1,"quota":4,"number_made":2}]})"));
    EXPECT_NE(online({"activation", "quotas"}).out.find("\"quota\": 4"), std::string::npos);
    server.answer("/api/activations/quota", ScriptedAnswer::json(R"({"activations":[{"id":1}]})"));
    const Outcome wrong = online({"activation", "quotas"});
    EXPECT_EQ(wrong.status, ctl::requestFailed);
    EXPECT_EQ(wrong.err.find("No se puede obtener información del cupo"), 0U) << wrong.err;
}

TEST_F(OnlineCommandsTest, KeepsTheTokenOfARepairForTheNextProcess) {
    ASSERT_EQ(logIn().status, ctl::fine);
    server.answer("/api/login", ScriptedAnswer::json(R"({"msg":"ok","token":"T2"})"));
    server.then(listPath, ScriptedAnswer::json("{}", 401));
    server.answer(listPath, ScriptedAnswer::json(R"({"resumen":{}})"));
    EXPECT_EQ(online({"orders", "list"}).status, ctl::fine);
    EXPECT_EQ(online({"orders", "list"}).status, ctl::fine);
    const auto asked = server.requestsTo(listPath);
    ASSERT_EQ(asked.size(), 3);
    EXPECT_EQ(asked[2].header("authorization"), "Bearer T2");
    EXPECT_EQ(server.requestsTo("/api/login").size(), 2);
}

TEST_F(OnlineCommandsTest, ARunSaysWhatWentUpAndWhatDidNot) {
    putDraft("Uno");
    EXPECT_EQ(online({"sync"}).status, ctl::requestFailed) << "nobody is logged in";
    ASSERT_EQ(logIn().status, ctl::fine);
    server.then("/api/orders", ScriptedAnswer::json(R"({"msg":"roto"})", 500));
    const Outcome refused = online({"sync"});
    EXPECT_EQ(refused.status, ctl::requestFailed);
    EXPECT_EQ(refused.err, "Uno: roto (HTTP 500)\n");

    server.answer("/api/orders", ScriptedAnswer::json(R"({"order_id":7})"));
    QLockFile client(QString::fromStdString((documents / "kavor.lock").string()));
    ASSERT_TRUE(client.tryLock());
    EXPECT_EQ(online({"sync"}).out, "Kavor está abierto y sincroniza él mismo.\n");
    EXPECT_EQ(server.requestsTo("/api/orders").size(), 1);
    client.unlock();

    const Outcome sent = online({"sync"});
    EXPECT_EQ(sent.status, ctl::fine) << sent.err;
    EXPECT_EQ(sent.out, "Pedido guardado: Su pedido Uno se ha sincronizado.\n");
    EXPECT_EQ(online({"sync"}).out, "");
    EXPECT_EQ(server.requestsTo("/api/orders").size(), 2);
}

TEST_F(OnlineCommandsTest, SendsWhatWaitsOnceAndDeletesADraftInBothPlaces) {
    ASSERT_EQ(logIn().status, ctl::fine);
    const OrderDiskManager orders(documents);
    SaveBrochuresOrder order;
    order.orderIdentifier = 41;
    ASSERT_TRUE(orders.create(order, OrderDiskManager::DirectoryName::outbox, "Sin enviar"));
    ASSERT_TRUE(orders.create(order, OrderDiskManager::DirectoryName::draft, "Olmo"));

    server.then("/api/orders", ScriptedAnswer::of(ScriptedAnswer::Kind::Reset));
    EXPECT_EQ(online({"orders", "send", "Sin enviar"}).status, ctl::requestFailed);
    server.answer("/api/orders", ScriptedAnswer::json("{}"));
    EXPECT_EQ(online({"orders", "send", "Sin enviar"}).out, "Pedido realizado correctamente.\n");
    const auto sent = server.requestsTo("/api/orders");
    ASSERT_EQ(sent.size(), 2);
    EXPECT_EQ(sent[0].header("idempotency-key"), sent[1].header("idempotency-key"));
    EXPECT_EQ(online({"orders", "send", "Sin enviar"}).status, ctl::unreadableInput);

    server.answer(listPath, ScriptedAnswer::json(R"({"resumen":{},"pedidos":[
        {"id":41,"fecha":"02-03-2020 10:11:12","can_demand_qr":false,"tipo":"x","tipoId":1,"estado":"Nube",
         "estadoId":12,"token":"t","name_archive_tablet":"Olmo"}]})"));
    server.answer("/api/orders/delete", ScriptedAnswer::json("{}"));
    const Outcome deleted = online({"orders", "delete", "Olmo"});
    EXPECT_EQ(deleted.out, "El borrador se ha eliminado del dispositivo.\n"
                           "El borrador se ha eliminado en cloud.\n")
        << deleted.err;
    EXPECT_EQ(server.requestsTo("/api/orders/delete").size(), 1);
    EXPECT_FALSE(orders.exists<SaveBrochuresOrder>("Olmo", OrderDiskManager::DirectoryName::draft));
}

TEST_F(OnlineCommandsTest, FetchesThePicturesOfTheBackgroundTooAndTellsEachThatFailed) {
    ASSERT_EQ(logIn().status, ctl::fine);
    auto catalogue =
        json::decode<ApplicationInformation>(contentOf(KAVOR_TEST_DATA "/catalogue.json")).value();
    catalogue.images.clear();
    for (const auto& [name, downloadType] :
         {std::pair("one", 1), {"lost", 1}, {"two", 2}, {"broken", 2}, {"three", 3}})
        catalogue.images.push_back(
            {name, {server.address(QLatin1Char('/') + QLatin1String(name)).toStdString()}, downloadType});
    Textile::Typography font;
    font.filename = "lost.ttf";
    font.mimetype = "Lost";
    font.fontURL.text = server.address("/font").toStdString();
    catalogue.textile.emplace().typographies = {font};
    server.answer("/api/catalogue",
                  ScriptedAnswer::json(QByteArray::fromStdString(json::encode(catalogue).value())));
    server.answer("/one", ScriptedAnswer::bytes("1", "image/png"));
    server.answer("/two", ScriptedAnswer::slow("2", 1, 1));
    server.answer("/broken", ScriptedAnswer::of(ScriptedAnswer::Kind::Reset));
    const auto stored = [&] {
        return std::distance(std::filesystem::directory_iterator(folder / "caches/Images"), {});
    };

    const Outcome failed = online({"catalogue", "fetch"});
    EXPECT_EQ(failed.status, ctl::requestFailed);
    EXPECT_NE(failed.out.find("Catálogo actualizado: "), std::string::npos);
    EXPECT_NE(failed.err.find(server.address("/lost").toStdString() + ": HTTP 404\n"), std::string::npos)
        << failed.err;
    EXPECT_NE(failed.err.find(server.address("/broken").toStdString() + ": "), std::string::npos)
        << failed.err;
    EXPECT_NE(failed.err.find(server.address("/font").toStdString() + ": Lost\n"), std::string::npos)
        << failed.err;
    EXPECT_TRUE(failed.err.ends_with("kavorctl: resources that could not be had: 3\n")) << failed.err;
    EXPECT_EQ(stored(), 2);
    EXPECT_TRUE(server.requestsTo("/three").isEmpty());

    server.answer("/lost", ScriptedAnswer::bytes("3", "image/png"));
    server.answer("/broken", ScriptedAnswer::bytes("4", "image/png"));
    server.answer("/font", ScriptedAnswer::bytes("5", "font/ttf"));
    const Outcome whole = online({"catalogue", "fetch"});
    EXPECT_EQ(whole.status, ctl::fine);
    EXPECT_EQ(whole.err, "");
    EXPECT_EQ(stored(), 4);
}

// A folder in a file's place refuses the write, whoever runs the tests.
TEST_F(OnlineCommandsTest, FailsWhenWhatItStoresDoesNotReachTheDisk) {
    std::filesystem::create_directories(documents / "ZQLOGINRESULT/x");
    EXPECT_EQ(logIn().status, ctl::requestFailed);
    std::filesystem::remove_all(documents / "ZQLOGINRESULT");
    ASSERT_EQ(logIn().status, ctl::fine);

    server.answer("/api/catalogue", ScriptedAnswer::json(QByteArray::fromStdString(
                                        contentOf(KAVOR_TEST_DATA "/catalogue.json"))));
    std::filesystem::create_directories(documents / "ZQAPPLICATIONINFORMATION/x");
    const Outcome fetch = online({"catalogue", "fetch"});
    EXPECT_EQ(fetch.status, ctl::requestFailed);
    EXPECT_EQ(fetch.err, "kavorctl: the catalogue could not be stored\n");

    std::filesystem::remove_all(documents / ".keychain");
    put(documents / ".keychain", "");
    EXPECT_EQ(logIn().status, ctl::requestFailed);
}

} // namespace
} // namespace kavor
