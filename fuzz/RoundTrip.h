#pragma once

#include "Targets.h"
#include "base/json/Json.h"

#include <optional>
#include <string>

namespace kavor::fuzz {

// A plain document with the first letter of each key as an escape.
inline std::string withEscapedKeys(std::string_view plain) {
    std::string out;
    for (std::size_t i = 0; i < plain.size(); ++i) {
        if (plain[i] != '"') {
            out += plain[i];
            continue;
        }
        std::size_t end = i + 1;
        while (plain[end] != '"')
            end += plain[end] == '\\' ? 2 : 1;
        const char first = plain[i + 1];
        const bool isKey = end + 1 < plain.size() && plain[end + 1] == ':';
        if (isKey && first >= ' ' && first != '"' && first != '\\') {
            constexpr const char* digits = "0123456789abcdef";
            out += "\"\\u00";
            out += {digits[first >> 4], digits[first & 15]};
            ++i;
        } else {
            out += '"';
        }
        out.append(plain.substr(i + 1, end - i));
        i = end;
    }
    return out;
}

// What decodes must encode, plainly and pretty, and decode again to a record that encodes the same. What does
// not decode must say why. Answers the record.
template <class Record>
std::optional<Record> roundTrip(std::string_view document) {
    auto record = json::decode<Record>(document);
    if (!record) {
        if (record.error().reason.empty() || record.error().reason == "malformed")
            fail("a document that does not decode says why");
        return std::nullopt;
    }
    // The reader checks what it reads; a parse of the whole must have nothing to add.
    if (!json::isWellFormed(document))
        fail("what decodes is a JSON document");
    const auto plain = json::encode(*record);
    const auto pretty = json::encodePretty(*record);
    if (!plain || !pretty)
        fail("what decodes encodes");
    for (const auto& text : {*plain, *pretty, withEscapedKeys(*plain)}) {
        const auto again = json::decode<Record>(text);
        if (!again)
            fail("what is encoded decodes: " + again.error().text());
        if (json::encode(*again).value_or("") != *plain || json::encodePretty(*again).value_or("") != *pretty)
            fail("what is decoded again encodes the same");
    }
    return std::move(*record);
}

} // namespace kavor::fuzz
