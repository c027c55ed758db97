#include "base/AppFormatter.h"
#include "base/AtomicFile.h"
#include "base/EightBytes.h"
#include "base/json/Table.h"

namespace kavor::json {

struct Parser::Implementation {
    ondemand::parser parser;
    std::string copy; // of a document that has no room behind it
};

Parser::Parser()
    : implementation_(std::make_unique<Implementation>()) {}
Parser::~Parser() = default;

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

enum class Number {
    None, // no number by JSON's grammar
    Integer,
    Fraction, // or with an exponent
};

// What a text is by the grammar alone: JSON sets no limit to the size of a number.
Number numberKind(std::string_view text) {
    std::size_t at = 0;
    const auto digits = [&] {
        const std::size_t from = at;
        while (at < text.size() && text[at] >= '0' && text[at] <= '9')
            ++at;
        return at - from;
    };
    const auto take = [&](std::string_view any) {
        const bool found = at < text.size() && any.find(text[at]) != std::string_view::npos;
        at += found ? 1 : 0;
        return found;
    };
    take("-");
    const std::size_t first = at;
    const std::size_t whole = digits();
    if (whole == 0 || (whole > 1 && text[first] == '0'))
        return Number::None;
    Number kind = Number::Integer;
    if (take(".")) {
        kind = Number::Fraction;
        if (digits() == 0)
            return Number::None;
    }
    if (take("eE")) {
        kind = Number::Fraction;
        take("+-");
        if (digits() == 0)
            return Number::None;
    }
    return at == text.size() ? kind : Number::None;
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    return text;
}

Number numberKind(Element element) {
    return numberKind(trimmed(element.raw_json_token()));
}

// A scalar is read as the only item of a list: the parser reads no root but lists and objects.
bool isScalar(std::string_view document) {
    const auto first = std::ranges::find_if_not(document, isBlank);
    return first == document.end() || (*first != '{' && *first != '[');
}

// Reads a list or object with the parser; answers whether the whole of it could be read. The context says why
// not.
bool readTree(const Source& document, const Parser& parser, const RootReader& read, Context& context) {
    auto& implementation = parser.implementation();
    std::string_view text = document.text;
    if (document.readableBehind < Source::padding) {
        implementation.copy.reserve(text.size() + Source::padding);
        implementation.copy.assign(text);
        text = implementation.copy;
    }
    // The parser counts one level more than a reader that refuses the deepest.
    constexpr auto levels = static_cast<std::size_t>(Context::deepest) + 1;
    if (implementation.parser.max_depth() < levels &&
        implementation.parser.allocate(std::max(text.size(), implementation.parser.capacity()), levels) !=
            simdjson::SUCCESS)
        return context.malformed();
    ondemand::document opened;
    ondemand::value root;
    return implementation.parser.iterate(simdjson::padded_string_view(text, text.size() + Source::padding))
                   .get(opened) == simdjson::SUCCESS &&
           opened.get_value().get(root) == simdjson::SUCCESS && read(root, context) &&
           opened.current_location().error() == simdjson::OUT_OF_BOUNDS; // nothing follows
}

// Parses the whole of a document; answers what is wrong with it, if anything is. The parser takes a number
// that no machine type holds for a fault of the text, which it is not: then the document is walked.
std::optional<Error> malformation(const Source& document) {
    simdjson::dom::parser parser;
    const bool copy = document.readableBehind < Source::padding;
    const auto error = parser.parse(document.text.data(), document.text.size(), copy).error();
    if (!error)
        return std::nullopt;
    if (error == simdjson::NUMBER_ERROR) {
        Context context;
        const bool good = isScalar(document.text) ? numberKind(trimmed(document.text)) != Number::None
                                                  : readTree(document, Parser(), ignore, context);
        if (good)
            return std::nullopt;
        return Error{"", "not a JSON document: a value is malformed"};
    }
    return Error{"", std::string("not a JSON document: ") + simdjson::error_message(error)};
}

std::optional<Error> readScalar(const Source& document, const Parser& parser, const RootReader& read) {
    if (auto error = malformation(document))
        return error;
    const std::string list = "[" + std::string(document.text) + "]";
    Context found;
    static_cast<void>(readDocument(list, parser, [&](Element root, Context& context) {
        return forEachItem(root, context,
                           [&](Element item) { return read(item, found) || context.malformed(); });
    }));
    return found.error.reason.empty() ? std::nullopt : std::optional(std::move(found.error));
}

} // namespace

std::optional<Error> readDocument(const Source& document, const Parser& parser, const RootReader& read) {
    static_assert(Source::padding >= simdjson::SIMDJSON_PADDING &&
                  atomic_file::roomBehind >= Source::padding);
    if (isScalar(document.text))
        return readScalar(document, parser, read);
    Context context;
    if (readTree(document, parser, read, context))
        return std::nullopt;
    // That a text is no document at all counts before a wrong value in it.
    if (auto error = malformation(document))
        return error;
    return std::move(context.error);
}

bool isWellFormed(const Source& document) {
    return !malformation(document);
}

std::string_view typeName(Element element) {
    ondemand::json_type type{};
    if (element.type().get(type) != simdjson::SUCCESS)
        return "nothing";
    switch (type) {
    case ondemand::json_type::array:
        return "list";
    case ondemand::json_type::object:
        return "object";
    case ondemand::json_type::number:
        return numberKind(element) == Number::Integer ? "integer" : "number";
    case ondemand::json_type::string:
        return "string";
    case ondemand::json_type::boolean:
        return "boolean";
    case ondemand::json_type::null:
        return "null";
    }
    return "nothing";
}

bool readText(Element element, std::string_view& out) {
    std::string_view token = element.raw_json_token();
    if (token.empty() || token.front() != '"')
        return false;
    while (isBlank(token.back()))
        token.remove_suffix(1);
    if (token.size() < 2 || token.back() != '"')
        return false;
    token = token.substr(1, token.size() - 2);
    if (token.find('\\') != std::string_view::npos)
        return element.get(out) == simdjson::SUCCESS;
    ondemand::raw_json_string passed;
    out = token;
    return element.get(passed) == simdjson::SUCCESS;
}

bool readKeyText(ondemand::field& field, std::string_view& out) {
    return field.unescaped_key().get(out) == simdjson::SUCCESS;
}

bool readNegativeZero(Element element, double& out) {
    if (std::int64_t integer = 0; element.get(integer) == simdjson::SUCCESS)
        out = 0;
    return true;
}

bool readUnusualNumber(Element element, double& out, Context& context) {
    if (numberKind(element) == Number::None)
        return context.expected("number", element);
    const std::string_view token = trimmed(element.raw_json_token());
    const auto error = std::from_chars(token.data(), token.data() + token.size(), out).ec;
    if (error == std::errc())
        return true;
    out = 0;
    const bool isTiny =
        token.find("e-") != std::string_view::npos || token.find("E-") != std::string_view::npos;
    return isTiny || context.fail("number out of range");
}

bool ignore(Element element, Context& context) {
    ondemand::json_type type{};
    if (element.type().get(type) != simdjson::SUCCESS)
        return context.malformed();
    switch (type) {
    case ondemand::json_type::array:
        return forEachItem(element, context, [&](Element item) { return ignore(item, context); });
    case ondemand::json_type::object:
        return forEachField(element, context, [&](ondemand::field& field) {
            std::string_view key;
            return readKeyText(field, key) ? ignore(field.value(), context) : context.malformed();
        });
    case ondemand::json_type::number:
        return numberKind(element) != Number::None || context.malformed(); // the parser passes over it
    case ondemand::json_type::string: {
        std::string_view text;
        return readText(element, text) || context.malformed();
    }
    case ondemand::json_type::boolean:
        return element.get_bool().error() == simdjson::SUCCESS || context.malformed();
    case ondemand::json_type::null:
        return isNull(element) || context.malformed();
    }
    return context.malformed();
}

bool Context::expected(std::string_view what, Element found) {
    return fail("expected " + std::string(what) + ", found " + std::string(typeName(found)));
}

bool Context::within(std::string_view key) {
    const bool last = error.path.empty() || error.path.front() == '[';
    error.path.insert(0, last ? std::string(key) : std::string(key) + ".");
    return false;
}

bool Context::within(std::size_t index) {
    const bool last = error.path.empty() || error.path.front() == '[';
    error.path.insert(0, "[" + std::to_string(index) + (last ? "]" : "]."));
    return false;
}

bool refuseInteger(Element element, Context& context) {
    if (typeName(element) == "integer")
        return context.fail("integer out of range");
    return context.expected("integer", element);
}

bool refuseUnsigned(Element element, Context& context) {
    if (typeName(element) == "integer")
        return context.fail(element.is_negative() ? "expected an integer of 0 or more"
                                                  : "integer out of range");
    return context.expected("integer", element);
}

bool readValue(Element element, Url& out, Context& context) {
    if (!readValue(element, out.text, context))
        return false;
    return Url::isValid(out.text) || context.fail("expected URL, found another string");
}

bool readValue(Element element, LocalDateTime& out, Context& context) {
    std::string_view text;
    if (!readText(element, text))
        return context.expected("date", element);
    const auto date = LocalDateTime::parse(text);
    if (!date)
        return context.fail("expected date \"dd-MM-yyyy HH:mm:ss\", found another string");
    out = *date;
    return true;
}

bool readKey(std::string_view key, std::int64_t& out, Context& context) {
    const auto [end, error] = std::from_chars(key.data(), key.data() + key.size(), out);
    if (error == std::errc() && end == key.data() + key.size() && !key.empty())
        return true;
    return context.fail("expected a whole number as key");
}

bool readKey(std::string_view key, std::string& out, Context&) {
    out.assign(key);
    return true;
}

std::string keyText(std::int64_t key) {
    return std::to_string(key);
}

namespace {

// Not 0 when one of eight bytes must be escaped in a text.
std::uint64_t escapedIn(std::uint64_t bytes) {
    constexpr std::uint64_t each = 0x0101010101010101U;
    constexpr std::uint64_t high = each * 0x80;
    const auto zeroIn = [](std::uint64_t word) { return (word - each) & ~word; };
    return (((bytes - each * 0x20) & ~bytes) | zeroIn(bytes ^ each * '"') | zeroIn(bytes ^ each * '\\')) &
           high;
}

// Whether a text of eight bytes or more holds nothing to escape.
bool isPlain(std::string_view text) {
    return isFreeOf(text, escapedIn);
}

} // namespace

void Writer::newLine() {
    text_ += '\n';
    text_.append(static_cast<std::size_t>(depth_) * 2, ' ');
}

void Writer::open(char bracket) {
    text_ += bracket;
    ++depth_;
    first_ = true;
}

void Writer::close(char bracket) {
    --depth_;
    if (pretty_ && !first_)
        newLine();
    text_ += bracket;
    first_ = false;
}

void Writer::separate() {
    if (!first_)
        text_ += ',';
    if (pretty_)
        newLine();
    first_ = false;
}

void Writer::key(std::string_view name) {
    separate();
    string(name);
    text_ += pretty_ ? ": " : ":";
}

void Writer::quotedKey(std::string_view quoted) {
    separate();
    text_ += quoted;
}

void Writer::string(std::string_view value) {
    static constexpr auto special = [] {
        std::array<bool, 256> table{};
        for (std::size_t i = 0; i < 0x20; ++i)
            table[i] = true;
        table['"'] = table['\\'] = true;
        return table;
    }();
    static constexpr std::string_view digits = "0123456789abcdef";
    text_ += '"';
    std::size_t from = 0;
    for (std::size_t i = isPlain(value) ? value.size() : 0; i < value.size(); ++i) {
        const auto c = static_cast<unsigned char>(value[i]);
        if (!special[c])
            continue;
        text_.append(value, from, i - from);
        from = i + 1;
        text_ += '\\';
        switch (c) {
        case '"':
        case '\\':
            text_ += static_cast<char>(c);
            break;
        case '\n':
            text_ += 'n';
            break;
        case '\r':
            text_ += 'r';
            break;
        case '\t':
            text_ += 't';
            break;
        default:
            text_ += "u00";
            text_ += digits[c >> 4U];
            text_ += digits[c & 15U];
        }
    }
    text_.append(value, from);
    text_ += '"';
}

void Writer::integer(std::int64_t value) {
    char buffer[24];
    text_.append(buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr);
}

void Writer::unsignedInteger(std::uint64_t value) {
    char buffer[24];
    text_.append(buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr);
}

bool Writer::number(double value) {
    if (!std::isfinite(value))
        return false;
    text_ += AppFormatter::shared().machineNumberFormatter(value);
    return true;
}

} // namespace kavor::json

KAVOR_JSON_DOCUMENT(std::int64_t)
