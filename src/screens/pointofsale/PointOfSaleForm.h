#pragma once

#include "interaction/VeiledRun.h"
#include "pointofsale/CustomerForm.h"
#include "pointofsale/services/CustomerLookup.h"
#include "pointofsale/services/LocationQuestion.h"
#include "screens/pointofsale/CustomerFieldModel.h"
#include "screens/pointofsale/LogoForm.h"

#include <QAbstractItemModel>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <vector>

namespace kavor {

// What the form works with; all of it outlives the form. A device without location has no manager.
struct PointOfSaleServices {
    ServiceOperations& network;
    AlertPresenter& alerts;
    UrlOpener& urls;
    PhotoPicker& photos;
    ReverseLocationManager* location = nullptr;
};

// How a section words its form where it has words of its own.
struct PointOfSaleTexts {
    QString codeLabel = QStringLiteral("Código cliente");
    QString requiredCodeLabel = QStringLiteral("Código cliente*");
    QString codeNote = QStringLiteral("Si no conoces el código cliente, no lo informes.");
    QString requiredCodeNote = QStringLiteral(
        "Si no introduces el código cliente REAL del PdV, los datos del cliente y de sus cartas "
        "no se volcarán correctamente provocando errores. Por favor, asegúrate antes de cursar "
        "el pedido.");
    CustomerLookupTexts lookup;
    bool takesCodeFound = false; // of the customer that a look-up finds; else the code stays as typed
    bool takesPostalCodeOfPlace = true;
};

// The text fields that a section asks for besides the code, block by block. A section may give a field of
// CustomerForm another label.
struct PointOfSaleFields {
    std::vector<CustomerField> contact;
    std::vector<CustomerField> place;
    std::vector<CustomerField> online;
    std::vector<CustomerField> freeText;
};

// The point of sale on a screen: the customer code with its look-up, the fields, the place where the device
// is, and the logo. CustomerCodeCard, CustomerFields, PlaceCard and LogoCard show its parts.
class PointOfSaleForm : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the screen")
    Q_PROPERTY(QString tevoLabel READ tevoLabel CONSTANT)
    Q_PROPERTY(QString tevoAviseLabel READ tevoAviseLabel CONSTANT)
    Q_PROPERTY(bool customerCodeRequired READ isCustomerCodeRequired CONSTANT)
    Q_PROPERTY(QString tevo READ tevo NOTIFY tevoChanged)
    // Whether a look-up without a code tells what is missing.
    Q_PROPERTY(bool tellsMissingCode READ tellsMissingCode CONSTANT)
    Q_PROPERTY(QAbstractItemModel* contactFields READ contactFields CONSTANT)
    Q_PROPERTY(QAbstractItemModel* placeFields READ placeFields CONSTANT)
    Q_PROPERTY(QAbstractItemModel* onlineFields READ onlineFields CONSTANT)
    Q_PROPERTY(QAbstractItemModel* freeTextFields READ freeTextFields CONSTANT)
    Q_PROPERTY(kavor::LogoForm* logo READ logo CONSTANT)

public:
    explicit PointOfSaleForm(const PointOfSaleServices& services, PointOfSaleTexts texts = {},
                             QObject* parent = nullptr);

    // Once, before a view binds. The validations outlive the form.
    void show(PointOfSaleFields fields, const Validations& validations);
    // Takes over the point of sale of a draft.
    void fill(const Customer& customer);
    // Writes fields and logo; what the form doesn't know stays.
    void apply(Customer& customer) const;

    // The text of a field, by the outlet's name, while it is typed and when the field is left.
    Q_INVOKABLE void editText(const QString& field, const QString& text);
    Q_INVOKABLE void finishText(const QString& field, const QString& text);
    Q_INVOKABLE void searchTEVOCodeAction();
    Q_INVOKABLE void locateDeviceAndFillFields();

    [[nodiscard]] QString tevoLabel() const;
    [[nodiscard]] QString tevoAviseLabel() const;
    [[nodiscard]] bool isCustomerCodeRequired() const;
    [[nodiscard]] QString tevo() const { return fieldText(QStringLiteral("tevoTextField")); }
    [[nodiscard]] bool tellsMissingCode() const { return !words_.lookup.noCodeText.isEmpty(); }
    [[nodiscard]] QString fieldText(const QString& field) const;
    // What tells an emptied field from one that nobody touched.
    [[nodiscard]] const CustomerForm& texts() const { return form_; }
    [[nodiscard]] QAbstractItemModel* contactFields() { return &contactFields_; }
    [[nodiscard]] QAbstractItemModel* placeFields() { return &placeFields_; }
    [[nodiscard]] QAbstractItemModel* onlineFields() { return &onlineFields_; }
    [[nodiscard]] QAbstractItemModel* freeTextFields() { return &freeTextFields_; }
    [[nodiscard]] LogoForm* logo() { return &logo_; }

signals:
    void tevoChanged();
    // What the draft is to take over: a field was left, a customer or a place was taken, another logo chosen.
    void edited();

private:
    void customerAnswered(const std::optional<Customer>& found);
    void placeTaken(const Placemark& place);
    void allTextsChanged();

    PointOfSaleTexts words_;
    VeiledRun wait_;
    CustomerLookup lookup_;
    LocationQuestion location_;
    CustomerForm form_;
    CustomerFieldModel contactFields_{form_};
    CustomerFieldModel placeFields_{form_};
    CustomerFieldModel onlineFields_{form_};
    CustomerFieldModel freeTextFields_{form_};
    LogoForm logo_;
};

} // namespace kavor
