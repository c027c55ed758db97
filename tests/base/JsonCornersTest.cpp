#include "base/Int.h"
#include "base/json/Table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <functional>
#include <random>

namespace kavor {

namespace {

struct Corner {
    Int id = 0;
    std::optional<std::string> note;
    std::optional<std::vector<double>> prices;
    struct Inner {
        Int a = 0;
        std::optional<Int> b;
    };
    std::optional<Inner> inner;
};

// One record that must be there inside another.
struct Nest {
    Corner::Inner inner;
};

// Names as long as what is compared at a time, a letter more and less, and alike at both ends.
struct Long {
    Int seven = 0;
    Int eight = 0;
    Int nine = 0;
    Int sixteen = 0;
    Int alike = 0;
    Int other = 0;
};

} // namespace

namespace json {
template <>
struct Table<Long> {
    static constexpr auto fields = std::tuple{required("letters", &Long::seven),
                                              required("lettersA", &Long::eight),
                                              required("lettersAB", &Long::nine),
                                              required("lettersABletters", &Long::sixteen),
                                              required("lettersAB1lettersAB", &Long::alike),
                                              required("lettersAB2lettersAB", &Long::other)};
};
template <>
struct Table<Corner::Inner> {
    static constexpr auto fields =
        std::tuple{required("a", &Corner::Inner::a), optional("b", &Corner::Inner::b)};
};
template <>
struct Table<Corner> {
    static constexpr auto fields =
        std::tuple{required("id", &Corner::id), optional("note", &Corner::note),
                   optional("prices", &Corner::prices), optional("inner", &Corner::inner)};
};
template <>
struct Table<Nest> {
    static constexpr auto fields = std::tuple{required("inner", &Nest::inner)};
};
} // namespace json

namespace {

using namespace std::string_literals;

// What a document of one value reads as, written again; its fault otherwise.
template <class Value>
std::string reading(const std::string& document) {
    const auto value = json::decode<Value>(document);
    return value ? json::encode(*value).value() : value.error().text();
}

const std::string wellFormed[] = {
    // structure
    "[]", "{}", " \t\r\n[ 1 , 2 ]\n", "null", "true", "1", "\"x\"", "[[]   ]", "{\"\":0}",
    "{\"a\":1,\"a\":2}", "{\"\\u0061\":[]}",
    // numbers
    "[-0]", "[0e1]", "[1E+2]", "[123e45]", "[20e-1]", "[-1]", "[0.1]", "[1.5e-7]", "[123.456789]", "[0e+1]",
    "[1e-400]", "[9223372036854775807]", "[-9223372036854775808]", "[18446744073709551615]",
    "[18446744073709551616]", "[-9223372036854775809]", "[1e400]", "[-1e400]",
    "-123456789012345678901234567890",
    // texts
    R"(["\"\\\/\b\f\n\r\t"])", R"(["\u0000"])", R"(["\uD83C\uDF7A"])", R"(["\u00e1\u20AC"])", "[\"\x7f\"]",
    "[\"\u2028\"]", "[\"\xF4\x8F\xBF\xBF\"]", "[\"new\u00a0line\"]"};

const std::string malformed[] = {
    // structure
    "", " ", "[", "]", "{", "[1", "[1}", "{\"a\":1]", "[1,]", "[,1]", "[1,,2]", "[1 2]", "[\"a\" \"b\"]",
    "[1]x", "[1][2]", "1 2", "{\"a\":1,}", "{,}", "{a:1}", "{'a':1}", "{\"a\" 1}", "{\"a\":}", "{\"a\"}",
    "{1:1}", "{\"a\":1 \"b\":2}", "[1:2]", "{\"a\":\"b\":\"c\"}", "{}}", "[]]", "//c\n[]", "[1/*c*/]", "[\f]",
    "[\u00a0]", "[1]\0"s, "\0"s, "[1\0]"s,
    // words and numbers
    "[nul]", "[True]", "[FALSE]", "[undefined]", "[NaN]", "[Infinity]", "[-Infinity]", "[01]", "[-01]",
    "[+1]", "[.5]", "[1.]", "[1.e1]", "[-]", "[--1]", "[1e]", "[1e+]", "[1eE2]", "[0x1F]", "[1_000]",
    "[1,000.]", "[- 1]", "[\u0661]", "[1a]",
    // texts
    "\"", "[\"a]", "[\"\\\"]", "['a']", "[\"\t\"]", "[\"\n\"]", "[\"\0\"]"s, "[\"\\x41\"]", "[\"\\u12\"]",
    "[\"\\u12G4\"]", "[\"\\U0041\"]", "[\"\\", "[\"\\uD800\"]", "[\"\\uDC00\"]", "[\"\\uD800\\u0041\"]",
    "[\"\\uD800x\"]",
    // bytes that are no UTF-8
    "[\"\xFF\"]", "[\"\xC0\x80\"]", "[\"\xE0\x80\x80\"]", "[\"\xED\xA0\x80\"]", "[\"\xF4\x90\x80\x80\"]",
    "[\"\xE2\x82\"]", "[\"\x80\"]", "[\"\xF8\x88\x80\x80\x80\"]", "\xFE\xFF[]", "[\xC3\xA9]"};

// Values that no member takes are checked as they are passed over, and no less strictly than the rest.
TEST(JsonCorners, OnlyWellFormedTextsAreTakenAlsoWhereTheyArePassedOver) {
    const auto agree = [](const std::string& value) {
        for (const std::string& text :
             {R"({"id":7,"unknown":)" + value + "}", R"({"id":7,"unknown":[)" + value + "],\"note\":null}",
              R"({"unknown":{"x":)" + value + "},\"id\":7}", R"({"id":7})" + value})
            EXPECT_EQ(json::decode<Corner>(text).has_value(), json::isWellFormed(text))
                << text.substr(0, 200);
    };
    for (const auto& text : wellFormed) {
        EXPECT_TRUE(json::isWellFormed(text)) << text;
        agree(text);
    }
    for (const auto& text : malformed) {
        EXPECT_FALSE(json::isWellFormed(text)) << text;
        agree(text);
    }
    for (std::size_t depth = 1015; depth < 1030; ++depth)
        agree(std::string(depth, '[') + std::string(depth, ']'));
}

TEST(JsonCorners, NumbersKeepTheirLastDigit) {
    const auto number = reading<double>;
    const std::pair<const char*, const char*> numbers[] = {
        {"12", "12.0"},
        {"-0.0", "-0.0"},
        {"-0", "0.0"},
        {"0.1", "0.1"},
        {"0.30000000000000004", "0.30000000000000004"},
        {"1e15", "1000000000000000.0"},
        {"9007199254740993", "9007199254740992.0"},
        {"1.7976931348623157e308", "1.7976931348623157e+308"},
        {"5e-324", "5e-324"},
        {"2.2250738585072011e-308", "2.225073858507201e-308"},
        {"1e-400", "0.0"},
        {"1e-99999999999999999999", "0.0"},
        {"1e00000000000000000001", "10.0"},
        {"123456789012345678901234567890.0", "1.2345678901234568e+29"},
        {"123456789012345678901234567890", "1.2345678901234568e+29"},
        {"-9223372036854775809", "-9223372036854775808.0"},
        {"18446744073709551615", "18446744073709551616.0"}};
    for (const auto& [text, written] : numbers) {
        EXPECT_EQ(number(text), written);
        EXPECT_EQ(number(written), written);
    }
    // What no member can hold is a fault of its place, not of the text.
    for (const char* large :
         {"9223372036854775808", "-9223372036854775809", "123456789012345678901234567890"})
        EXPECT_EQ(reading<Corner>(R"({"inner":{"a":)" + std::string(large) + R"(},"id":1})"),
                  "inner.a: integer out of range");
    EXPECT_EQ(reading<Corner>(R"({"id":1,"prices":[1,1e400]})"), "prices[1]: number out of range");
    EXPECT_EQ(
        reading<Corner>(R"({"x":[1e400,{"y":-1e999}],"id":1,"prices":[123456789012345678901234567890,2]})"),
        R"({"id":1,"prices":[1.2345678901234568e+29,2.0]})");
    EXPECT_EQ(reading<Corner>(R"({"id":1e400})"), "id: expected integer, found number");
}

// Prices are written by a short way of their own; it must write what the long one would.
TEST(JsonCorners, PricesAreWrittenInTheirShortestForm) {
    const auto shortest = [](double value) {
        char buffer[400];
        const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed).ptr;
        const std::string text(buffer, end);
        return text.find('.') == std::string::npos ? text + ".0" : text;
    };
    std::mt19937_64 dice(3);
    for (int i = 0; i < 20'000; ++i) {
        const auto hundredths = static_cast<double>(dice() >> (12 + i % 52));
        for (const double value : {hundredths / 100, -hundredths / 100, hundredths / 1000, hundredths * 1.1,
                                   std::nextafter(hundredths / 100, 0)}) {
            const double size = std::fabs(value);
            if (size == 0 || (size >= 1e-5 && size < 1e16)) {
                EXPECT_EQ(json::encode(value).value(), shortest(value));
            }
        }
    }
}

TEST(JsonCorners, WhatMustBeEscapedIsFoundAtEveryPlace) {
    for (std::size_t size = 1; size < 20; ++size) {
        for (std::size_t place = 0; place < size; ++place) {
            for (const char special : {'"', '\\', '\n', '\x1f', '\0', ' ', '!', '\x7f', '\xc3'}) {
                std::string text(size, 'a');
                text[place] = special;
                if (special == '\xc3')
                    text.insert(place + 1, "\xb1");
                EXPECT_EQ(json::decode<std::string>(json::encode(text).value()).value(), text);
            }
        }
    }
}

TEST(JsonCorners, DepthCostsAnErrorAndNoMemory) {
    const auto nested = [](std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); };
    EXPECT_TRUE(json::isWellFormed(nested(1000)));
    EXPECT_FALSE(json::isWellFormed(nested(2000)));
    EXPECT_FALSE(json::isWellFormed(nested(5'000'000)));
    EXPECT_FALSE(json::isWellFormed(std::string(5'000'000, '[')));
    std::string objects;
    for (int i = 0; i < 100'000; ++i)
        objects += "{\"a\":";
    EXPECT_FALSE(json::isWellFormed(objects));
    EXPECT_FALSE(json::decode<Corner>("{\"id\":1,\"unknown\":" + nested(2000) + "}"));
}

TEST(JsonCorners, NearlyAKeyIsNone) {
    EXPECT_EQ(reading<Corner>(
                  R"({"x":{"id":"no"},"id ":2,"":3,"\u0069d":7,"y":[[{}]],"n\u006Fte":"escaped keys"})"),
              R"({"id":7,"note":"escaped keys"})");
    EXPECT_EQ(reading<Corner>(R"({"id":7,"inner":{"b":2}})"), "inner.a: missing");
}

TEST(JsonCorners, KeysAreFoundInEveryOrderAndSpelling) {
    std::mt19937 dice(11);
    const auto one = [&dice](auto... choice) {
        const std::array<std::string, sizeof...(choice)> all{choice...};
        return all[dice() % all.size()];
    };
    for (int i = 0; i < 500; ++i) {
        std::vector<std::string> fields;
        const auto add = [&](const std::string& key, const std::string& value) {
            fields.push_back('"' + key + '"' + one("", " ", "\n\t") + ":" + one("", " ") + value);
        };
        add(one("id", "id", "\\u0069d", "i\\u0064"), "7");
        add(one("note", "note", "not\\u0065"), R"("\"id\":3")");
        add(one("prices", "prices", "\\u0070rices"), "[1.5]");
        add("inner", one(R"({"b":2,"a":1})", R"({"a":1,"b":2})", R"({"A":3,"b":2,"a":1})"));
        // Names that are nearly one of the record's, in their first or last letters or their size.
        for (const char* other : {"", "i", "idd", "Note", "notes", "price", "pricess", "in\\\"ner", "id\\\"",
                                  "\\\\id", "note with much behind", "not\\u0066"}) {
            if (dice() % 4 == 0)
                add(other, one("null", "[{}]", R"("id")", "8"));
        }
        std::ranges::shuffle(fields, dice);
        std::string document = "{";
        for (const auto& field : fields)
            document += (document.size() > 1 ? one(",", " , ") : "") + field;
        EXPECT_EQ(reading<Corner>(document + "}"),
                  R"({"id":7,"note":"\"id\":3","prices":[1.5],"inner":{"a":1,"b":2}})")
            << document;
    }
}

TEST(JsonCorners, LongKeysAreToldApartByEveryLetter) {
    std::mt19937 dice(12);
    for (int i = 0; i < 500; ++i) {
        std::vector<std::string> fields{R"("letters":7)",
                                        R"("lettersA":8)",
                                        R"("lettersAB":9)",
                                        R"("lettersABletters":16)",
                                        R"("lettersAB1lettersAB":1)",
                                        R"("lettersAB2lettersAB":2)"};
        for (auto& field : fields) {
            if (dice() % 3 == 0)
                field.replace(field.find('e'), 1, "\\u0065");
        }
        // As long, and alike at both ends.
        for (const char* other :
             {R"("lettersAB3lettersAB":"3")", R"("lettersABLetters":null)", R"("lettersB":[])"}) {
            if (dice() % 2 == 0)
                fields.emplace_back(other);
        }
        std::ranges::shuffle(fields, dice);
        std::string document;
        for (const auto& field : fields)
            document += (document.empty() ? "{" : ",") + field;
        EXPECT_EQ(
            reading<Long>(document + "}"),
            R"({"letters":7,"lettersA":8,"lettersAB":9,"lettersABletters":16,"lettersAB1lettersAB":1,"lettersAB2lettersAB":2})")
            << document;
    }
}

TEST(JsonCorners, OfARepeatedKeyTheLastCountsAndNothingOfTheOthers) {
    EXPECT_EQ(
        reading<Corner>(
            R"({"id":1,"prices":[1],"inner":{"a":1,"b":2},"note":"x","id":2,"prices":[2,3],"inner":{"a":3},"note":null})"),
        R"({"id":2,"prices":[2.0,3.0],"inner":{"a":3}})");
    EXPECT_EQ(reading<Nest>(R"({"inner":{"a":1,"b":2},"inner":{"a":3}})"), R"({"inner":{"a":3}})");
    EXPECT_EQ(reading<Nest>(R"({"inner":{"a":"x"},"inner":{"a":3}})"),
              "inner.a: expected integer, found string");
}

} // namespace

} // namespace kavor
