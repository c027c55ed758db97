#include "network/FailureMapping.h"

#include "NetworkFixture.h"
#include "interaction/AlertPresenter.h"
#include "network/ShowRequestFailure.h"

// What the user reads about a failed request.
namespace kavor {
namespace {

using Fault = HttpAnswer::Fault;
using Kind = RequestError::Kind;

constexpr auto timeText = "No podemos procesar su petición por exceso de tiempo. Inténtelo más tarde.";

TEST(FailureMapping, GivesEachSituationItsErrorAndMessages) {
    const QByteArray errors = R"({"msg": "m", "errors": {"b": ["tres"], "a": ["uno", "dos"], "c": []}})";
    const struct {
        Fault fault;
        int status;
        QByteArray body;
        Kind kind;
        QStringList messages;
    } table[] = {
        {Fault::Transport, 0, "", Kind::Transport, {genericText}},
        {Fault::TimedOut, 0, "", Kind::TimedOut, {genericText}},
        {Fault::None, 500, "", Kind::Status, {genericText}},
        {Fault::TimedOut, 200, "{\"m", Kind::TimedOut, {timeText}},
        {Fault::TimedOut, 422, "{\"m", Kind::TimedOut, {timeText}},
        {Fault::None, 200, "{}", Kind::Decoding, {genericText}},
        {Fault::None, 200, R"({"msg": "no es un fallo"})", Kind::Decoding, {genericText}},
        {Fault::Transport, 500, R"({"msg": "x"})", Kind::Transport, {genericText}},
        {Fault::None, 422, errors, Kind::Status, {"uno", "dos", "tres"}},
        {Fault::None, 429, errors, Kind::Status, {"uno", "dos", "tres"}},
        {Fault::None, 422, R"({"msg": "m", "errors": {}})", Kind::Status, {}},
        {Fault::None, 422, R"({"msg": "solo esto"})", Kind::Status, {"solo esto"}},
        {Fault::None, 422, R"({"errors": {"a": ["uno"]}})", Kind::Status, {genericText}},
        {Fault::None, 429, R"({"msg": "m", "errors": {"a": "uno"}})", Kind::Status, {"m"}},
        {Fault::None, 500, errors, Kind::Status, {"m"}},
        {Fault::None, 201, R"({"msg": "creado"})", Kind::Status, {"creado"}},
        {Fault::None, 302, R"({"msg": "allí"})", Kind::Status, {"allí"}},
        {Fault::None, 404, "<html></html>", Kind::Status, {genericText}},
        {Fault::None, 505, R"({"msg": "vieja"})", Kind::Status, {"vieja"}},
        {Fault::None, 505, R"({"msg": "vieja", "update_link": "no es"})", Kind::Status, {"vieja"}},
        {Fault::None, 505, R"({"update_link": "https://a.es"})", Kind::Status, {genericText}},
    };
    for (const auto& row : table) {
        const RequestFailure failure = mapFailure({row.fault, row.status, {}, row.body, {}});
        SCOPED_TRACE(std::to_string(row.status) + " " + row.body.toStdString());
        EXPECT_EQ(int(failure.error.kind), int(row.kind));
        EXPECT_EQ(failure.error.status, row.status);
        EXPECT_FALSE(failure.error.localizedDescription.isEmpty());
        EXPECT_FALSE(failure.error.updateNeeded);
        ASSERT_TRUE(failure.messages);
        EXPECT_EQ(*failure.messages, row.messages);
    }
}

struct Shown {
    AlertPresenter alerts;
    RecordingUrlOpener urls;
    int veilsHidden = 0;

    void show(const RequestFailure& failure, bool preferMessages) {
        showRequestFailure(
            {alerts, urls}, [this] { ++veilsHidden; }, failure, preferMessages, QStringLiteral("Incidencia"));
    }
};

TEST(ShowRequestFailure, ShowsTheFirstMessageWhenPreferredElseTheDescription) {
    const RequestError error{Kind::Status, 422, QStringLiteral("descripción"), {}};
    const struct {
        std::optional<QStringList> messages;
        bool prefer;
        QString text;
    } table[] = {
        {QStringList{"uno", "dos"}, true, "uno"},
        {QStringList{"uno", "dos"}, false, "descripción"},
        {QStringList{}, true, "descripción"},
        {std::nullopt, true, "descripción"},
    };
    for (const auto& row : table) {
        Shown shown;
        shown.show({error, row.messages}, row.prefer);
        EXPECT_EQ(shown.alerts.title(), "Incidencia");
        EXPECT_EQ(shown.alerts.text(), row.text);
        ASSERT_EQ(shown.alerts.current()->buttons.size(), 1);
        EXPECT_EQ(shown.alerts.current()->buttons[0].text, "Aceptar");
        EXPECT_EQ(shown.veilsHidden, 1);
        shown.alerts.answerButton(0);
        EXPECT_EQ(shown.veilsHidden, 1);
    }
    AlertPresenter alerts;
    RecordingUrlOpener urls;
    showRequestFailure({alerts, urls}, {}, {error, {}}, true, QStringLiteral("Sin velo"));
    EXPECT_EQ(alerts.title(), "Sin velo");
}

TEST(ShowRequestFailure, OffersTheUpdateAndLeavesTheVeil) {
    const RequestFailure failure{{Kind::Status, 505, QStringLiteral("d"),
                                  ServerResponseError{QStringLiteral("Actualice"), QUrl("https://a.es/x")}},
                                 std::nullopt};
    for (const int answer : {0, 1}) {
        Shown shown;
        shown.show(failure, true);
        EXPECT_EQ(shown.alerts.title(), "Atención");
        EXPECT_EQ(shown.alerts.text(), "Actualice");
        ASSERT_EQ(shown.alerts.current()->buttons.size(), 2);
        EXPECT_EQ(shown.alerts.current()->buttons[0].text, "No");
        EXPECT_EQ(shown.alerts.current()->buttons[0].role, AlertButton::Role::Cancel);
        EXPECT_EQ(shown.alerts.current()->buttons[1].text, "Actualizar");
        shown.alerts.answerButton(answer);
        EXPECT_EQ(shown.urls.opened, answer == 1 ? QStringList{"https://a.es/x"} : QStringList{});
        EXPECT_EQ(shown.veilsHidden, 0);
    }
}

} // namespace
} // namespace kavor
