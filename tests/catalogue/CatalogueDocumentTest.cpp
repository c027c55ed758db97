#include "base/json/Json.h"
#include "catalogue/ApplicationInformation.h"
#include "support/JsonData.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <iterator>
#include <regex>
#include <set>

namespace kavor {

namespace {

JsonData document() {
    return JsonData::ofFile(KAVOR_TEST_DATA "/catalogue.json");
}

std::string fault(const JsonData& data) {
    const auto decoded = json::decode<ApplicationInformation>(data.text());
    return decoded ? "" : decoded.error().text();
}

// The members that a catalogue may leave out, by their path without indexes.
const std::set<std::string> optionalMembers = [] {
    std::ifstream file(KAVOR_TEST_DATA "/catalogue_optional_members.txt");
    return std::set<std::string>(std::istream_iterator<std::string>(file), {});
}();

const std::set<std::string> doubles{
    "factor_correction", "price_minimal", "price_maximum_avise", "price", "price1", "price2"};
const std::set<std::string> enumerations{"application_father_id", "application_type_id",
                                         "cartas.cartatipos.id", "cartas.precios.id"};

std::string withoutIndexes(const std::string& path) {
    return std::regex_replace(path, std::regex(R"(\[\d+\])"), "");
}

// Visits every value of a document. Each is handed over in its place, so that it can be changed and put back.
using Visit = std::function<void(JsonData& value, const std::string& path)>;
void walk(JsonData& value, const Visit& visit, const std::string& path = {}) {
    if (!path.empty())
        visit(value, path);
    for (std::size_t i = 0; i < value.members.size(); ++i) {
        const auto key = value.members[i].first;
        const bool list = value.kind == JsonData::Kind::list;
        walk(value.members[i].second, visit,
             list ? path + "[" + std::to_string(i) + "]" : path + (path.empty() ? "" : ".") + key);
    }
}

// What a value may not be replaced by.
std::vector<std::string> wrongValues(const JsonData& value, const std::string& path) {
    if (value.kind == JsonData::Kind::object)
        return {"[]", "\"x\"", "1"};
    if (value.kind == JsonData::Kind::list)
        return {"{}", "\"1,2\"", "1", "[null]"};
    const auto plain = withoutIndexes(path);
    const auto key = plain.substr(plain.rfind('.') + 1);
    if (value.scalar == "true" || value.scalar == "false")
        return {"1", "\"true\"", "[]"};
    if (value.scalar.front() == '"') {
        std::vector<std::string> wrong{"1", "true", "{}"};
        if (key == "path" || key == "archive" || key == "url_font")
            wrong.insert(wrong.end(), {"\"\"", "\"https://a b\""});
        if (key == "date_from" || key == "date_to")
            wrong.insert(wrong.end(), {"\"2024-01-01\"", "\"30-02-2024 00:00:00\""});
        return wrong;
    }
    if (doubles.contains(key))
        return {"\"1\"", "true", "[1]"};
    std::vector<std::string> wrong{"\"1\"", "1.5", "1e3", "true", "9223372036854775808"};
    if (enumerations.contains(key) || enumerations.contains(plain))
        wrong.emplace_back("99");
    return wrong;
}

TEST(CatalogueDocument, DecodesAndEncodesToTheSameDocument) {
    const auto data = document();
    const auto decoded = json::decode<ApplicationInformation>(data.text());
    ASSERT_TRUE(decoded) << decoded.error().text();
    EXPECT_EQ(JsonData::of(json::encode(*decoded).value()).text(true), data.text(true));
    EXPECT_EQ(JsonData::of(json::encodePretty(*decoded).value()).text(), data.text(true))
        << "its keys are sorted";
}

TEST(CatalogueDocument, OneWrongValueAnywhereFailsItAndIsNamed) {
    auto data = document();
    int count = 0;
    walk(data, [&](JsonData& value, const std::string& path) {
        const JsonData good = value;
        for (const auto& wrong : wrongValues(good, path)) {
            value = JsonData::of(wrong);
            const std::string place = wrong == "[null]" ? path + "[0]: " : path + ": ";
            const auto text = fault(data);
            EXPECT_TRUE(text.starts_with(place)) << wrong << " for " << path << " says \"" << text << "\"";
            ++count;
        }
        value = good;
    });
    EXPECT_GT(count, 1000);
    EXPECT_EQ(fault(data), "");
}

TEST(CatalogueDocument, OnlyTheOptionalMembersMayBeAbsentOrNull) {
    auto data = document();
    std::set<std::string> seen;
    walk(data, [&](JsonData& value, const std::string& path) {
        const auto plain = withoutIndexes(path);
        const bool optional = path.back() != ']' && optionalMembers.contains(plain);
        if (optional)
            seen.insert(plain);
        const JsonData good = std::exchange(value, JsonData());
        EXPECT_EQ(fault(data).empty(), optional) << path << " null";
        value = good;
        if (value.kind != JsonData::Kind::object)
            return;
        for (const auto& member : good.members) {
            const std::string& key = member.first;
            std::erase_if(value.members, [&key](const auto& each) { return each.first == key; });
            const bool mayGo = optionalMembers.contains(plain + "." + key);
            EXPECT_EQ(fault(data), mayGo ? "" : path + "." + key + ": missing");
            value = good;
        }
    });
    EXPECT_EQ(seen, optionalMembers) << "the document shows every optional member";
}

TEST(CatalogueDocument, MembersWithoutAKeyStayUnset) {
    const auto decoded =
        json::decode<ApplicationInformation>(document()
                                                 .set("productos.0.description", "5")
                                                 .set("cartas.estilos.0.brandId", "\"x\"")
                                                 .set("activaciones.definiciones.0.color", "7")
                                                 .text());
    ASSERT_TRUE(decoded) << decoded.error().text();
    EXPECT_EQ(decoded->products.front().description, std::nullopt);
    EXPECT_EQ(decoded->brochures->styles.front().brandId, std::nullopt);
    EXPECT_EQ(decoded->activations->definitionsList.front().color, std::nullopt);
}

} // namespace
} // namespace kavor
