#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavor {

// Reads the variables of a URL's query. Values are taken as they stand, without decoding.
class URLParser {
public:
    explicit URLParser(std::string_view url);

    // The parts of the query between ampersands, each of the form name=value; nothing when the URL has no
    // query.
    [[nodiscard]] const std::optional<std::vector<std::string>>& variables() const { return variables_; }
    // The value of the first variable of that name that is not empty.
    [[nodiscard]] std::optional<std::string> value(std::string_view name) const;

private:
    std::optional<std::vector<std::string>> variables_;
};

} // namespace kavor
