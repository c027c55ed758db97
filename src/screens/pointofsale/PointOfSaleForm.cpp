#include "screens/pointofsale/PointOfSaleForm.h"

#include "interaction/QtText.h"
#include "session/AppSingleton.h"

#include <utility>

namespace kavor {

PointOfSaleForm::PointOfSaleForm(const PointOfSaleServices& services, PointOfSaleTexts texts, QObject* parent)
    : QObject(parent)
    , words_(std::move(texts))
    , lookup_(services.network, services.alerts, services.urls, wait_, words_.lookup)
    , location_(services.location, services.alerts, wait_)
    , logo_(services.photos) {
    connect(&logo_, &LogoForm::edited, this, &PointOfSaleForm::edited);
}

void PointOfSaleForm::show(PointOfSaleFields fields, const Validations& validations) {
    contactFields_.show(std::move(fields.contact), validations);
    placeFields_.show(std::move(fields.place), validations);
    onlineFields_.show(std::move(fields.online), validations);
    freeTextFields_.show(std::move(fields.freeText), validations);
}

void PointOfSaleForm::fill(const Customer& customer) {
    form_.fill(customer);
    logo_.fill(customer.imageLogo);
    allTextsChanged();
}

void PointOfSaleForm::apply(Customer& customer) const {
    form_.apply(customer);
    customer.imageLogo = logo_.value();
}

void PointOfSaleForm::editText(const QString& field, const QString& text) {
    const std::string name = field.toStdString();
    if (!form_.editText(name, text.toStdString()))
        return;
    for (auto* model : {&contactFields_, &placeFields_, &onlineFields_, &freeTextFields_})
        model->textChanged(name);
    if (name == "tevoTextField")
        emit tevoChanged();
}

void PointOfSaleForm::finishText(const QString& field, const QString& text) {
    editText(field, text);
    emit edited();
}

void PointOfSaleForm::allTextsChanged() {
    for (auto* model : {&contactFields_, &placeFields_, &onlineFields_, &freeTextFields_})
        model->allTextsChanged();
    emit tevoChanged();
}

void PointOfSaleForm::searchTEVOCodeAction() {
    lookup_.search(tevo(), [this](const std::optional<Customer>& found) { customerAnswered(found); });
}

void PointOfSaleForm::customerAnswered(const std::optional<Customer>& found) {
    if (found) {
        form_.fillFromLookup(*found);
        if (words_.takesCodeFound && found->tevo)
            form_.setValue("tevoTextField", found->tevo);
        logo_.fill(found->imageLogo);
        allTextsChanged();
    } else {
        form_.forgetLookup();
    }
    emit edited();
}

void PointOfSaleForm::locateDeviceAndFillFields() {
    location_.ask([this](const Placemark& place) { placeTaken(place); });
}

void PointOfSaleForm::placeTaken(const Placemark& place) {
    if (words_.takesPostalCodeOfPlace)
        form_.editText("postalCodeTextField", place.postalCode.value_or(QString()).toStdString());
    form_.editText("municipalityTextField", place.locality.value_or(QString()).toStdString());
    form_.editText("provinceTextField", place.state.value_or(QString()).toStdString());
    allTextsChanged();
    emit edited();
}

QString PointOfSaleForm::tevoLabel() const {
    return isCustomerCodeRequired() ? words_.requiredCodeLabel : words_.codeLabel;
}

QString PointOfSaleForm::tevoAviseLabel() const {
    return isCustomerCodeRequired() ? words_.requiredCodeNote : words_.codeNote;
}

bool PointOfSaleForm::isCustomerCodeRequired() const {
    const auto& login = AppSingleton::shared().loginResult;
    return login && login->customerCodeRequired.value_or(false);
}

QString PointOfSaleForm::fieldText(const QString& field) const {
    return fromUtf8(form_.text(field.toStdString()));
}

} // namespace kavor
