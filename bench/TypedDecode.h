#pragma once

#include "base/json/Table.h"

// A strict typed decode of the same records by the same tables over another library's document, as a
// comparison. A Backend answers for its Value: isNull, readInteger, readDouble, readBool,
// readString, forEachItem, and find (a member by key, or nothing).
namespace kavor::bench {

template <class Backend, class T>
bool readTyped(const typename Backend::Value& value, T& out);

template <class Backend, class Record, class Field>
bool readMember(const typename Backend::Value& value, Record& record, const Field& field) {
    auto& member = record.*field.member;
    using Member = std::remove_cvref_t<decltype(member)>;
    const auto found = Backend::find(value, field.key);
    if constexpr (json::IsOptional<Member>::value) {
        if (!found || Backend::isNull(*found))
            return true;
        return readTyped<Backend>(*found, member.emplace(typename Member::value_type()));
    } else {
        return found && readTyped<Backend>(*found, member);
    }
}

template <class Backend, class T>
bool readTyped(const typename Backend::Value& value, T& out) {
    if constexpr (json::IsVector<T>::value) {
        return Backend::forEachItem(value, [&](const typename Backend::Value& item) {
            return readTyped<Backend>(item, out.emplace_back());
        });
    } else if constexpr (std::is_enum_v<T>) {
        std::int64_t raw = 0;
        if (!Backend::readInteger(value, raw))
            return false;
        const auto known = caseOf<T>(raw);
        out = known.value_or(out);
        return known.has_value();
    } else if constexpr (requires { json::Table<T>::fields; }) {
        return std::apply(
            [&](const auto&... field) { return (readMember<Backend>(value, out, field) && ...); },
            json::Table<T>::fields);
    } else if constexpr (std::is_same_v<T, std::int64_t>) {
        return Backend::readInteger(value, out);
    } else if constexpr (std::is_same_v<T, double>) {
        return Backend::readDouble(value, out);
    } else if constexpr (std::is_same_v<T, bool>) {
        return Backend::readBool(value, out);
    } else if constexpr (std::is_same_v<T, Url>) {
        return Backend::readString(value, out.text) && Url::isValid(out.text);
    } else if constexpr (std::is_same_v<T, LocalDateTime>) {
        std::string text;
        if (!Backend::readString(value, text))
            return false;
        const auto date = LocalDateTime::parse(text);
        if (date)
            out = *date;
        return date.has_value();
    } else {
        return Backend::readString(value, out);
    }
}

} // namespace kavor::bench
