#include "catalogue/URLParser.h"

namespace kavor {

URLParser::URLParser(std::string_view url) {
    url = url.substr(0, url.find('#'));
    const auto mark = url.find('?');
    if (mark == std::string_view::npos)
        return;
    std::string_view query = url.substr(mark + 1);
    variables_.emplace();
    for (;;) {
        const auto end = query.find('&');
        variables_->emplace_back(query.substr(0, end));
        if (end == std::string_view::npos)
            return;
        query.remove_prefix(end + 1);
    }
}

std::optional<std::string> URLParser::value(std::string_view name) const {
    if (!variables_)
        return std::nullopt;
    for (const std::string_view variable : *variables_) {
        // An empty value never matches: there must be something behind the equals sign.
        if (variable.size() > name.size() + 1 && variable.starts_with(name) && variable[name.size()] == '=')
            return std::string(variable.substr(name.size() + 1));
    }
    return std::nullopt;
}

} // namespace kavor
