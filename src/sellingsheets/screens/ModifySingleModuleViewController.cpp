#include "sellingsheets/screens/ModifySingleModuleViewController.h"

#include "base/AppFormatter.h"
#include "interaction/QtText.h"
#include "interaction/Questions.h"
#include "sellingsheets/screens/SheetPage.h"

#include <QStringList>

#include <utility>

namespace kavor {

namespace {

constexpr char firstBoxes[] = "1"; // of a new module

} // namespace

ModifySingleModuleViewController::ModifySingleModuleViewController(
    const SellingSheetServices& services, std::shared_ptr<const Catalogue> catalogue,
    std::optional<SellingSheetOrder::Item> module, std::optional<Int> identifierToUse, int moduleNumber,
    QObject* parent)
    : ScreenController(parent)
    , services_(services)
    , catalogue_(std::move(catalogue))
    , module_(std::move(module))
    , identifierToUse_(identifierToUse)
    , moduleNumber_(moduleNumber)
    , primary_(catalogue_)
    , secondary_(catalogue_) {
    fill();
    takeProducts();
    opened_ = entered();
    for (auto* chooser : {&primary_, &secondary_})
        connect(chooser, &SheetProductChooser::changed, this, [this] {
            takeProducts();
            emit changed();
        });
}

ModifySingleModuleViewController::~ModifySingleModuleViewController() = default;

QUrl ModifySingleModuleViewController::view() {
    return {QStringLiteral("qrc:/qt/qml/Kavor/Screens/SheetModuleView.qml")};
}

void ModifySingleModuleViewController::fill() {
    form_.mainBoxes = form_.secondBoxes = firstBoxes;
    if (!module_)
        return;
    QStringList gone;
    if (!primary_.show(module_->productIdentifier1))
        gone << QStringLiteral("El producto principal de este módulo ya no está en el catálogo. Elija otro.");
    form_.mainBoxes = std::to_string(module_->productBox1);
    form_.hasSecond = module_->productIdentifier2.has_value();
    if (form_.hasSecond && !secondary_.show(*module_->productIdentifier2))
        gone << QStringLiteral("El segundo producto de este módulo ya no está en el catálogo. Elija otro.");
    if (module_->productBox2)
        form_.secondBoxes = std::to_string(*module_->productBox2);
    form_.price = AppFormatter::shared().numberFormatter(module_->price);
    form_.reference = module_->promotionCode.value_or("");
    notice_ = gone.join(QLatin1Char('\n'));
}

void ModifySingleModuleViewController::takeProducts() {
    form_.main = primary_.chosen();
    form_.second = secondary_.chosen();
}

ModifySingleModuleViewController::Entered ModifySingleModuleViewController::entered() const {
    return {form_.main ? form_.main.format->id : 0,
            form_.second ? form_.second.format->id : 0,
            form_.hasSecond,
            form_.mainBoxes,
            form_.secondBoxes,
            form_.price,
            form_.reference};
}

void ModifySingleModuleViewController::edit(Field field, const QString& text) {
    std::string typed = text.toStdString();
    std::string& held = field == PrimaryBoxes     ? form_.mainBoxes
                        : field == SecondaryBoxes ? form_.secondBoxes
                        : field == Price          ? form_.price
                                                  : form_.reference;
    if (held == typed)
        return;
    held = std::move(typed);
    emit changed();
}

void ModifySingleModuleViewController::switchSecondaryBottle(bool on) {
    if (std::exchange(form_.hasSecond, on) != on)
        emit changed();
}

void ModifySingleModuleViewController::saveAction() {
    if (isSaved_)
        return;
    QStringList messages;
    for (const std::string& each : moduleErrors(form_))
        messages << fromUtf8(each);
    if (!messages.isEmpty())
        return ask(services_.alerts, this, QStringLiteral("Información"), messages.join(QLatin1Char('\n')),
                   {{QStringLiteral("OK"), AlertButton::Role::Cancel, {}}});
    isSaved_ = true;
    emit saved(makeModule(form_, module_, identifierToUse_));
    emit closed();
}

void ModifySingleModuleViewController::closeSceneAction() {
    if (entered() == opened_ || isSaved_) {
        emit closed();
        return;
    }
    ask(services_.alerts, this, QStringLiteral("Atención"),
        QStringLiteral("¿Salir sin guardar los cambios del módulo?"),
        {no(), yesDestroy([this] { emit closed(); })});
}

QString ModifySingleModuleViewController::title() const {
    return module_ ? QStringLiteral("Módulo %1").arg(moduleNumber_) : QStringLiteral("Módulo nuevo");
}

QString ModifySingleModuleViewController::primaryBoxes() const {
    return fromUtf8(form_.mainBoxes);
}

QString ModifySingleModuleViewController::secondaryBoxes() const {
    return fromUtf8(form_.secondBoxes);
}

QString ModifySingleModuleViewController::modulePrice() const {
    return fromUtf8(form_.price);
}

QString ModifySingleModuleViewController::modulePriceShown() const {
    const auto price = AppFormatter::shared().parseNumber(form_.price);
    return price ? fromUtf8(AppFormatter::shared().currencyFormatter(*price)) : fromUtf8(form_.price);
}

QString ModifySingleModuleViewController::moduleReferenceTextField() const {
    return fromUtf8(form_.reference);
}

QString ModifySingleModuleViewController::pricePerBottleTextField() const {
    return fromUtf8(pricePerBottleText(form_));
}

QString ModifySingleModuleViewController::programmePrice() const {
    if (!form_.main)
        return {};
    SellingSheetOrder::Item products;
    products.productIdentifier1 = form_.main.format->id;
    if (form_.hasSecond && form_.second)
        products.productIdentifier2 = form_.second.format->id;
    return programmeText(*catalogue_, products);
}

} // namespace kavor
