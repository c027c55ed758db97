#include "brochures/wizard/configuration/CustomerForm.h"

#include "base/StopProcess.h"
#include "catalogue/Shared.h"
#include "screens/PictureText.h"

#include <algorithm>
#include <array>

namespace kavor {

namespace {

using Group = CustomerFieldGroup;

constexpr int phoneKeys = Qt::ImhDialableCharactersOnly;
constexpr int mailKeys = Qt::ImhEmailCharactersOnly | Qt::ImhNoAutoUppercase;
constexpr int urlKeys = Qt::ImhUrlCharactersOnly | Qt::ImhNoAutoUppercase;

constexpr std::array table{
    CustomerField{"tevoTextField", "Código cliente", "tag", Group::code, &Customer::tevo, nullptr,
                  Qt::ImhNoPredictiveText},
    CustomerField{"establishmentNameTextField", "Nombre del establecimiento*", "store", Group::contact,
                  nullptr},
    CustomerField{"contactNameTextField", "Nombre de contacto*", "user", Group::contact, &Customer::contact},
    CustomerField{"contactEmailTextField", "Email*", "mail", Group::contact, &Customer::email, nullptr,
                  mailKeys},
    CustomerField{"contactTelephoneTextField", "Teléfono*", "phone", Group::contact, &Customer::telephone,
                  nullptr, phoneKeys},
    CustomerField{"postalCodeTextField", "Código postal", "location", Group::place,
                  &Customer::placePostalCode, nullptr, Qt::ImhDigitsOnly},
    CustomerField{"municipalityTextField", "Municipio", "", Group::place, &Customer::placeLocality},
    CustomerField{"provinceTextField", "Provincia", "", Group::place, &Customer::placeProvinceName},
    CustomerField{"localPhoneTextField", "Teléfono del local", "phone", Group::online, &Customer::localPhone,
                  &Validations::customerLocalPhone, phoneKeys},
    CustomerField{"webSiteTextField", "Página web", "globe", Group::online, &Customer::url,
                  &Validations::customerUrl, urlKeys},
    CustomerField{"facebookTextField", "Facebook", "users", Group::social, &Customer::facebook,
                  &Validations::customerFacebook, urlKeys},
    CustomerField{"twitterTextField", "Twitter", "users", Group::social, &Customer::twitter,
                  &Validations::customerTwitter, urlKeys},
    CustomerField{"instagramTextField", "Instagram", "camera", Group::social, &Customer::instagram,
                  &Validations::customerInstagram, urlKeys},
    CustomerField{"firstFreeTextField", "Texto libre 1", "", Group::freeText, &Customer::freeText1,
                  &Validations::customerFreeText},
    CustomerField{"secondFreeTextField", "Texto libre 2", "", Group::freeText, &Customer::freeText2,
                  &Validations::customerFreeText},
    CustomerField{"thirdFreeTextField", "Texto libre 3", "", Group::freeText, &Customer::freeText3,
                  &Validations::customerFreeText},
};

} // namespace

std::span<const CustomerField> CustomerForm::fields() {
    return table;
}

const CustomerField* CustomerForm::field(std::string_view name) {
    const auto found = std::ranges::find(table, name, &CustomerField::name);
    return found == table.end() ? nullptr : &*found;
}

void CustomerForm::fill(const Customer& customer) {
    for (const CustomerField& entry : table) {
        const std::string value = entry.member ? (customer.*entry.member).value_or("") : customer.name;
        texts_[std::string(entry.name)] = QString::fromStdString(value);
    }
    imageLogo_ = picture_text::asPng(customer.imageLogo.value_or(std::string()));
    found_ = {customer.id, customer.placeLocalityId, customer.placeProvinceId,
              customer.priorityBrandIdentifiers};
}

void CustomerForm::fillFromLookup(const Customer& customer) {
    const QString code = text("tevoTextField");
    fill(customer);
    texts_["tevoTextField"] = code;
}

void CustomerForm::apply(Customer& customer) const {
    for (const CustomerField& entry : table) {
        const std::string value = text(entry.name).toStdString();
        if (!entry.member)
            customer.name = value;
        else
            customer.*entry.member = value.empty() ? std::nullopt : std::optional(value);
    }
    customer.imageLogo = imageLogo_.empty() ? std::nullopt : std::optional(imageLogo_);
    customer.id = found_.id;
    customer.placeLocalityId = found_.placeLocalityId;
    customer.placeProvinceId = found_.placeProvinceId;
    customer.priorityBrandIdentifiers = found_.priorityBrandIdentifiers;
}

QString CustomerForm::text(std::string_view name) const {
    const auto found = texts_.find(name);
    return found == texts_.end() ? QString() : found->second;
}

bool CustomerForm::setText(std::string_view name, const QString& text) {
    if (!field(name))
        stopProcess("the form of the point of sale has no field " + std::string(name));
    QString& current = texts_[std::string(name)];
    if (current == text)
        return false;
    current = text;
    return true;
}

bool CustomerForm::editText(std::string_view name, const QString& text) {
    if (!setText(name, text))
        return false;
    if (name == "tevoTextField" || name == "establishmentNameTextField")
        forgetLookup();
    if (name == "municipalityTextField")
        found_.placeLocalityId.reset();
    if (name == "provinceTextField")
        found_.placeProvinceId.reset();
    return true;
}

} // namespace kavor
