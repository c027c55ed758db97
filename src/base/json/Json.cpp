#include "base/AppFormatter.h"
#include "base/AtomicFile.h"
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

// Parses the whole of a document without reading it; answers what is wrong with it, if anything is.
std::optional<Error> malformation(const Source& document) {
    simdjson::dom::parser parser;
    const bool copy = document.readableBehind < Source::padding;
    if (const auto error = parser.parse(document.text.data(), document.text.size(), copy).error())
        return Error{"", std::string("not a JSON document: ") + simdjson::error_message(error)};
    return std::nullopt;
}

bool isBlank(char c) {
    return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

// A scalar is read as the only item of a list: the parser reads no root but lists and objects.
bool isScalar(std::string_view document) {
    const auto first = std::ranges::find_if_not(document, isBlank);
    return first == document.end() || (*first != '{' && *first != '[');
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
    auto& implementation = parser.implementation();
    std::string_view text = document.text;
    if (document.readableBehind < Source::padding) {
        implementation.copy.reserve(text.size() + Source::padding);
        implementation.copy.assign(text);
        text = implementation.copy;
    }
    Context context;
    ondemand::document opened;
    ondemand::value root;
    const bool good =
        implementation.parser.iterate(simdjson::padded_string_view(text, text.size() + Source::padding))
                .get(opened) == simdjson::SUCCESS &&
        opened.get_value().get(root) == simdjson::SUCCESS && read(root, context) &&
        opened.current_location().error() == simdjson::OUT_OF_BOUNDS; // nothing follows
    if (good)
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
    case ondemand::json_type::number: {
        ondemand::number_type number{};
        const bool known = element.get_number_type().get(number) == simdjson::SUCCESS;
        return known && number != ondemand::number_type::floating_point_number ? "integer" : "number";
    }
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
    const char* const begin = field.key().raw();
    const char* end = begin;
    while (*end != '"' && *end != '\\') // the parser has seen to it that the string ends
        ++end;
    if (*end == '\\')
        return field.unescaped_key().get(out) == simdjson::SUCCESS;
    out = {begin, static_cast<std::size_t>(end - begin)};
    return true;
}

bool readUnusualNumber(Element element, double& out, Context& context) {
    ondemand::number_type type{};
    if (element.get_number_type().get(type) != simdjson::SUCCESS)
        return context.malformed();
    if (type == ondemand::number_type::floating_point_number)
        return true;
    std::int64_t integer = 0;
    std::uint64_t large = 0;
    if (element.get(integer) == simdjson::SUCCESS)
        out = static_cast<double>(integer);
    else if (element.get(large) == simdjson::SUCCESS)
        out = static_cast<double>(large);
    else
        return context.malformed();
    return true;
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
    case ondemand::json_type::number: {
        double number = 0;
        return readValue(element, number, context);
    }
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
        return context.fail("expected an integer of 0 or more");
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
    for (std::size_t i = 0; i < value.size(); ++i) {
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
