#pragma once

#include "Targets.h"
#include "base/json/Json.h"

#include <optional>
#include <string>

namespace kavor::fuzz {

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
    for (const auto& text : {*plain, *pretty}) {
        const auto again = json::decode<Record>(text);
        if (!again)
            fail("what is encoded decodes: " + again.error().text());
        if (json::encode(*again).value_or("") != *plain || json::encodePretty(*again).value_or("") != *pretty)
            fail("what is decoded again encodes the same");
    }
    return std::move(*record);
}

} // namespace kavor::fuzz
