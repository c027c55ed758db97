#pragma once

#include "base/Int.h"

#include <cstddef>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kavor {

struct Customer;
struct Validations;

// The blocks in which a form shows the text fields of the point of sale.
enum class CustomerFieldGroup { code, contact, place, online, social, freeText };

// What a field's keyboard offers first.
enum class CustomerFieldKeys { text, code, phone, mail, url, digits };

// One text field: the outlet's name, what it is called, and where it goes.
struct CustomerField {
    std::string_view name;
    std::string_view label;
    std::string_view icon;
    CustomerFieldGroup group;
    std::optional<std::string> Customer::*
        member; // null: the name of the establishment, which is always there
    CustomerFieldKeys keys = CustomerFieldKeys::text;
    Int Validations::*limit = nullptr; // in characters; null: no limit
};

// The point of sale as typed in a form: texts by field, and what the look-up by code brought along. A field
// that was edited and emptied holds an empty text, one that nobody touched or filled holds none.
class CustomerForm {
public:
    // Every field in the order of the form.
    static std::span<const CustomerField> fields();
    // Those of a block, at most the given number of them.
    static std::vector<CustomerField> fieldsOf(CustomerFieldGroup group, std::size_t atMost = 100);
    // nullptr for a name that is no field.
    static const CustomerField* field(std::string_view name);

    // Takes over all fields, and what a look-up brought along; an absent value empties its field, as nobody
    // had touched it. So does an empty name, which a customer can't do without.
    void fill(const Customer& customer);
    // A customer found by its code overwrites everything but the code.
    void fillFromLookup(const Customer& customer);
    // Writes all fields; an empty one becomes unset. What the form doesn't know stays.
    void apply(Customer& customer) const;

    // Takes over one text as a record has it; none for a field that nobody touched.
    void setValue(std::string_view name, const std::optional<std::string>& value);
    // None for a field that nobody touched.
    [[nodiscard]] std::optional<std::string> value(std::string_view name) const;
    // Empty as well for a field that nobody touched.
    [[nodiscard]] std::string text(std::string_view name) const {
        return value(name).value_or(std::string());
    }
    // By the user's hand, or a place that the user accepted: with another code or name it is another point of
    // sale, with another municipality or province another place. Answers whether the text changed; leaving a
    // field as it was does not touch it. The process stops for a name that is no field.
    bool editText(std::string_view name, std::string_view text);
    // What a look-up brought along besides the fields goes: the numbers of the point of sale and its brands.
    void forgetLookup() { found_ = Found{}; }

private:
    struct Found {
        std::optional<Int> id;
        std::optional<Int> placeLocalityId;
        std::optional<Int> placeProvinceId;
        std::optional<std::vector<Int>> priorityBrandIdentifiers;
    };

    std::map<std::string, std::string, std::less<>> texts_; // of the fields that were touched or filled
    Found found_;
};

} // namespace kavor
