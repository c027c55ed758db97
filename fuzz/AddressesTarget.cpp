#include "Targets.h"
#include "catalogue/URLParser.h"
#include "network/records/NetworkConfiguration.h"

#include <string>

namespace kavor::fuzz {

bool propertyList(std::string_view document) {
    const auto configuration = NetworkConfiguration::decode(std::string(document), "list");
    if (!configuration && !configuration.error().starts_with("list: "))
        fail("the error names the file");
    return configuration.has_value();
}

bool urlParser(std::string_view text) {
    const URLParser parser(text);
    if (!parser.variables()) {
        if (text.substr(0, text.find('#')).find('?') != std::string_view::npos)
            fail("a query has variables");
        return false;
    }
    std::string query;
    for (const auto& variable : *parser.variables()) {
        query += (query.empty() && &variable == &parser.variables()->front() ? "" : "&") + variable;
        const auto equals = variable.find('=');
        if (equals == std::string::npos || equals + 1 == variable.size())
            continue;
        const auto value = parser.value(variable.substr(0, equals));
        if (!value || value->empty())
            fail("the name of a variable leads to a value");
    }
    if (text.find(query) == std::string_view::npos)
        fail("the variables are the query");
    return true;
}

} // namespace kavor::fuzz
