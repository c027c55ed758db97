#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

// JSON documents in and out of records. A record is a plain struct with one table of its members (Table.h);
// the functions here exist for every record whose subsystem instantiates them next to its table.
namespace kavor::json {

// Why and where a document does not decode, for example "productos[12].maridaje: expected list, found
// string".
struct Error {
    std::string path; // empty for the document itself
    std::string reason;
    [[nodiscard]] std::string text() const { return path.empty() ? reason : path + ": " + reason; }
};

template <class T>
using Decoded = tl::expected<T, Error>;

// A parser with its buffers, kept by whoever decodes many or large documents. Not for two threads at once.
class Parser {
public:
    Parser();
    ~Parser();
    Parser(const Parser&) = delete;
    Parser& operator=(const Parser&) = delete;

    struct Implementation;
    [[nodiscard]] Implementation& implementation() const { return *implementation_; }

private:
    std::unique_ptr<Implementation> implementation_;
};

// The text of a document. Where as many bytes as the padding may be read behind it, whatever they hold, it is
// parsed where it lies; else it is copied first.
struct Source {
    static constexpr std::size_t padding = 64;

    std::string_view text;
    std::size_t readableBehind = 0;

    // Implicit: whoever has a text has a source.
    Source(std::string_view document)
        : text(document) {}
    Source(const char* document)
        : text(document) {}
    Source(const std::string& document)
        : text(document)
        , readableBehind(document.capacity() - document.size()) {}
};

// Reads a whole document strictly: a missing required key, a wrong type or a value outside an enumeration's
// table anywhere fails the document; unknown keys are ignored. The text is UTF-8.
template <class T>
Decoded<T> decode(const Source& document, const Parser& parser);
template <class T>
Decoded<T> decode(const Source& document) {
    return decode<T>(document, Parser());
}

// Whether a text is a JSON document at all.
bool isWellFormed(const Source& document);

// Keys in the order of the record's table, no blanks; the form of the state files. Fails only for a number
// that JSON cannot say (infinite or not a number).
template <class T>
tl::expected<std::string, Error> encode(const T& value);

// Keys sorted, two blanks a level; the form of order files and of bodies that carry an order.
template <class T>
tl::expected<std::string, Error> encodePretty(const T& value);

} // namespace kavor::json
