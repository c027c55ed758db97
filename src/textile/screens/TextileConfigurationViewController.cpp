#include "textile/screens/TextileConfigurationViewController.h"

#include "base/Text.h"
#include "documents/Customer.h"
#include "interaction/AlertPresenter.h"
#include "interaction/QtText.h"
#include "resources/FontRegistry.h"
#include "session/AppSingleton.h"

#include <algorithm>

namespace kavor {

namespace {

using Member = std::optional<std::string> SaveTextileOrder::Customer::*;

constexpr const char* nameField = "establishmentNameTextField";

// Where the fields of the form go.
constexpr std::pair<const char*, Member> members[] = {
    {"tevoTextField", &SaveTextileOrder::Customer::tevo},
    {nameField, &SaveTextileOrder::Customer::name},
    {"contactNameTextField", &SaveTextileOrder::Customer::contactName},
    {"contactEmailTextField", &SaveTextileOrder::Customer::email},
    {"contactTelephoneTextField", &SaveTextileOrder::Customer::telephone},
    {"provinceTextField", &SaveTextileOrder::Customer::placeProvinceName},
    {"municipalityTextField", &SaveTextileOrder::Customer::placeLocality},
    {"postalCodeTextField", &SaveTextileOrder::Customer::placePostalCode},
};

PointOfSaleTexts textsOfForm() {
    PointOfSaleTexts texts;
    texts.codeLabel = texts.requiredCodeLabel;
    texts.requiredCodeNote = QStringLiteral(
        "Si no introduces el código cliente REAL del PdV, los datos del cliente y de sus pedidos no se "
        "volcarán correctamente provocando errores. Por favor, asegúrate antes de cursar el pedido.");
    texts.takesCodeFound = true;
    texts.takesPostalCodeOfPlace = false;
    texts.lookup.offlineTitle = QStringLiteral("Atención");
    texts.lookup.offlineText = QStringLiteral("Es necesario conexión a internet");
    texts.lookup.noCodeText = QStringLiteral("Debe introducir un código tevo.");
    texts.lookup.nobodyTitle = QStringLiteral("Atención");
    texts.lookup.nobodyText = QStringLiteral("El cliente introducido no existe");
    texts.lookup.nobodyButton = QStringLiteral("Aceptar");
    texts.lookup.failureTitle = QStringLiteral("Error al recuperar cliente");
    return texts;
}

CustomerField fieldWithLabel(const char* name, const char* label) {
    CustomerField field = *CustomerForm::field(name);
    field.label = label;
    return field;
}

} // namespace

TextileConfigurationViewController::TextileConfigurationViewController(TextileDesk& desk, QObject* parent)
    : TextileStepViewController(parent)
    , desk_(desk)
    , customer_({desk.services().network, desk.services().alerts, desk.services().urls,
                 desk.services().photos, desk.services().location},
                textsOfForm()) {
    fillForm();
    followEdits();
    showTypographies();
    connect(&desk_, &TextileDesk::changed, this, &TextileConfigurationViewController::showTypographies);
    connect(&desk_.services().fonts, &FontRegistry::changed, this,
            &TextileConfigurationViewController::showTypographies);
}

TextileConfigurationViewController::~TextileConfigurationViewController() = default;

QUrl TextileConfigurationViewController::view() const {
    return {QStringLiteral("qrc:/qt/qml/Kavor/Screens/TextileConfigurationView.qml")};
}

// A name and a contact that nobody gave are no fault, so their labels have no star.
void TextileConfigurationViewController::fillForm() {
    customer_.show(
        {{fieldWithLabel(nameField, "Nombre del establecimiento"),
          fieldWithLabel("contactNameTextField", "Nombre de contacto"),
          *CustomerForm::field("contactEmailTextField"), *CustomerForm::field("contactTelephoneTextField")},
         CustomerForm::fieldsOf(CustomerFieldGroup::place),
         {},
         {}},
        AppSingleton::shared().catalogue().information().validations);
    if (!desk_.draft().customer)
        return;
    const SaveTextileOrder::Customer& kept = *desk_.draft().customer;
    Customer shown;
    shown.id = kept.id;
    shown.name = kept.name.value_or("");
    shown.contact = kept.contactName;
    shown.email = kept.email;
    shown.telephone = kept.telephone;
    shown.tevo = kept.tevo;
    shown.placePostalCode = kept.placePostalCode;
    shown.placeLocality = kept.placeLocality;
    shown.placeLocalityId = kept.placeLocalityId;
    shown.placeProvinceId = kept.placeProvinceId;
    shown.placeProvinceName = kept.placeProvinceName;
    customer_.fill(shown);
}

// Each letter counts: the process may end at any moment.
void TextileConfigurationViewController::followEdits() {
    const auto follow = [this](auto* form, auto signal) {
        connect(form, signal, this, &TextileConfigurationViewController::takeOver);
    };
    follow(customer_.contactFields(), &QAbstractItemModel::dataChanged);
    follow(customer_.placeFields(), &QAbstractItemModel::dataChanged);
    follow(&customer_, &PointOfSaleForm::tevoChanged);
    follow(&customer_, &PointOfSaleForm::edited);
}

// A field that was emptied holds an empty text, one that nobody touched none.
std::optional<SaveTextileOrder::Customer> TextileConfigurationViewController::typed() const {
    const auto& former = desk_.draft().customer;
    SaveTextileOrder::Customer now;
    bool isAnySet = former.has_value();
    for (const auto& [field, member] : members) {
        now.*member = customer_.texts().value(field);
        isAnySet = isAnySet || now.*member;
    }
    if (!now.name && former && former->name == "") // which the form takes for untouched
        now.name = "";
    Customer found;
    customer_.apply(found);
    now.id = found.id;
    now.placeLocalityId = found.placeLocalityId;
    now.placeProvinceId = found.placeProvinceId;
    return isAnySet ? std::optional(now) : std::nullopt;
}

void TextileConfigurationViewController::takeOver() {
    const auto now = typed();
    if (now == desk_.draft().customer)
        return;
    desk_.change([&now](TextileIntermediateData& draft) { draft.customer = now; });
}

void TextileConfigurationViewController::editCustomText(const QString& text) {
    if (text == customText())
        return;
    desk_.change([&text](TextileIntermediateData& draft) { draft.customizedText = text.toStdString(); });
    emit customTextChanged();
}

void TextileConfigurationViewController::selectTypography(const QString& key) {
    bool isSelected = false;
    desk_.change([&](TextileIntermediateData& draft) {
        isSelected = draft.selectTypography(key.toLongLong());
        if (!isSelected)
            desk_.services().alerts.inform(
                QStringLiteral("Error"), QStringLiteral("No se ha podido seleccionar la tipografía."), this);
    });
}

void TextileConfigurationViewController::showTypographies() {
    std::vector<const Textile::Typography*> sorted;
    for (const Textile::Typography& each : TextileArticles::current().textile().typographies) {
        if (TextileArticles::current().typography(each.identifier) == &each) // the first of its number
            sorted.push_back(&each);
    }
    std::ranges::stable_sort(sorted, {}, &Textile::Typography::position);
    std::vector<TextileChoice> rows;
    for (const Textile::Typography* each : sorted) {
        TextileChoice row;
        row.key = QString::number(each->identifier);
        row.title = fromUtf8(each->mimetype); // where the catalogue has the font's own name
        row.lettering = desk_.lettering(each, desk_.sampleText(), QStringLiteral("#20262B"));
        row.selected = desk_.draft().typographyIdentifier == each->identifier;
        rows.push_back(std::move(row));
    }
    typographies_.show(std::move(rows));
}

QString TextileConfigurationViewController::customText() const {
    return fromUtf8(desk_.draft().customizedText.value_or(""));
}

int TextileConfigurationViewController::characters() const {
    return int(text::characterCount(desk_.draft().customizedText.value_or("")));
}

int TextileConfigurationViewController::limit() const {
    return int(TextileArticles::current().textile().validations.maximumNumberOfCharactersForMessage);
}

QString TextileConfigurationViewController::customTextHelp() const {
    return QStringLiteral("%1 de %2 caracteres").arg(characters()).arg(limit());
}

QString TextileConfigurationViewController::customTextError() const {
    return characters() <= limit()
               ? QString()
               : QStringLiteral("%1 (son %2)")
                     .arg(QStringLiteral("El texto a mostrar debe de tener una longitud máxima de %1")
                              .arg(limit()))
                     .arg(characters());
}

} // namespace kavor
