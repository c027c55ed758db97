#include "pointofsale/CustomerForm.h"

#include "base/StopProcess.h"
#include "catalogue/Shared.h"
#include "documents/Customer.h"

#include <algorithm>
#include <array>

namespace kavor {

namespace {

using Group = CustomerFieldGroup;
using Keys = CustomerFieldKeys;

constexpr std::array table{
    CustomerField{"tevoTextField", "Código cliente", "tag", Group::code, &Customer::tevo, Keys::code},
    CustomerField{"establishmentNameTextField", "Nombre del establecimiento*", "store", Group::contact,
                  nullptr},
    CustomerField{"contactNameTextField", "Nombre de contacto*", "user", Group::contact, &Customer::contact},
    CustomerField{"contactEmailTextField", "Email*", "mail", Group::contact, &Customer::email, Keys::mail},
    CustomerField{"contactTelephoneTextField", "Teléfono*", "phone", Group::contact, &Customer::telephone,
                  Keys::phone},
    CustomerField{"postalCodeTextField", "Código postal", "location", Group::place,
                  &Customer::placePostalCode, Keys::digits},
    CustomerField{"municipalityTextField", "Municipio", "", Group::place, &Customer::placeLocality},
    CustomerField{"provinceTextField", "Provincia", "", Group::place, &Customer::placeProvinceName},
    CustomerField{"localPhoneTextField", "Teléfono del local", "phone", Group::online, &Customer::localPhone,
                  Keys::phone, &Validations::customerLocalPhone},
    CustomerField{"webSiteTextField", "Página web", "globe", Group::online, &Customer::url, Keys::url,
                  &Validations::customerUrl},
    CustomerField{"facebookTextField", "Facebook", "users", Group::social, &Customer::facebook, Keys::url,
                  &Validations::customerFacebook},
    CustomerField{"twitterTextField", "Twitter", "users", Group::social, &Customer::twitter, Keys::url,
                  &Validations::customerTwitter},
    CustomerField{"instagramTextField", "Instagram", "camera", Group::social, &Customer::instagram, Keys::url,
                  &Validations::customerInstagram},
    CustomerField{"firstFreeTextField", "Texto libre 1", "", Group::freeText, &Customer::freeText1,
                  Keys::text, &Validations::customerFreeText},
    CustomerField{"secondFreeTextField", "Texto libre 2", "", Group::freeText, &Customer::freeText2,
                  Keys::text, &Validations::customerFreeText},
    CustomerField{"thirdFreeTextField", "Texto libre 3", "", Group::freeText, &Customer::freeText3,
                  Keys::text, &Validations::customerFreeText},
};

} // namespace

std::span<const CustomerField> CustomerForm::fields() {
    return table;
}

std::vector<CustomerField> CustomerForm::fieldsOf(CustomerFieldGroup group, std::size_t atMost) {
    std::vector<CustomerField> result;
    for (const CustomerField& entry : table) {
        if (entry.group == group && result.size() < atMost)
            result.push_back(entry);
    }
    return result;
}

const CustomerField* CustomerForm::field(std::string_view name) {
    const auto found = std::ranges::find(table, name, &CustomerField::name);
    return found == table.end() ? nullptr : &*found;
}

void CustomerForm::fill(const Customer& customer) {
    const auto name = customer.name.empty() ? std::nullopt : std::optional(customer.name);
    for (const CustomerField& entry : table)
        setValue(entry.name, entry.member ? customer.*entry.member : name);
    found_ = {customer.id, customer.placeLocalityId, customer.placeProvinceId,
              customer.priorityBrandIdentifiers};
}

void CustomerForm::fillFromLookup(const Customer& customer) {
    const auto code = value("tevoTextField");
    fill(customer);
    setValue("tevoTextField", code);
}

void CustomerForm::apply(Customer& customer) const {
    for (const CustomerField& entry : table) {
        std::string value = text(entry.name);
        if (!entry.member)
            customer.name = std::move(value);
        else
            customer.*entry.member = value.empty() ? std::nullopt : std::optional(std::move(value));
    }
    customer.id = found_.id;
    customer.placeLocalityId = found_.placeLocalityId;
    customer.placeProvinceId = found_.placeProvinceId;
    customer.priorityBrandIdentifiers = found_.priorityBrandIdentifiers;
}

std::optional<std::string> CustomerForm::value(std::string_view name) const {
    const auto found = texts_.find(name);
    return found == texts_.end() ? std::nullopt : std::optional(found->second);
}

void CustomerForm::setValue(std::string_view name, const std::optional<std::string>& value) {
    if (!field(name))
        stopProcess("the form of the point of sale has no field " + std::string(name));
    if (value)
        texts_[std::string(name)] = *value;
    else
        texts_.erase(std::string(name));
}

bool CustomerForm::editText(std::string_view name, std::string_view text) {
    if (field(name) && this->text(name) == text)
        return false;
    setValue(name, std::string(text));
    if (name == "tevoTextField" || name == "establishmentNameTextField")
        forgetLookup();
    if (name == "municipalityTextField")
        found_.placeLocalityId.reset();
    if (name == "provinceTextField")
        found_.placeProvinceId.reset();
    return true;
}

} // namespace kavor
