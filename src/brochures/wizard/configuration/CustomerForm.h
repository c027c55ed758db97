#pragma once

#include "brochures/engine/SaveBrochuresOrder.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace kavor {

struct Validations;

// The blocks in which the form shows the text fields of the point of sale.
enum class CustomerFieldGroup { code, contact, place, online, social, freeText };

// One text field: the outlet's name, what it is called, and where it goes.
struct CustomerField {
    std::string_view name;
    std::string_view label;
    std::string_view icon;
    CustomerFieldGroup group;
    std::optional<std::string> Customer::*
        member;                        // null: the name of the establishment, which is always there
    Int Validations::*limit = nullptr; // in characters; null: no limit
    int inputMethodHints = 0;          // Qt::InputMethodHints
};

// The point of sale as typed in the form: texts by field, and what the customer lookup brought along.
class CustomerForm {
public:
    // Every field in the order of the form.
    static std::span<const CustomerField> fields();
    // nullptr for a name that is no field.
    static const CustomerField* field(std::string_view name);

    // Takes over all fields, and what a lookup brought along; an absent value empties its field.
    void fill(const Customer& customer);
    // A customer found by its code overwrites everything but the code.
    void fillFromLookup(const Customer& customer);
    // Writes all fields; an empty one becomes unset. What the form doesn't know stays.
    void apply(Customer& customer) const;

    [[nodiscard]] QString text(std::string_view name) const;
    // Answers whether the text changed. The process stops for a name that is no field.
    bool setText(std::string_view name, const QString& text);
    // The same by the user's hand, or a place that the user accepted: with another code or name it is another
    // point of sale, with another municipality or province another place.
    bool editText(std::string_view name, const QString& text);
    // What a lookup brought along besides the fields goes: the numbers of the point of sale and its brands.
    void forgetLookup() { found_ = Found{}; }

    // The logo as "data:image/png;base64,...", empty for none.
    [[nodiscard]] const std::string& imageLogo() const { return imageLogo_; }
    void setImageLogo(std::string dataText) { imageLogo_ = std::move(dataText); }

private:
    struct Found {
        std::optional<Int> id;
        std::optional<Int> placeLocalityId;
        std::optional<Int> placeProvinceId;
        std::optional<std::vector<Int>> priorityBrandIdentifiers;
    };

    std::map<std::string, QString, std::less<>> texts_;
    std::string imageLogo_;
    Found found_;
};

} // namespace kavor
