#include "Documents.h"

#include "catalogue/Catalogue.h"

#include <simdjson.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <random>
#include <sstream>
#include <vector>

namespace kavor::bench {

namespace {

using Pairs = std::vector<simdjson::dom::key_value_pair>;

// Writes a document again, with the keys of each object put in another order.
template <class Order>
void write(simdjson::dom::element element, const Order& order, std::string& out) {
    std::ostringstream scalar;
    switch (element.type()) {
    case simdjson::dom::element_type::OBJECT: {
        Pairs pairs;
        for (const auto pair : simdjson::dom::object(element))
            pairs.push_back(pair);
        order(pairs);
        out += '{';
        for (std::size_t i = 0; i < pairs.size(); ++i) {
            out += i > 0 ? ",\"" : "\"";
            out.append(pairs[i].key);
            out += "\":";
            write(pairs[i].value, order, out);
        }
        out += '}';
        return;
    }
    case simdjson::dom::element_type::ARRAY: {
        out += '[';
        bool first = true;
        for (const auto item : simdjson::dom::array(element)) {
            if (!first)
                out += ',';
            first = false;
            write(item, order, out);
        }
        out += ']';
        return;
    }
    default:
        scalar << simdjson::minify(element);
        out += scalar.str();
    }
}

template <class Order>
std::string withKeysIn(const Order& order, const std::string& document) {
    std::string out;
    out.reserve(document.size());
    simdjson::dom::parser parser;
    write(parser.parse(document), order, out);
    return out;
}

} // namespace

std::string catalogueOfBrands(int brands) {
    return demo::Catalogue(brands, "http://127.0.0.1:8080").text();
}

const std::string& catalogueOfMegabytes(std::size_t megabytes) {
    static std::map<std::size_t, std::string> made;
    auto& document = made[megabytes];
    if (document.empty()) {
        // The size grows linearly with the brands beyond the part that all catalogues share.
        const auto few = static_cast<double>(catalogueOfBrands(100).size());
        const auto many = static_cast<double>(catalogueOfBrands(1100).size());
        const double perBrand = (many - few) / 1000;
        const double wanted = static_cast<double>(megabytes) * 1e6;
        document =
            catalogueOfBrands(std::max(60, static_cast<int>(std::lround(100 + (wanted - few) / perBrand))));
    }
    return document;
}

std::string indented(const std::string& document) {
    std::string out;
    out.reserve(document.size() * 2);
    int depth = 0;
    bool inText = false;
    const auto newLine = [&] {
        out += '\n';
        out.append(static_cast<std::size_t>(depth) * 4, ' ');
    };
    for (std::size_t i = 0; i < document.size(); ++i) {
        const char c = document[i];
        if (inText) {
            out += c;
            if (c == '\\')
                out += document[++i];
            else if (c == '"')
                inText = false;
            continue;
        }
        switch (c) {
        case '"':
            inText = true;
            out += c;
            break;
        case '{':
        case '[':
            out += c;
            ++depth;
            newLine();
            break;
        case '}':
        case ']':
            --depth;
            newLine();
            out += c;
            break;
        case ',':
            out += c;
            newLine();
            break;
        case ':':
            out += ": ";
            break;
        default:
            out += c;
        }
    }
    return out;
}

std::string withEscapes(const std::string& document) {
    std::string out;
    out.reserve(document.size() * 2);
    bool inText = false;
    for (std::size_t i = 0; i < document.size(); ++i) {
        const char c = document[i];
        if (inText && c == '\\') {
            out += c;
            out += document[++i];
        } else if (inText && c == 'e') {
            out += "\\u0065";
        } else {
            if (c == '"')
                inText = !inText;
            out += c;
        }
    }
    return out;
}

std::string withKeysReversed(const std::string& document) {
    return withKeysIn([](Pairs& pairs) { std::ranges::reverse(pairs); }, document);
}

std::string withKeysShuffled(const std::string& document) {
    std::mt19937 random(7);
    return withKeysIn([&random](Pairs& pairs) { std::ranges::shuffle(pairs, random); }, document);
}

} // namespace kavor::bench
