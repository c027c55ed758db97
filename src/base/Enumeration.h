#pragma once

#include "base/Int.h"

#include <optional>
#include <span>
#include <string_view>

// Enumerations of documents, declared once: a case is its name, its number on the wire and, where a user
// reads it, its Spanish title and the name of its icon. So no case can be missing in one of the tables.
//
//   #define KAVOR_FLAVOURS(CASE) CASE(sweet, 1, "Dulce") CASE(bitter, 2)
//   KAVOR_ENUMERATION(Flavour, KAVOR_FLAVOURS)
//
// declares `enum class Flavour : Int` with what the functions below answer.
namespace kavor {

template <class Enumeration>
struct EnumerationCase {
    Enumeration value;
    std::string_view name;
    std::string_view label = {};
    std::string_view icon = {};
};

// The cases of an enumeration in the order of their declaration.
template <class Enumeration>
struct EnumerationTable;

template <class Enumeration>
concept Enumerated = requires {
    EnumerationTable<Enumeration>::cases;
};

template <Enumerated Enumeration>
constexpr std::span<const EnumerationCase<Enumeration>> casesOf() {
    return EnumerationTable<Enumeration>::cases;
}

// The case of a number on the wire; nothing for a number outside the table.
template <Enumerated Enumeration>
constexpr std::optional<Enumeration> caseOf(Int number) {
    for (const auto& each : casesOf<Enumeration>()) {
        if (static_cast<Int>(each.value) == number)
            return each.value;
    }
    return std::nullopt;
}

template <Enumerated Enumeration>
constexpr EnumerationCase<Enumeration> entryOf(Enumeration value) {
    for (const auto& each : casesOf<Enumeration>()) {
        if (each.value == value)
            return each;
    }
    return {value, {}};
}

// The name of a case as the model has it: "beer", "wineA4", "textil" ...
template <Enumerated Enumeration>
constexpr std::string_view caseName(Enumeration value) {
    return entryOf(value).name;
}

// The Spanish title of a case; some have none and answer the empty text.
template <Enumerated Enumeration>
constexpr std::string_view label(Enumeration value) {
    return entryOf(value).label;
}

// The name of a case's icon, empty where there is none.
template <Enumerated Enumeration>
constexpr std::string_view iconName(Enumeration value) {
    return entryOf(value).icon;
}

} // namespace kavor

#define KAVOR_ENUMERATOR(name, number, ...) name = (number),
#define KAVOR_ENUMERATION_CASE(name, number, ...) {Type::name, #name __VA_OPT__(, ) __VA_ARGS__},
#define KAVOR_ENUMERATION(Enumeration, CASES)                                                                \
    enum class Enumeration : Int { CASES(KAVOR_ENUMERATOR) };                                                \
    template <>                                                                                              \
    struct EnumerationTable<Enumeration> {                                                                   \
        using Type = Enumeration;                                                                            \
        static constexpr EnumerationCase<Type> cases[] = {CASES(KAVOR_ENUMERATION_CASE)};                    \
    };
