#include "base/AppFormatter.h"
#include "base/json/Table.h"

namespace kavor::json {

Parser::Parser()
    : implementation_(std::make_unique<Implementation>()) {}
Parser::~Parser() = default;

Decoded<Element> parse(std::string_view document, const Parser& parser) {
    Element root;
    const auto error = parser.implementation().parser.parse(document.data(), document.size()).get(root);
    if (error != simdjson::SUCCESS)
        return tl::unexpected(
            Error{"", std::string("not a JSON document: ") + simdjson::error_message(error)});
    return root;
}

bool isWellFormed(std::string_view document) {
    return parse(document, Parser()).has_value();
}

std::string_view typeName(Element element) {
    switch (element.type()) {
    case simdjson::dom::element_type::ARRAY:
        return "list";
    case simdjson::dom::element_type::OBJECT:
        return "object";
    case simdjson::dom::element_type::INT64:
    case simdjson::dom::element_type::UINT64:
        return "integer";
    case simdjson::dom::element_type::DOUBLE:
        return "number";
    case simdjson::dom::element_type::STRING:
        return "string";
    case simdjson::dom::element_type::BOOL:
        return "boolean";
    case simdjson::dom::element_type::NULL_VALUE:
        return "null";
    }
    return "nothing";
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
    if (element.type() == simdjson::dom::element_type::UINT64)
        return context.fail("integer out of range");
    return context.expected("integer", element);
}

bool refuseUnsigned(Element element, Context& context) {
    if (element.type() == simdjson::dom::element_type::INT64)
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
    if (element.get(text) != simdjson::SUCCESS)
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
