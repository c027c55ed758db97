#include "base/json/Json.h"

#include "base/json/Table.h"

#include <gtest/gtest.h>

#include <limits>

namespace kavor {

#define KAVOR_FLAVOURS(CASE) CASE(sweet, 1) CASE(bitter, 3)
KAVOR_ENUMERATION(Flavour, KAVOR_FLAVOURS)

struct Tap {
    std::int64_t number = 0;
    std::uint64_t count = 0;
    double price = 0;
    bool open = false;
    std::string name;
    Flavour flavour = Flavour::sweet;
    std::vector<std::int64_t> list;
    std::optional<std::string> note;
    std::map<std::int64_t, double> map;
};

struct Bar {
    std::vector<Tap> taps;
};

namespace json {

template <>
struct Table<Tap> {
    static constexpr auto fields = std::tuple{
        required("number", &Tap::number), required("count", &Tap::count), required("price", &Tap::price),
        required("open", &Tap::open),     required("name", &Tap::name),   required("flavour", &Tap::flavour),
        required("list", &Tap::list),     optional("note", &Tap::note),   required("map", &Tap::map)};
};

template <>
struct Table<Bar> {
    static constexpr auto fields = std::tuple{required("taps", &Bar::taps)};
};

} // namespace json

namespace {

constexpr const char* plain =
    R"({"number":1,"count":2,"price":2.5,"open":true,"name":"Caña","flavour":3,"list":[1],"map":{"7":1.0}})";

// The plain document with one member's value replaced.
std::string with(const std::string& key, const std::string& value) {
    std::string text = plain;
    const auto from = text.find("\"" + key + "\":") + key.size() + 3;
    int depth = 0;
    auto to = from;
    while (depth > 0 || (text[to] != ',' && text[to] != '}')) {
        depth += text[to] == '[' || text[to] == '{' ? 1 : text[to] == ']' || text[to] == '}' ? -1 : 0;
        ++to;
    }
    return text.replace(from, to - from, value);
}

// What decoding says, the empty text for success.
std::string fault(const std::string& text) {
    const auto decoded = json::decode<Tap>(text);
    return decoded ? "" : decoded.error().text();
}

TEST(Json, RefusesEveryOtherFormAndNamesThePlace) {
    const struct {
        const char* key;
        const char* value;
        const char* expected;
    } cases[] = {
        {"number", "1.0", "number: expected integer, found number"},
        {"number", "1e2", "number: expected integer, found number"},
        {"number", "\"1\"", "number: expected integer, found string"},
        {"number", "null", "number: expected integer, found null"},
        {"number", "true", "number: expected integer, found boolean"},
        {"number", "9223372036854775808", "number: integer out of range"},
        {"count", "-1", "count: expected an integer of 0 or more"},
        {"price", "\"2,5\"", "price: expected number, found string"},
        {"open", "1", "open: expected boolean, found integer"},
        {"name", "1", "name: expected string, found integer"},
        {"flavour", "2", "flavour: expected one of 1, 3, found 2"},
        {"list", "{}", "list: expected list, found object"},
        {"list", "[1,null]", "list[1]: expected integer, found null"},
        {"list", "[1,[2]]", "list[1]: expected integer, found list"},
        {"map", R"({"a":1})", "map.a: expected a whole number as key"},
        {"map", R"({"1.5":1})", "map.1.5: expected a whole number as key"},
        {"map", R"({"1":null})", "map.1: expected number, found null"},
        {"map", "[]", "map: expected object, found list"},
    };
    for (const auto& [key, value, expected] : cases)
        EXPECT_EQ(fault(with(key, value)), expected);
    EXPECT_EQ(fault(with("count", "18446744073709551615")), "");
    EXPECT_EQ(fault(with("map", R"({"-3":1,"4":2})")), "");
    EXPECT_EQ(fault("[]"), "expected object, found list");
    EXPECT_EQ(fault("{}"), "number: missing");
    const auto nested =
        json::decode<Bar>(R"({"taps":[)" + std::string(plain) + "," + with("list", "[1,2,\"x\"]") + "]}");
    EXPECT_EQ(nested.error().text(), "taps[1].list[2]: expected integer, found string");
}

TEST(Json, WritesPlainAndPrettyAndReadsItsOwnTexts) {
    Tap tap = *json::decode<Tap>(plain);
    EXPECT_EQ(json::encode(tap).value(), plain);
    tap.note = std::string("\"\\\b\f\n\r\t\x01\0ñ/", 11);
    tap.price = 0.1 + 0.2;
    tap.map = {{-1, 12.0}, {3, 1e300}};
    EXPECT_EQ(
        json::encode(tap).value(),
        R"({"number":1,"count":2,"price":0.30000000000000004,"open":true,"name":"Caña","flavour":3,"list":[1],)"
        "\"note\":\"\\\"\\\\\\u0008\\u000c\\n\\r\\t\\u0001\\u0000ñ\",\"map\":{\"-1\":12.0,\"3\":1e+300}}");
    EXPECT_EQ(json::encodePretty(tap).value(), R"({
  "count": 2,
  "flavour": 3,
  "list": [
    1
  ],
  "map": {
    "-1": 12.0,
    "3": 1e+300
  },
  "name": "Caña",
  "note": "\"\\\u0008\u000c\n\r\t\u0001\u0000ñ",
  "number": 1,
  "open": true,
  "price": 0.30000000000000004
})");
    for (const auto& text : {json::encode(tap).value(), json::encodePretty(tap).value()})
        EXPECT_EQ(json::encode(*json::decode<Tap>(text)).value(), json::encode(tap).value());
    tap.list.clear();
    tap.map.clear();
    EXPECT_EQ(json::encodePretty(tap)->substr(0, 57),
              "{\n  \"count\": 2,\n  \"flavour\": 3,\n  \"list\": [],\n  \"map\": {}");
}

TEST(Json, ANumberWithoutJsonFormIsAFailure) {
    Tap tap;
    for (const double value :
         {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        tap.price = value;
        EXPECT_FALSE(json::encode(tap));
        EXPECT_FALSE(json::encodePretty(tap));
    }
}

TEST(Json, AParserServesManyDocumentsOfDifferentSizes) {
    const json::Parser parser;
    for (const int size : {1, 5000, 2}) {
        std::string list;
        for (int i = 0; i < size; ++i)
            list += (i == 0 ? "" : ",") + std::to_string(i);
        const auto tap = json::decode<Tap>(with("list", "[" + list + "]"), parser);
        ASSERT_TRUE(tap);
        EXPECT_EQ(tap->list.size(), std::size_t(size));
        EXPECT_FALSE(json::decode<Tap>("{", parser));
    }
}

} // namespace
} // namespace kavor
