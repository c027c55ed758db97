#include "sellingsheets/screens/DataViewController.h"

#include "base/StopProcess.h"
#include "base/Text.h"
#include "device/Clock.h"
#include "device/Reachability.h"
#include "interaction/QtText.h"
#include "interaction/Questions.h"
#include "orders/OrderDiskManager.h"
#include "screens/DateGrid.h"
#include "screens/ResourceImages.h"
#include "sellingsheets/RememberedEmails.h"
#include "sellingsheets/SheetRules.h"
#include "sellingsheets/UnfinishedSheet.h"
#include "sellingsheets/screens/ModulesManagementController.h"
#include "sellingsheets/screens/SheetDates.h"
#include "sellingsheets/screens/SheetShelf.h"

#include <QVariantMap>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace kavor {

namespace {

constexpr std::array emailMembers{&SellingSheetOrder::emailToSend1, &SellingSheetOrder::emailToSend2,
                                  &SellingSheetOrder::emailToSend3};

Int lengthOf(const std::string& text) {
    return Int(text::characterCount(text));
}

QString countText(const std::string& text, Int limit) {
    return QStringLiteral("%1 de %2 caracteres").arg(lengthOf(text)).arg(limit);
}

QString buttonText(const std::string& stored) {
    const QString shown = sheet_dates::shown(stored);
    return shown.isEmpty() ? QStringLiteral("Elegir fecha") : shown;
}

std::vector<std::string> emailsOf(const SellingSheetOrder& order) {
    std::vector<std::string> emails;
    emails.reserve(emailMembers.size());
    for (const auto member : emailMembers)
        emails.push_back((order.*member).value_or(""));
    return emails;
}

// The form always sets the three.
SellingSheetOrder withEmails(SellingSheetOrder order) {
    for (const auto member : emailMembers)
        order.*member = (order.*member).value_or("");
    return order;
}

} // namespace

DataViewController::DataViewController(const SellingSheetServices& services,
                                       std::shared_ptr<const Catalogue> catalogue, QObject* parent)
    : ScreenController(parent)
    , services_(services)
    , catalogue_(std::move(catalogue))
    , styles_(stylesInOrder(sheets()))
    , logo_(services.photos)
    , page_(catalogue_)
    , road_({services.network, services.alerts, services.urls}, services.orders, catalogue_) {
    const auto& work = StyleSingleton::shared();
    if (!work.editingOrder)
        stopProcess("selling sheet in work");
    order_ = opened_ = withEmails(*work.editingOrder);
    StyleSingleton::shared().editingOrder = order_;
    recoveredMessage_ = fromUtf8(UnfinishedSheet::shared().takeWord());
    for (const std::string& each : remembered_emails::all())
        remembered_ << fromUtf8(each);
    logo_.fill(order_.distributionLogo);
    page_.show(order_);
    connect(&logo_, &LogoForm::edited, this, [this] {
        SellingSheetOrder order = order_;
        order.distributionLogo = logo_.value();
        order.distributionLogoURL.reset(); // the former one's
        take(std::move(order));
    });
    connect(&services_.reachability, &Reachability::changed, this, &DataViewController::offlineChanged);
    connect(&road_, &OrderRoad::documentReady, this, &DataViewController::showPreview);
}

// Whoever closes the window in the middle finds the sheet again; leaving the form has asked.
DataViewController::~DataViewController() = default;

QUrl DataViewController::view() {
    return {QStringLiteral("qrc:/qt/qml/Kavor/Screens/SheetDataView.qml")};
}

// The modules may have changed meanwhile.
void DataViewController::viewWillAppear() {
    veil_.follow();
    const auto& work = StyleSingleton::shared().editingOrder;
    if (!work || *work == order_)
        return;
    order_ = *work;
    page_.show(order_);
    emit changed();
}

const SellingSheet& DataViewController::sheets() const {
    const auto& sheets = catalogue_->information().sellingSheet;
    if (!sheets)
        stopProcess("selling sheet catalogue");
    return *sheets;
}

// ---- Edits

void DataViewController::take(SellingSheetOrder order) {
    if (order == order_ || isLeft_)
        return;
    order_ = std::move(order);
    StyleSingleton::shared().editingOrder = order_;
    UnfinishedSheet::shared().keep();
    page_.show(order_);
    emit changed();
}

void DataViewController::edit(Field field, const QString& text) {
    SellingSheetOrder order = order_;
    std::string typed = text.toStdString();
    switch (field) {
    case SheetName:
        order.orderName = std::move(typed);
        break;
    case Title:
        order.title = std::move(typed);
        break;
    case Subtitle:
        order.subtitle = std::move(typed);
        break;
    case FreeText:
        order.freeText = std::move(typed);
        break;
    case Email1:
    case Email2:
    case Email3:
        order.*emailMembers.at(std::size_t(field - Email1)) = std::move(typed);
        break;
    }
    take(std::move(order));
}

void DataViewController::toggle(Switch which, bool on) {
    SellingSheetOrder order = order_;
    switch (which) {
    case Logotype:
        order.isNRVLogoIncluded = on;
        break;
    case TaxesIncluded:
        order.areTaxesIncluded = on;
        break;
    case ModulePerPage:
        order.showOneModulePerPage = on;
        break;
    }
    take(std::move(order));
}

void DataViewController::chooseDate(DateButton editingDateIdentifier, const QString& day) {
    SellingSheetOrder order = order_;
    (editingDateIdentifier == Starting ? order.fromDate : order.toDate) =
        sheet_dates::write(DateGrid::read(day));
    take(std::move(order));
}

void DataViewController::chooseStyle(int index) {
    if (index < 0 || index >= int(styles_.size()))
        return;
    SellingSheetOrder order = order_;
    order.styleIdentifier = styles_[std::size_t(index)].id;
    take(std::move(order));
}

void DataViewController::takeEmail(const QString& address) {
    SellingSheetOrder order = order_;
    for (const auto member : emailMembers) {
        if (!(order.*member).value_or("").empty())
            continue;
        order.*member = address.toStdString();
        return take(std::move(order));
    }
}

// ---- The ways out

// A second tap opens no second list.
void DataViewController::modulesAction() {
    if (isLeft_ || modules_)
        return;
    auto* modules = new ModulesManagementController(services_, catalogue_);
    modules_ = modules;
    connect(modules, &ScreenController::closed, this, [this] { modules_.clear(); });
    connect(modules, &ModulesManagementController::screenRequested, this,
            &DataViewController::screenRequested);
    emit screenRequested({ModulesManagementController::view(), modules});
}

void DataViewController::previewAction() {
    road_.previewDraft(order_, StyleSingleton::shared().orderFilename.value_or(""));
}

QStringList DataViewController::missing() const {
    return fromUtf8(validationText(order_, *catalogue_)).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

bool DataViewController::isStored() const {
    const auto& name = StyleSingleton::shared().orderFilename;
    constexpr auto folder = OrderDiskManager::DirectoryName::draft;
    if (!name || !services_.orders.exists<SellingSheetOrder>(*name, folder))
        return false;
    return services_.orders.retrieve<SellingSheetOrder>(OrderDiskManager::fileName(*name), folder) == order_;
}

// Messages keep it from being written; it stays safe as unfinished work.
bool DataViewController::store() {
    if (const QStringList messages = missing(); !messages.isEmpty()) {
        services_.alerts.inform(QStringLiteral("Error"), messages.join(QLatin1Char('\n')), this);
        return false;
    }
    if (!isStored()) {
        auto& name = StyleSingleton::shared().orderFilename;
        const auto now = LocalDateTime::fromTime(services_.clock.now().toSecsSinceEpoch());
        const auto stored = sheet_shelf::store(services_.orders, order_, name, now);
        if (!stored) {
            services_.alerts.inform(QStringLiteral("Error"),
                                    QStringLiteral("Su pedido no se ha podido guardar"), this);
            return false;
        }
        name = stored;
    }
    opened_ = order_;
    UnfinishedSheet::shared().removeAll();
    remembered_emails::remember(emailsOf(order_));
    return true;
}

void DataViewController::saveAction() {
    if (!isLeft_ && store())
        leave();
}

// The list sends it, so that the sheet is a draft like any other whatever the server says.
void DataViewController::sendAction() {
    if (isLeft_ || !store())
        return;
    const auto name = StyleSingleton::shared().orderFilename.value_or("");
    leave();
    emit sendRequested(order_, name);
}

void DataViewController::leave() {
    if (std::exchange(isLeft_, true))
        return;
    UnfinishedSheet::shared().removeAll();
    StyleSingleton::shared() = {};
    emit closed();
}

// A recovered sheet counts as changed: nothing else holds it.
void DataViewController::closeSceneAction() {
    const bool isKept = order_ == opened_ && (recoveredMessage_.isEmpty() || isStored());
    if (isKept)
        return leave();
    ask(services_.alerts, this, QStringLiteral("Atención"),
        QStringLiteral("La hoja tiene cambios sin guardar."),
        {{QStringLiteral("Seguir editando"), AlertButton::Role::Cancel, {}},
         {QStringLiteral("Guardar"), AlertButton::Role::Normal, [this] { saveAction(); }},
         {QStringLiteral("Salir sin guardar"), AlertButton::Role::Destructive, [this] { leave(); }}});
}

void DataViewController::showPreview(const QUrl& document) {
    closePreview();
    preview_ = new WebPreviewViewController(document, QStringLiteral("Vista previa"), services_.downloader,
                                            services_.clock, this);
    connect(preview_, &WebPreviewViewController::dismissed, this, &DataViewController::closePreview);
    emit previewChanged();
}

void DataViewController::closePreview() {
    if (!preview_)
        return;
    preview_->deleteLater();
    preview_ = nullptr;
    emit previewChanged();
}

// ---- What the view shows

QString DataViewController::sheetNameTextField() const {
    return fromUtf8(order_.orderName);
}

QString DataViewController::titleTextField() const {
    return fromUtf8(order_.title);
}

QString DataViewController::subtitleTextField() const {
    return fromUtf8(order_.subtitle.value_or(""));
}

QString DataViewController::freeTextField() const {
    return fromUtf8(order_.freeText.value_or(""));
}

QString DataViewController::emailTextField1() const {
    return fromUtf8(order_.emailToSend1.value_or(""));
}

QString DataViewController::emailTextField2() const {
    return fromUtf8(order_.emailToSend2.value_or(""));
}

QString DataViewController::emailTextField3() const {
    return fromUtf8(order_.emailToSend3.value_or(""));
}

QString DataViewController::titleCount() const {
    return countText(order_.title, sheets().validations.titleLength);
}

bool DataViewController::isTitleTooLong() const {
    return lengthOf(order_.title) > sheets().validations.titleLength;
}

QString DataViewController::subtitleCount() const {
    return countText(order_.subtitle.value_or(""), sheets().validations.subtitleLenth);
}

bool DataViewController::isSubtitleTooLong() const {
    return lengthOf(order_.subtitle.value_or("")) > sheets().validations.subtitleLenth;
}

int DataViewController::freeTextLength() const {
    return int(std::clamp<Int>(sheets().validations.freeTextLength, 0, std::numeric_limits<int>::max()));
}

QString DataViewController::startingDate() const {
    return buttonText(order_.fromDate);
}

QString DataViewController::endingDate() const {
    return buttonText(order_.toDate);
}

QString DataViewController::startingDay() const {
    return DateGrid::write(sheet_dates::read(order_.fromDate));
}

QString DataViewController::endingDay() const {
    return DateGrid::write(sheet_dates::read(order_.toDate));
}

QString DataViewController::datesError() const {
    if (order_.fromDate.empty() || order_.toDate.empty() || order_.fromDate < order_.toDate)
        return {};
    return order_.fromDate == order_.toDate ? QStringLiteral("Termina el día en que empieza.")
                                            : QStringLiteral("Termina antes de empezar.");
}

QString DataViewController::today() const {
    return DateGrid::write(services_.clock.now().date());
}

QVariantList DataViewController::styles() const {
    QVariantList styles;
    for (const auto& style : styles_)
        styles << QVariantMap{{QStringLiteral("source"), resourceImageUrl(style.image)},
                              {QStringLiteral("text"), fromUtf8(style.name)}};
    return styles;
}

int DataViewController::style() const {
    const auto found = std::ranges::find(styles_, order_.styleIdentifier, &SellingSheet::Style::id);
    return found == styles_.end() ? -1 : int(found - styles_.begin());
}

QString DataViewController::styleHint() const {
    return style() < 0 ? QStringLiteral("El estilo de esta hoja ya no está en el catálogo. Elija otro.")
                       : QString();
}

QStringList DataViewController::rememberedEmails() const {
    QStringList offered = remembered_;
    const auto held = emailsOf(order_);
    const auto isHeld = [&](const QString& each) {
        return std::ranges::find(held, each.toStdString()) != held.end();
    };
    offered.removeIf(isHeld);
    return std::ranges::any_of(held, &std::string::empty) ? offered : QStringList();
}

QString DataViewController::modulesText() const {
    const auto count = order_.items.size();
    if (count == 0)
        return QStringLiteral("Sin módulos");
    return count == 1 ? QStringLiteral("1 módulo") : QStringLiteral("%1 módulos").arg(count);
}

bool DataViewController::isOffline() const {
    return !services_.reachability.isReachable();
}

} // namespace kavor
