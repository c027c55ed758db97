#pragma once

#include "base/Enumeration.h"
#include "base/LocalDateTime.h"
#include "base/Url.h"
#include "base/json/Fields.h"
#include "base/json/Json.h"

#include <simdjson.h>

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <concepts>
#include <cstdint>
#include <cstring>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

// The tables of records and the code that reads and writes documents by them. Included by the sources that
// declare tables, not by those that use records. A record's table looks like this:
//
//   template <> struct Table<Pairing> {
//       static constexpr auto fields = std::tuple{
//           required("id", &Pairing::id), required("name", &Pairing::name), optional("note",
//           &Pairing::note)};
//   };
//
// An enumeration's table is its declaration (base/Enumeration.h).
namespace kavor::json {

namespace ondemand = simdjson::ondemand;

// A value of a document that is read from front to back: each value once, and none may be left out, for only
// what is read is checked.
using Element = ondemand::value&;

// ---- Reading

// Carries the error up from the place where it was met; every level puts its step in front of the path.
struct Context {
    // The nesting at which a document is refused; a list or object without content does not count.
    static constexpr int deepest = 1024;

    Error error;
    bool repeated = false; // the key just met was met before in its object
    int depth = 0;

    bool fail(std::string reason) {
        error.reason = std::move(reason);
        return false;
    }
    // The text is no JSON document. What is wrong with it is found out afterwards.
    bool malformed() { return fail("malformed"); }
    bool expected(std::string_view what, Element found);
    bool within(std::string_view key);
    bool within(std::size_t index);
};

// The name of a JSON type in messages.
std::string_view typeName(Element element);

template <class T>
struct IsVector : std::false_type {};
template <class T>
struct IsVector<std::vector<T>> : std::true_type {};
template <class T>
struct IsMap : std::false_type {};
template <class K, class V>
struct IsMap<std::map<K, V>> : std::true_type {};
template <class T>
struct IsOptional : std::false_type {};
template <class T>
struct IsOptional<std::optional<T>> : std::true_type {};

template <class Record>
bool readRecord(Element element, Record& out, Context& context);

// The faults of values; they answer false.
bool refuseInteger(Element element, Context& context);
bool refuseUnsigned(Element element, Context& context);
// A number that the parser does not take, for example one with an exponent of twenty digits.
bool readUnusualNumber(Element element, double& out, Context& context);
// An integer -0 is 0, which is what it is in a document that is written again.
bool readNegativeZero(Element element, double& out);
// Reads a value that no member takes, to the last letter.
bool ignore(Element element, Context& context);
// A string without its quotes; the view lives as long as the document and its parser.
bool readText(Element element, std::string_view& out);
// A key without its escapes; once for each key. The view lives as long as the parser.
bool readKeyText(ondemand::field& field, std::string_view& out);

inline bool isNull(Element element) {
    bool null = false;
    return element.is_null().get(null) == simdjson::SUCCESS && null;
}

// Calls visit(item) for each item; false when the element is no list or a visit fails.
template <class Visit>
bool forEachItem(Element element, Context& context, Visit visit) {
    auto array = element.get_array();
    if (array.error() != simdjson::SUCCESS)
        return context.expected("list", element);
    ++context.depth;
    for (auto each : array) {
        if (each.error() != simdjson::SUCCESS || context.depth >= Context::deepest)
            return context.malformed();
        // No copy: written member by member and read in one piece, a copy would stall the processor.
        ondemand::value&& item = std::move(each).value_unsafe(); // NOLINT(performance-move-const-arg)
        if (!visit(item))
            return false;
    }
    --context.depth;
    return true;
}

// Calls visit(field) for each field; false when the element is no object or a visit fails.
template <class Visit>
[[gnu::always_inline]] inline bool forEachField(Element element, Context& context, Visit visit) {
    auto object = element.get_object();
    if (object.error() != simdjson::SUCCESS)
        return context.expected("object", element);
    ++context.depth;
    for (auto each : object) {
        if (each.error() != simdjson::SUCCESS || context.depth >= Context::deepest)
            return context.malformed();
        ondemand::field&& field = std::move(each).value_unsafe(); // NOLINT(performance-move-const-arg)
        if (!visit(field))
            return false;
    }
    --context.depth;
    return true;
}

[[gnu::always_inline]] inline bool readValue(Element element, std::int64_t& out, Context& context) {
    return element.get(out) == simdjson::SUCCESS || refuseInteger(element, context);
}
inline bool readValue(Element element, std::uint64_t& out, Context& context) {
    return element.get(out) == simdjson::SUCCESS || refuseUnsigned(element, context);
}
[[gnu::always_inline]] inline bool readValue(Element element, double& out, Context& context) {
    if (element.get(out) != simdjson::SUCCESS)
        return readUnusualNumber(element, out, context);
    return out != 0 || !std::signbit(out) || readNegativeZero(element, out);
}
[[gnu::always_inline]] inline bool readValue(Element element, bool& out, Context& context) {
    return element.get(out) == simdjson::SUCCESS || context.expected("boolean", element);
}
inline bool readValue(Element element, std::string& out, Context& context) {
    std::string_view text;
    if (!readText(element, text))
        return context.expected("string", element);
    out = std::string(text);
    return true;
}
bool readValue(Element element, Url& out, Context& context);
bool readValue(Element element, LocalDateTime& out, Context& context);
// The decimal key of a map.
bool readKey(std::string_view key, std::int64_t& out, Context& context);
bool readKey(std::string_view key, std::string& out, Context& context);
std::string keyText(std::int64_t key);
inline const std::string& keyText(const std::string& key) {
    return key;
}

template <class T>
bool readElement(Element element, T& out, Context& context);

template <class Enumeration>
bool readCase(Element element, Enumeration& out, Context& context) {
    std::int64_t raw = 0;
    if (!readValue(element, raw, context))
        return false;
    if (const auto found = caseOf<Enumeration>(raw)) {
        out = *found;
        return true;
    }
    std::string known;
    for (const auto& each : casesOf<Enumeration>())
        known += (known.empty() ? "" : ", ") + std::to_string(static_cast<std::int64_t>(each.value));
    return context.fail("expected one of " + known + ", found " + std::to_string(raw));
}

template <class T>
bool readList(Element element, std::vector<T>& out, Context& context) {
    // Lists of a kind are often about as long; where they are not, no more than a half stays unused.
    thread_local std::size_t usual = 0;
    out.clear();
    out.reserve(usual);
    const bool good = forEachItem(element, context, [&](Element item) {
        return readElement(item, out.emplace_back(), context) || context.within(out.size() - 1);
    });
    usual = std::min<std::size_t>(std::max(out.size(), usual - usual / 4), 64);
    if (out.capacity() > out.size() * 2)
        out.shrink_to_fit();
    return good;
}

template <class K, class V>
bool readMap(Element element, std::map<K, V>& out, Context& context) {
    out.clear();
    return forEachField(element, context, [&](ondemand::field& field) {
        std::string_view key;
        if (!readKeyText(field, key))
            return context.malformed();
        const std::string text(key);
        K name{};
        V read{};
        if (!readKey(text, name, context) || !readElement(field.value(), read, context))
            return context.within(text);
        out.insert_or_assign(std::move(name), std::move(read));
        return true;
    });
}

template <class T>
bool readElement(Element element, T& out, Context& context) {
    if constexpr (IsVector<T>::value)
        return readList(element, out, context);
    else if constexpr (IsMap<T>::value)
        return readMap(element, out, context);
    else if constexpr (std::is_enum_v<T>)
        return readCase(element, out, context);
    else if constexpr (IsOptional<T>::value) { // an element of a list that may be null
        if (isNull(element)) {
            out.reset();
            return true;
        }
        return readElement(element, out.emplace(), context);
    } else if constexpr (requires { Table<T>::fields; })
        return readRecord(element, out, context);
    else
        return readValue(element, out, context);
}

// A key as it stands in the document, with its escapes if it has any; false when the document ends there.
inline bool readRawKey(ondemand::field& field, std::string_view& out) {
    const char* end = nullptr;
    if (field.value().current_location().get(end) != simdjson::SUCCESS)
        return false;
    do // between a key and its value there are blanks and a colon only
        --end;
    while (*end != '"');
    const char* const begin = field.key().raw();
    out = {begin, static_cast<std::size_t>(end - begin)};
    return true;
}

template <class Record, std::size_t I>
[[gnu::always_inline]] inline bool readField(Element element, Record& out, Context& context) {
    constexpr auto field = std::get<I>(Table<Record>::fields);
    auto& member = out.*field.member;
    using Member = std::remove_cvref_t<decltype(member)>;
    const auto read = [&](auto& target) {
        using Codec = decltype([]<class R, class M, class C>(const Field<R, M, C>&) { return C(); }(field));
        if constexpr (std::is_same_v<Codec, TypeCodec>)
            return readElement(element, target, context);
        else
            return Codec::read(element, target, context);
    };
    if constexpr (field.presence == Presence::WriteOnly || field.presence == Presence::Ignored) {
        return ignore(element, context);
    } else if constexpr (field.presence == Presence::Optional && IsOptional<Member>::value) {
        if (isNull(element)) {
            member.reset();
            return true;
        }
        if constexpr (requires { member.emplace(); })
            return read(member.emplace()) || context.within(field.key);
        else // clang holds a nested record with default values for not constructible in its outer record
            return read(member.emplace(typename Member::value_type())) || context.within(field.key);
    } else if constexpr (field.presence == Presence::OrTrue) {
        member = true;
        return isNull(element) || read(member) || context.within(field.key);
    } else {
        if constexpr (requires { Table<Member>::fields; }) {
            if (context.repeated) // nothing of the former object stays
                member = Member();
        }
        return read(member) || context.within(field.key);
    }
}

enum class FieldRead {
    Failed,
    Good,
    OtherKey,
};

// Reads a field if it is the one that is expected next. Each has a function with its key built in, so that
// the comparison, done for every field of a document, needs no look at a table.
template <class Record, std::size_t I>
FieldRead readExpectedField(ondemand::field& field, Record& out, Context& context) {
    if (!isKey(field.key().raw(), Keys<Record>::names[I]))
        return FieldRead::OtherKey;
    return static_cast<FieldRead>(readField<Record, I>(field.value(), out, context));
}

template <class Record, class Sequence>
struct FieldReaders;
template <class Record, std::size_t... I>
struct FieldReaders<Record, std::index_sequence<I...>> {
    static constexpr std::array expected{readExpectedField<Record, I>...};
    static constexpr std::array any{readField<Record, I>...};
};

// What became of a field: its index, or Keys::none when no member takes it; whether its value could be read.
struct OtherField {
    std::size_t index;
    bool good;
};

// Reads a field that is not the expected one, or is written with escapes. Seen holds a bit for each field
// met.
template <class Record>
[[gnu::always_inline]] inline OtherField readOtherField(ondemand::field& field, Record& out, Context& context,
                                                        std::uint64_t seen, std::size_t expected) {
    using K = Keys<Record>;
    using Readers = FieldReaders<Record, std::make_index_sequence<K::count>>;
    std::string_view key;
    if (!readRawKey(field, key))
        return {K::none, context.malformed()};
    for (std::size_t slot = K::hash(key); K::slots[slot] != K::none; slot = K::next(slot)) {
        const std::size_t index = K::slots[slot];
        context.repeated = (seen >> index & 1U) != 0;
        if (const auto read = Readers::expected[index](field, out, context); read != FieldRead::OtherKey)
            return {index, read == FieldRead::Good};
    }
    if (key.find('\\') == std::string_view::npos)
        return {K::none, ignore(field.value(), context)};
    if (!readKeyText(field, key))
        return {K::none, context.malformed()};
    const std::size_t index = key == K::names[expected] ? expected : K::find(key);
    if (index == K::none)
        return {index, ignore(field.value(), context)};
    context.repeated = (seen >> index & 1U) != 0;
    return {index, Readers::any[index](field.value(), out, context)};
}

template <class Record>
bool readRecord(Element element, Record& out, Context& context) {
    using K = Keys<Record>;
    using Readers = FieldReaders<Record, std::make_index_sequence<K::count>>;
    if constexpr (requires { Table<Record>::prepare(out); })
        Table<Record>::prepare(out);
    // Which field came after which in earlier records of the kind.
    thread_local std::array<std::uint16_t, K::count + 1> successor{};
    auto& follow = successor;
    std::uint64_t seen = 0; // a bit for each field
    std::size_t last = K::none;
    int surprises = 0;
    const auto readNext = [&](ondemand::field & field) __attribute__((always_inline)) {
        const std::size_t expected = follow[last];
        if (surprises < 2) [[likely]] { // else the keys of this record are in no order
            context.repeated = (seen >> expected & 1U) != 0;
            const FieldRead read = Readers::expected[expected](field, out, context);
            if (read != FieldRead::OtherKey) [[likely]] {
                seen |= std::uint64_t(1) << expected;
                last = expected;
                return read == FieldRead::Good;
            }
            ++surprises;
        }
        const auto [index, good] = readOtherField(field, out, context, seen, expected);
        if (index != K::none) {
            seen |= std::uint64_t(1) << index;
            follow[last] = static_cast<std::uint16_t>(index);
            last = index;
        }
        return good;
    };
    if (!forEachField(element, context, readNext))
        return false;
    if (const std::uint64_t missing = K::required & ~seen; missing != 0) {
        context.fail("missing");
        return context.within(K::names[std::size_t(std::countr_zero(missing))]);
    }
    return true;
}

// ---- Writing

// Appends a document to a text, plain or pretty.
class Writer {
public:
    explicit Writer(bool pretty)
        : pretty_(pretty) {}

    [[nodiscard]] bool pretty() const { return pretty_; }
    std::string take() { return std::move(text_); }

    void open(char bracket);
    void close(char bracket);
    void separate(); // before each element of a list and each key of an object
    void key(std::string_view name);
    void quotedKey(std::string_view quoted); // with its quotes and colon, as it stands in the document
    void string(std::string_view value);
    void integer(std::int64_t value);
    void unsignedInteger(std::uint64_t value);
    bool number(double value); // false when JSON cannot say it
    void boolean(bool value) { text_ += value ? "true" : "false"; }
    void null() { text_ += "null"; }

private:
    void newLine();

    std::string text_;
    bool pretty_;
    bool first_ = true;
    int depth_ = 0;
};

inline bool writeValue(Writer& writer, std::int64_t value) {
    return writer.integer(value), true;
}
inline bool writeValue(Writer& writer, std::uint64_t value) {
    return writer.unsignedInteger(value), true;
}
inline bool writeValue(Writer& writer, double value) {
    return writer.number(value);
}
inline bool writeValue(Writer& writer, bool value) {
    return writer.boolean(value), true;
}
inline bool writeValue(Writer& writer, const std::string& value) {
    return writer.string(value), true;
}
inline bool writeValue(Writer& writer, const Url& value) {
    return writer.string(value.text), true;
}
inline bool writeValue(Writer& writer, const LocalDateTime& value) {
    return writer.string(value.text()), true;
}

template <class T>
bool writeElement(Writer& writer, const T& value);

// A key of a record as it stands in a document, with the blank that follows it in a pretty one.
template <class Record, std::size_t I>
constexpr auto quotedKey = [] {
    constexpr std::string_view name = Keys<Record>::names[I];
    std::array<char, name.size() + 4> text{};
    text.front() = '"';
    std::copy(name.begin(), name.end(), text.begin() + 1);
    text[name.size() + 1] = '"';
    text[name.size() + 2] = ':';
    text[name.size() + 3] = ' ';
    return text;
}();

template <class Record, std::size_t I>
bool writeField(Writer& writer, const Record& record) {
    constexpr auto field = std::get<I>(Table<Record>::fields);
    const auto& member = record.*field.member;
    using Member = std::remove_cvref_t<decltype(member)>;
    using Codec = decltype([]<class R, class M, class C>(const Field<R, M, C>&) { return C(); }(field));
    const auto writeKey = [&writer] {
        constexpr auto& key = quotedKey<Record, I>;
        writer.quotedKey({key.data(), key.size() - (writer.pretty() ? 0 : 1)});
    };
    if constexpr (!std::is_same_v<Codec, TypeCodec>) {
        writeKey();
        return Codec::write(writer, member);
    } else if constexpr (IsOptional<Member>::value) {
        if (!member)
            return true;
        writeKey();
        return writeElement(writer, *member);
    } else {
        writeKey();
        return writeElement(writer, member);
    }
}

template <class Record>
bool writeRecord(Writer& writer, const Record& record) {
    using K = Keys<Record>;
    writer.open('{');
    bool good = true;
    const auto writeAll = [&]<std::size_t... I>(std::index_sequence<I...>) {
        if (!writer.pretty()) {
            ((good = good && writeField<Record, I>(writer, record)), ...);
            return;
        }
        ((good = good && writeField<Record, K::sorted[I]>(writer, record)), ...);
    };
    writeAll(std::make_index_sequence<K::count>());
    writer.close('}');
    return good;
}

template <class T>
bool writeElement(Writer& writer, const T& value) {
    if constexpr (IsVector<T>::value) {
        writer.open('[');
        for (const auto& item : value) {
            writer.separate();
            if (!writeElement(writer, item))
                return false;
        }
        writer.close(']');
        return true;
    } else if constexpr (IsMap<T>::value) {
        writer.open('{');
        for (const auto& [key, item] : value) {
            writer.key(keyText(key));
            if (!writeElement(writer, item))
                return false;
        }
        writer.close('}');
        return true;
    } else if constexpr (IsOptional<T>::value) {
        return value ? writeElement(writer, *value) : (writer.null(), true);
    } else if constexpr (std::is_enum_v<T>) {
        writer.integer(static_cast<std::int64_t>(value));
        return true;
    } else if constexpr (requires { Table<T>::fields; }) {
        return writeRecord(writer, value);
    } else {
        return writeValue(writer, value);
    }
}

// ---- The functions of Json.h

// Reads one document through a reader that sees its root value; answers the document's fault, if it has one.
using RootReader = std::function<bool(Element, Context&)>;
std::optional<Error> readDocument(const Source& document, const Parser& parser, const RootReader& read);

template <class T>
Decoded<T> decode(const Source& document, const Parser& parser) {
    Decoded<T> result{T{}};
    const auto read = [&result](Element root, Context& context) {
        return readElement(root, *result, context);
    };
    if (auto fault = readDocument(document, parser, read))
        return tl::unexpected(std::move(*fault));
    return result;
}

template <class T>
tl::expected<std::string, Error> encodeAs(const T& value, bool pretty) {
    Writer writer(pretty);
    if (!writeElement(writer, value))
        return tl::unexpected(Error{"", "a number that is infinite or not a number has no JSON form"});
    return writer.take();
}

template <class T>
tl::expected<std::string, Error> encode(const T& value) {
    return encodeAs(value, false);
}

template <class T>
tl::expected<std::string, Error> encodePretty(const T& value) {
    return encodeAs(value, true);
}

} // namespace kavor::json

// Instantiates the functions of Json.h for a type, at namespace scope outside kavor, next to its table.
#define KAVOR_JSON_DOCUMENT(T)                                                                               \
    template kavor::json::Decoded<T> kavor::json::decode<T>(const kavor::json::Source&, const Parser&);      \
    template tl::expected<std::string, kavor::json::Error> kavor::json::encode<T>(const T&);                 \
    template tl::expected<std::string, kavor::json::Error> kavor::json::encodePretty<T>(const T&);
