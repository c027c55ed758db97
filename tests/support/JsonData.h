#pragma once

#include <simdjson.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kavor {

// A JSON document as data that tests change and compare, apart from the code under test. Scalars keep their
// own text, so that 12 and 12.0 differ.
struct JsonData {
    enum class Kind { scalar, list, object };
    Kind kind = Kind::scalar;
    std::string scalar = "null";
    std::vector<std::pair<std::string, JsonData>> members; // of an object; of a list with empty keys

    JsonData();

    static JsonData of(std::string_view text) {
        simdjson::dom::parser parser;
        const simdjson::padded_string padded(text);
        return from(parser.parse(padded).value());
    }
    static JsonData ofFile(const std::string& path) {
        std::ifstream stream(path, std::ios::binary);
        return of(std::string{std::istreambuf_iterator<char>(stream), {}});
    }

    // With the keys in their order, or sorted.
    [[nodiscard]] std::string text(bool sorted = false) const {
        if (kind == Kind::scalar)
            return scalar;
        auto parts = members;
        if (sorted && kind == Kind::object)
            std::ranges::sort(parts, {}, [](const auto& member) { return member.first; });
        std::string result;
        for (const auto& [key, value] : parts) {
            result += result.empty() ? "" : ",\n";
            result += (kind == Kind::object ? "\"" + key + "\": " : "") + value.text(sorted);
        }
        return kind == Kind::object ? "{" + result + "}" : "[" + result + "]";
    }

    // A member by its path of keys and indexes ("menu.items.0.name"); throws when it isn't there.
    JsonData& at(std::string_view path) {
        const auto dot = path.find('.');
        auto& found = child(path.substr(0, dot));
        return dot == std::string_view::npos ? found : found.at(path.substr(dot + 1));
    }
    JsonData& set(std::string_view path, std::string_view value) {
        const auto dot = path.rfind('.');
        auto& parent = dot == std::string_view::npos ? *this : at(path.substr(0, dot));
        const std::string key(dot == std::string_view::npos ? path : path.substr(dot + 1));
        const auto present = parent.kind == Kind::list || std::ranges::count(parent.members, key, keyOf) > 0;
        (present ? parent.child(key) : parent.members.emplace_back(key, JsonData()).second) = of(value);
        return *this;
    }
    JsonData& remove(std::string_view path) {
        const auto dot = path.rfind('.');
        auto& parent = dot == std::string_view::npos ? *this : at(path.substr(0, dot));
        const std::string key(dot == std::string_view::npos ? path : path.substr(dot + 1));
        std::erase_if(parent.members, [&](const auto& member) { return member.first == key; });
        return *this;
    }

private:
    static const std::string& keyOf(const std::pair<std::string, JsonData>& member) { return member.first; }

    JsonData& child(std::string_view key) {
        if (kind == Kind::list)
            return members.at(std::stoul(std::string(key))).second;
        const auto found = std::ranges::find(members, key, keyOf);
        if (found == members.end())
            throw std::out_of_range(std::string(key));
        return found->second;
    }

    static JsonData from(simdjson::dom::element element) {
        JsonData data;
        if (element.is_object()) {
            data.kind = Kind::object;
            for (const auto [key, value] : simdjson::dom::object(element))
                data.members.emplace_back(key, from(value));
        } else if (element.is_array()) {
            data.kind = Kind::list;
            for (const auto value : simdjson::dom::array(element))
                data.members.emplace_back("", from(value));
        } else {
            data.scalar = simdjson::to_string(element);
        }
        return data;
    }
};

// Its members hold it while it is incomplete, so not every compiler makes it in the class.
inline JsonData::JsonData() = default;

} // namespace kavor
