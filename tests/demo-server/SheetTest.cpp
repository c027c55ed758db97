#include "PdfText.h"
#include "RunningServer.h"

#include <gtest/gtest.h>

#include <set>

namespace kavor::demo {
namespace {

/// What the catalogue offers on selling sheets: bottles in boxes.
std::vector<int> offeredFormats(const Catalogue& catalogue) {
    std::vector<int> formats;
    for (const Brand& brand : catalogue.brands()) {
        for (const Format& format : brand.formats) {
            if (format.onSellingSheet && format.isBottle) {
                formats.push_back(format.id);
            }
        }
    }
    return formats;
}

Json sheetOrder(bool save) {
    static const Catalogue catalogue(60, "http://127.0.0.1:1");
    const auto formats = offeredFormats(catalogue);
    Json item = {{"id", 1},           {"code_promotion", "REF-9"},
                 {"position", 0},     {"product1_id", formats.front()},
                 {"product1_box", 2}, {"product2_id", formats.back()},
                 {"product2_box", 1}, {"price", 72.5}};
    return {{"id", 0},
            {"save", save},
            {"token", ""},
            {"created_at", ""},
            {"style_id", 2},
            {"name_order", "Terraza"},
            {"title", "Verano"},
            {"sub_title", "En la barra"},
            {"taxes_included", true},
            {"date_from", "2031-06-01"},
            {"date_to", "2031-06-30"},
            {"include_logo_nrv", true},
            {"free_text", "Hasta fin de existencias"},
            {"show_one_module_per_page", false},
            {"email_to_send1", "uno@bar.example"},
            {"email_to_send2", ""},
            {"items", Json::array({item, item, item})}};
}

QByteArray pdfAt(RunningServer& server, const Json& url) {
    return QByteArray::fromStdString(server.get(url.get<std::string>().substr(server.baseUrl().size())).text);
}

TEST(SheetOfTheDemoServer, IsListedMailedAndDeletedOnce) {
    RunningServer server;
    server.login();
    const size_t before = server.get("/api/sheets/list").json["orders"].size();
    const auto answer = server.post("/api/sheets", sheetOrder(true), "k1");
    ASSERT_EQ(answer.status, 200) << answer.text;
    EXPECT_EQ(server.post("/api/sheets", sheetOrder(true), "k1").text, answer.text);
    const Json sheets = server.get("/api/sheets/list").json["orders"];
    ASSERT_EQ(sheets.size(), before + 1);
    EXPECT_EQ(sheets[0]["id"], answer.json["order_id"]);
    EXPECT_EQ(sheets[0]["url_pdf"], answer.json["url"]);
    EXPECT_FALSE(sheets[0].contains("save"));
    const httplib::Params named = {{"order_id", std::to_string(sheets[0]["id"].get<int>())},
                                   {"order_token", sheets[0]["token"].get<std::string>()}};
    EXPECT_EQ(
        server
            .query("/api/sheets/delete", {{"order_id", named.find("order_id")->second}, {"order_token", "x"}})
            .status,
        404);
    EXPECT_EQ(server.query("/api/sheets/delete", named).status, 200);
    EXPECT_EQ(server.get("/api/sheets/list").json["orders"].size(), before);
}

TEST(SheetOfTheDemoServer, IsRefusedByTheMemberThatIsWrong) {
    RunningServer server;
    server.login();
    const auto refused = [&server](const char* pointer, const Json& value) {
        Json order = sheetOrder(true);
        order[Json::json_pointer(pointer)] = value;
        const auto answer = server.post("/api/sheets", order);
        EXPECT_EQ(answer.status, 422) << pointer << answer.text;
        return answer.status == 422 && answer.json["errors"].size() == 1 ? answer.json["errors"].begin().key()
                                                                         : answer.text;
    };
    EXPECT_EQ(refused("/style_id", 99), "style_id");
    EXPECT_EQ(refused("/title", std::string(51, 'a')), "title");
    EXPECT_EQ(refused("/sub_title", std::string(81, 'a')), "sub_title");
    EXPECT_EQ(refused("/free_text", std::string(201, 'a')), "free_text");
    EXPECT_EQ(refused("/date_from", "2031-02-30"), "date_from");
    EXPECT_EQ(refused("/date_to", "2031-06-01"), "date_to");
    EXPECT_EQ(refused("/email_to_send2", "nadie"), "email_to_send2");
    EXPECT_EQ(refused("/items/1/product1_id", 4711), "items[1].product1_id");
    EXPECT_EQ(refused("/items/2/product2_box", 0), "items[2].product2_box");
    EXPECT_EQ(refused("/items/0/price", 0), "items[0].price");
    Json accented = sheetOrder(false);
    std::string title;
    for (int i = 0; i < 50; ++i) {
        title += "e\u0301"; // one character of a letter and its accent
    }
    accented["title"] = title;
    accented["date_to"] = "";
    EXPECT_EQ(server.post("/api/sheets", accented).status, 200);
}

TEST(SheetOfTheDemoServer, IsPrintedWithAllThatItOffers) {
    RunningServer server;
    server.login();
    Json order = sheetOrder(false);
    const QByteArray together = pdfAt(server, server.post("/api/sheets", order).json["url"]);
    order["show_one_module_per_page"] = true;
    const QByteArray apart = pdfAt(server, server.post("/api/sheets", order).json["url"]);
    EXPECT_EQ(ReadPdf(together).pages(), 1);
    EXPECT_EQ(ReadPdf(apart).pages(), 3);
    for (const QByteArray& pdf : {together, apart}) {
        const QString words = textOf(pdf);
        for (const char* word : {"Verano", "En la barra", "01/06/2031", "72,50", "por botella", "REF-9", "×2",
                                 "Hasta fin de existencias", "Impuestos incluidos"}) {
            EXPECT_TRUE(words.contains(word)) << word << words.toStdString();
        }
    }
}

TEST(SheetsOfTheHistory, AreOfEverySort) {
    Options options;
    options.history = true;
    RunningServer server(options);
    server.login();
    const Json sheets = server.get("/api/sheets/list").json["orders"];
    ASSERT_EQ(sheets.size(), 3U);
    int withLogo = 0, withoutPdf = 0, onePerPage = 0;
    for (const Json& sheet : sheets) {
        withoutPdf += !sheet.contains("url_pdf");
        onePerPage += sheet["show_one_module_per_page"].get<bool>();
        if (sheet.contains("distribution_logo_url")) {
            ++withLogo;
            EXPECT_TRUE(pdfAt(server, sheet["distribution_logo_url"]).startsWith("\x89PNG"));
        }
        Json again = sheet; // as a client asks for its preview
        again["save"] = false;
        const auto answer = server.post("/api/sheets", again);
        ASSERT_EQ(answer.status, 200) << answer.text;
        const int pages = ReadPdf(pdfAt(server, answer.json["url"])).pages();
        EXPECT_EQ(pages, sheet["show_one_module_per_page"].get<bool>() ? int(sheet["items"].size()) : 1);
    }
    EXPECT_TRUE(withLogo == 1 && withoutPdf == 1 && onePerPage == 1);
}

} // namespace
} // namespace kavor::demo
