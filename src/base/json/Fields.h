#pragma once

#include "base/json/Json.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>
#include <tuple>

// The fields of a record's table and the ways to find one by its key.
namespace kavor::json {

enum class Presence {
    Required,
    Optional,  // absent and null leave the member unset; an unset member is left out
    OrTrue,    // a flag that reads as true when absent or null; always written
    WriteOnly, // written when set, never read
    Ignored,   // always written, its value in a document is never looked at
};

// How one member is read and written when its type's own way is not the one wanted.
struct TypeCodec {};

template <class Record, class Member, class Codec = TypeCodec>
struct Field {
    std::string_view key;
    Member Record::*member;
    Presence presence;
};

template <class Record, class Member>
constexpr Field<Record, Member> required(std::string_view key, Member Record::*member) {
    return {key, member, Presence::Required};
}
template <class Record, class Member>
constexpr Field<Record, std::optional<Member>> optional(std::string_view key,
                                                        std::optional<Member> Record::*member) {
    return {key, member, Presence::Optional};
}
template <class Record>
constexpr Field<Record, bool> orTrue(std::string_view key, bool Record::*member) {
    return {key, member, Presence::OrTrue};
}
template <class Record, class Member>
constexpr Field<Record, std::optional<Member>> writeOnly(std::string_view key,
                                                         std::optional<Member> Record::*member) {
    return {key, member, Presence::WriteOnly};
}
template <class Record, class Member>
constexpr Field<Record, Member> ignoredWhenRead(std::string_view key, Member Record::*member) {
    return {key, member, Presence::Ignored};
}
// Codec has static bool read(Element, Member&, Context&) and static bool write(Writer&, const Member&).
template <class Codec, class Record, class Member>
constexpr Field<Record, Member, Codec> requiredAs(std::string_view key, Member Record::*member) {
    return {key, member, Presence::Required};
}

template <class Record>
struct Table;

// Compares keys without a call: they are short, and there are millions of them.
[[gnu::always_inline]] inline bool sameKey(std::string_view a, std::string_view b) {
    if (a.size() != b.size())
        return false;
    const std::size_t size = a.size();
    const auto sameWord = [&]<class Word>(Word, std::size_t at) {
        Word left;
        Word right;
        std::memcpy(&left, a.data() + at, sizeof left);
        std::memcpy(&right, b.data() + at, sizeof right);
        return left == right;
    };
    if (size >= 8) {
        for (std::size_t at = 0; at + 8 < size; at += 8) {
            if (!sameWord(std::uint64_t(), at))
                return false;
        }
        return sameWord(std::uint64_t(), size - 8);
    }
    if (size >= 4)
        return sameWord(std::uint32_t(), 0) && sameWord(std::uint32_t(), size - 4);
    for (std::size_t i = 0; i < size; ++i) {
        if (a[i] != b[i])
            return false;
    }
    return true;
}

// Whether a key in a document is this name. Reads no further than a name is long, which the padding behind a
// document allows for.
[[gnu::always_inline]] inline bool isKey(const char* raw, std::string_view name) {
    return raw[name.size()] == '"' && sameKey({raw, name.size()}, name);
}

// The keys of a record with the ways to find them: by what followed the last key in earlier records of the
// kind, or else by a hash. Documents repeat their order of keys, so one comparison usually does.
template <class Record>
struct Keys {
    static constexpr std::size_t count = std::tuple_size_v<decltype(Table<Record>::fields)>;
    static constexpr std::size_t none = count;
    static constexpr std::size_t slotCount = [] {
        std::size_t size = 4;
        while (size < count * 3)
            size *= 2;
        return size;
    }();

    static constexpr auto names =
        std::apply([](const auto&... field) { return std::array<std::string_view, count>{field.key...}; },
                   Table<Record>::fields);
    static_assert(std::ranges::all_of(names, [](std::string_view name) {
        return name.size() < Source::padding && name.find_first_of("\"\\") == std::string_view::npos;
    }));
    // A bit for each field that a document must have.
    static_assert(count <= 64);
    static constexpr std::uint64_t required = std::apply(
        [](const auto&... field) {
            std::uint64_t bits = 0;
            std::uint64_t bit = 1;
            ((bits |= field.presence == Presence::Required ? bit : 0, bit <<= 1U), ...);
            return bits;
        },
        Table<Record>::fields);

    static constexpr std::size_t next(std::size_t slot) { return (slot + 1) & (slotCount - 1); }

    // Of the first and the last eight bytes of a key and its size.
    static constexpr std::size_t hash(std::uint64_t head, std::uint64_t tail, std::size_t size) {
        const std::uint64_t value = (head ^ tail << 7U ^ tail >> 5U ^ size) * 0x9E3779B97F4A7C15U;
        return std::size_t(value >> 40U) & (slotCount - 1);
    }

    // Of a key that stands in a document or in the parser's memory: eight bytes are there to read.
    static std::size_t hash(std::string_view key) {
        std::uint64_t head = 0;
        std::uint64_t tail = 0;
        std::memcpy(&head, key.data(), sizeof head);
        if (key.size() < sizeof head) {
            head &= (std::uint64_t(1) << key.size() * 8) - 1;
            tail = head;
        } else
            std::memcpy(&tail, key.data() + key.size() - sizeof tail, sizeof tail);
        return hash(head, tail, key.size());
    }

    static constexpr auto slots = [] {
        std::array<std::uint16_t, slotCount> table{};
        table.fill(static_cast<std::uint16_t>(none));
        for (std::size_t i = 0; i < count; ++i) {
            const std::string_view name = names[i];
            const auto word = [name](std::size_t from) {
                std::uint64_t bytes = 0;
                for (std::size_t at = from; at < std::min(from + 8, name.size()); ++at)
                    bytes |= std::uint64_t(static_cast<unsigned char>(name[at])) << (at - from) * 8;
                return bytes;
            };
            std::size_t slot = hash(word(0), word(name.size() < 8 ? 0 : name.size() - 8), name.size());
            while (table[slot] != none)
                slot = next(slot);
            table[slot] = static_cast<std::uint16_t>(i);
        }
        return table;
    }();
    static_assert(std::endian::native == std::endian::little);

    static std::size_t find(std::string_view key) {
        std::size_t slot = hash(key);
        while (slots[slot] != none && names[slots[slot]] != key)
            slot = next(slot);
        return slots[slot];
    }

    // The indexes of the fields by their keys in ascending order.
    static constexpr auto sorted = [] {
        std::array<std::size_t, count> order{};
        for (std::size_t i = 0; i < count; ++i)
            order[i] = i;
        std::sort(order.begin(), order.end(),
                  [](std::size_t a, std::size_t b) { return names[a] < names[b]; });
        return order;
    }();
};

} // namespace kavor::json
