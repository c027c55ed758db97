#include "sellingsheets/screens/SellingSheetOrderListManagerViewController.h"

#include "base/StopProcess.h"
#include "device/Background.h"
#include "device/Clock.h"
#include "device/Reachability.h"
#include "documents/Answers.h"
#include "interaction/QtText.h"
#include "interaction/Questions.h"
#include "network/ShowRequestFailure.h"
#include "resources/PlainDownloader.h"
#include "screens/PictureText.h"
#include "sellingsheets/SheetRules.h"
#include "sellingsheets/UnfinishedSheet.h"
#include "sellingsheets/screens/DataViewController.h"
#include "session/AppSingleton.h"

#include <QImage>

#include <algorithm>
#include <utility>

namespace kavor {

namespace {

constexpr auto draftFolder = OrderDiskManager::DirectoryName::draft;
constexpr qint64 largestLogo = 16LL * 1024 * 1024;
constexpr int largestLogoSide = 1024; // pixels; the logo travels inside the order

QVariantMap emptyState(const char* icon, const char* title, const char* text, const char* action = "") {
    return {{QStringLiteral("icon"), QString::fromUtf8(icon)},
            {QStringLiteral("title"), QString::fromUtf8(title)},
            {QStringLiteral("text"), QString::fromUtf8(text)},
            {QStringLiteral("action"), QString::fromUtf8(action)}};
}

QString copyStored() {
    return QStringLiteral("Copia guardada en borradores");
}

const AlertButton::Role cancel = AlertButton::Role::Cancel;
const AlertButton::Role normal = AlertButton::Role::Normal;
const AlertButton::Role destructive = AlertButton::Role::Destructive;

} // namespace

using Controller = SellingSheetOrderListManagerViewController;

Controller::SellingSheetOrderListManagerViewController(const SellingSheetServices& services, QObject* parent)
    : ScreenController(parent)
    , services_(services)
    , catalogue_(AppSingleton::shared().applicationInformation)
    , road_({services.network, services.alerts, services.urls}, services.orders, catalogue_) {
    if (!catalogue_)
        stopProcess("catalogue");
    connect(&services_.reachability, &Reachability::changed, this, &Controller::offlineChanged);
    connect(&road_, &OrderRoad::documentReady, this, &Controller::showPreview);
    connect(&road_, &OrderRoad::orderSent, this, &Controller::refresh);
    connect(&veil_, &VeilState::left, this, [this] {
        if (wait_.isUnderWay())
            endWait();
    });
    StyleSingleton::shared() = {}; // a form that closed with the window left its sheet as unfinished work
}

Controller::~SellingSheetOrderListManagerViewController() = default;

// Work that came back opens at once, over the list.
void Controller::viewWillAppear() {
    veil_.follow();
    loadDrafts();
    if (!std::exchange(isUnfinishedLookedFor_, true) && catalogue_->information().sellingSheet &&
        UnfinishedSheet::shared().open()) {
        QMetaObject::invokeMethod(this, &Controller::openForm, Qt::QueuedConnection);
        return;
    }
    if (std::exchange(isLoadWanted_, false))
        loadFromServer();
}

// ---- Loading

void Controller::refresh() {
    loadDrafts();
    loadFromServer();
}

void Controller::loadDrafts() {
    const quint64 reading = ++reading_;
    runInBackground(
        this, [&orders = services_.orders] { return sheet_shelf::readDrafts(orders); },
        [this, reading](sheet_shelf::Drafts drafts) {
            if (reading == reading_)
                takeDrafts(std::move(drafts));
        });
}

// Those that can be read are shown when others cannot.
void Controller::takeDrafts(sheet_shelf::Drafts drafts) {
    ordersFromDisk_ = std::move(drafts.drafts);
    showRows();
    if (drafts.isComplete || std::exchange(isFaultTold_, true))
        return;
    services_.alerts.inform(QStringLiteral("Error"),
                            QStringLiteral("No se han podido obtener los pedidos de disco."), this);
}

void Controller::loadFromServer() {
    if (!services_.network.isReachable()) {
        setLoad(Load::Offline);
        ask(services_.alerts, this, QStringLiteral("Error"), QStringLiteral("No hay conexión a internet."),
            {{QStringLiteral("Ver pedidos guardados localmente"), cancel, {}}});
        return;
    }
    setLoad(Load::UnderWay);
    services_.network.sellingSheetOrderList({loading_.begin(),
                                             [this](const SellingSheetOrderListResponse& answer) {
                                                 loading_.end();
                                                 ordersFromServer_ = answer.orders;
                                                 setLoad(Load::Answered);
                                                 showRows();
                                             },
                                             [this](const RequestFailure& failure) { failed(failure); }});
}

void Controller::failed(const RequestFailure& failure) {
    loading_.end();
    setLoad(Load::Failed);
    if (failure.error.updateNeeded)
        return showRequestFailure({services_.alerts, services_.urls}, {}, failure, true, {});
    ask(services_.alerts, this, QStringLiteral("Incidencia"), QStringLiteral("Error en la carga de datos"),
        {{QStringLiteral("Trabajar en local"), cancel, {}},
         {QStringLiteral("Intentar de nuevo"), normal, [this] { loadFromServer(); }}});
}

void Controller::setLoad(Load load) {
    load_ = load;
    emit emptyChanged();
}

void Controller::showRows() {
    const QDate today = services_.clock.now().date();
    std::vector<SheetListRow> drafts;
    for (const Draft& draft : ordersFromDisk_)
        drafts.push_back(sheet_shelf::rowOf(draft, *catalogue_, today));
    drafts_.show(std::move(drafts));
    std::vector<SheetListRow> sent;
    for (const SellingSheetOrder& sheet : ordersFromServer_) {
        SheetListRow row = sheet_shelf::rowOf(sheet, *catalogue_, today);
        if (std::ranges::find(sent, row.key, &SheetListRow::key) == sent.end())
            sent.push_back(std::move(row));
    }
    sent_.show(std::move(sent));
    emit emptyChanged();
}

// ---- New and opened sheets

bool Controller::hasCatalogue() {
    if (catalogue_->information().sellingSheet)
        return true;
    services_.alerts.inform(QStringLiteral("Atención"),
                            QStringLiteral("El catálogo no contiene hojas vendedoras."), this);
    return false;
}

void Controller::newSheetAction() {
    if (hasCatalogue())
        edit(newSheet(*catalogue_->information().sellingSheet), std::nullopt);
}

void Controller::openDraft(const QString& key) {
    const Draft* draft = draftOf(key);
    if (draft && hasCatalogue())
        edit(draft->order, draft->filename);
}

void Controller::edit(SellingSheetOrder order, std::optional<std::string> filename) {
    if (StyleSingleton::shared().editingOrder) // a second tap
        return;
    StyleSingleton::shared() = {std::move(order), std::move(filename)};
    openForm();
}

void Controller::openForm() {
    auto* form = new DataViewController(services_, catalogue_);
    connect(form, &DataViewController::screenRequested, this, &Controller::screenRequested);
    connect(form, &DataViewController::sendRequested, this,
            [this](const SellingSheetOrder& order, const std::string& filename) {
                road_.sendDraft(order, filename);
            });
    emit screenRequested({DataViewController::view(), form});
}

const Controller::Draft* Controller::draftOf(const QString& key) const {
    const auto found = std::ranges::find(ordersFromDisk_, key.toStdString(), &Draft::filename);
    return found == ordersFromDisk_.end() ? nullptr : &*found;
}

const SellingSheetOrder* Controller::sentOf(const QString& key) const {
    const auto found = std::ranges::find(ordersFromServer_, key.toLongLong(), &SellingSheetOrder::identifier);
    return found == ordersFromServer_.end() ? nullptr : &*found;
}

// ---- Sending and previews

void Controller::sendDraft(const QString& key) {
    const Draft* draft = draftOf(key);
    if (draft && hasCatalogue())
        road_.sendDraft(draft->order, draft->filename);
}

void Controller::previewDraft(const QString& key) {
    const Draft* draft = draftOf(key);
    if (draft && hasCatalogue())
        road_.previewDraft(draft->order, draft->filename);
}

void Controller::previewSent(const QString& key) {
    const SellingSheetOrder* sheet = sentOf(key);
    if (!sheet)
        return;
    if (!services_.network.isReachable())
        return informOffline(services_.alerts);
    if (sheet->PDFURL)
        return showPreview(QUrl(fromUtf8(sheet->PDFURL->text)));
    road_.previewSent(*sheet);
}

void Controller::showPreview(const QUrl& document) {
    closePreview();
    preview_ = new WebPreviewViewController(document, QStringLiteral("Hoja vendedora"), services_.downloader,
                                            services_.clock, this);
    connect(preview_, &WebPreviewViewController::dismissed, this, &Controller::closePreview);
    emit previewChanged();
}

void Controller::closePreview() {
    if (!preview_)
        return;
    preview_->deleteLater();
    preview_ = nullptr;
    emit previewChanged();
}

// ---- Copies

// The second half of a double tap makes no second copy.
bool Controller::isCopyAgain(const QString& key) {
    constexpr qint64 doubleTap = 800; // milliseconds
    const QDateTime now = services_.clock.now();
    const bool isAgain = key == copiedKey_ && copiedAt_.isValid() && copiedAt_.msecsTo(now) < doubleTap;
    copiedKey_ = key;
    copiedAt_ = now;
    return isAgain;
}

void Controller::copyDraft(const QString& key) {
    const Draft* draft = draftOf(key);
    if (draft && !isCopyAgain(key))
        storeCopy(copyOf(draft->order), copyStored());
}

void Controller::copySent(const QString& key) {
    const SellingSheetOrder* sheet = sentOf(key);
    if (!sheet || wait_.isUnderWay() || isCopyAgain(key))
        return;
    const auto& address = sheet->distributionLogoURL;
    if (!address || address->empty())
        return storeCopy(copyOf(*sheet), copyStored());
    if (!services_.network.isReachable())
        return takeLogo(*sheet, {}, false);
    const QUrl logo = QUrl(services_.network.baseUrl()).resolved(QUrl(fromUtf8(*address)));
    services_.downloader.get(
        logo, beginWait(QStringLiteral("Copiando la hoja…")),
        [this, sheet = *sheet](const DownloadResult& result) {
            takeLogo(sheet, result.body, result.isComplete());
        },
        largestLogo);
}

// A copy without the logo is better than none.
void Controller::takeLogo(const SellingSheetOrder& sheet, const QByteArray& body, bool isComplete) {
    QObject* const run =
        wait_.isUnderWay() ? wait_.context() : beginWait(QStringLiteral("Copiando la hoja…"));
    runInBackground(
        run,
        [body, isComplete] {
            return isComplete ? picture_text::of(QImage::fromData(body), largestLogoSide) : std::string();
        },
        [this, sheet](std::string logo) {
            endWait();
            SellingSheetOrder copy = copyOf(sheet);
            if (!logo.empty())
                copy.distributionLogo = std::move(logo);
            storeCopy(copy, copy.distributionLogo ? copyStored() : QString());
        });
}

// Nothing to say means that the logo could not be had, which has an alert of its own.
void Controller::storeCopy(const SellingSheetOrder& sheet, const QString& said) {
    const auto now = LocalDateTime::fromTime(services_.clock.now().toSecsSinceEpoch());
    if (!sheet_shelf::store(services_.orders, sheet, std::nullopt, now))
        return services_.alerts.inform(QStringLiteral("Error"),
                                       QStringLiteral("No se ha podido copiar el pedido en local."), this);
    loadDrafts();
    if (!said.isEmpty())
        emit copied(said);
    else
        services_.alerts.inform(QStringLiteral("Atención"),
                                QStringLiteral("No se ha podido obtener el logotipo. La copia se ha guardado "
                                               "en borradores sin él."),
                                this);
}

// ---- Deletions

void Controller::deleteDraft(const QString& key) {
    const Draft* draft = draftOf(key);
    if (!draft)
        return;
    ask(services_.alerts, this, {}, QStringLiteral("¿Desea eliminar el borrador?"),
        {{QStringLiteral("Cancelar"), cancel, {}},
         {QStringLiteral("Borrar"), destructive, [this, name = draft->filename] { removeDraft(name); }}});
}

void Controller::removeDraft(const std::string& filename) {
    if (!services_.orders.remove<SellingSheetOrder>(OrderDiskManager::fileName(filename), draftFolder))
        services_.alerts.inform(QStringLiteral("Error"),
                                QStringLiteral("No se ha podido borrar el pedido de disco."), this);
    loadDrafts();
}

void Controller::deleteSent(const QString& key) {
    const SellingSheetOrder* sheet = sentOf(key);
    if (!sheet)
        return;
    ask(services_.alerts, this, {}, QStringLiteral("¿Desea eliminar el pedido enviado?"),
        {{QStringLiteral("Cancelar"), cancel, {}},
         {QStringLiteral("Borrar"), destructive, [this, sheet = *sheet] { cancelSent(sheet); }}});
}

void Controller::cancelSent(const SellingSheetOrder& sheet) {
    if (!services_.network.isReachable())
        return informOffline(services_.alerts);
    services_.network.sellingSheetOrderDelete(
        sheet.identifier, fromUtf8(sheet.orderToken),
        {beginWait(QStringLiteral("Borrando la hoja…")),
         [this, id = sheet.identifier](const SimpleResponse&) {
             endWait();
             std::erase_if(ordersFromServer_,
                           [id](const SellingSheetOrder& each) { return each.identifier == id; });
             showRows();
             ask(services_.alerts, this, {}, QStringLiteral("Pedido cancelado correctamente"),
                 {{QStringLiteral("Continuar"), cancel, {}}});
         },
         [this, sheet](const RequestFailure& failure) {
             endWait();
             if (failure.error.updateNeeded)
                 return showRequestFailure({services_.alerts, services_.urls}, {}, failure, true, {});
             ask(services_.alerts, this, QStringLiteral("Incidencia"),
                 QStringLiteral("No se ha podido cancelar el pedido en servidor."),
                 {{QStringLiteral("Intentar más tarde"), cancel, {}},
                  {QStringLiteral("Intentar de nuevo"), normal, [this, sheet] { cancelSent(sheet); }}});
         }});
}

// ---- What the view shows

QVariantMap Controller::draftsEmpty() const {
    return emptyState("sellingsheet", "No hay hojas en borrador",
                      "Una hoja que empiece y guarde aparecerá aquí.");
}

QVariantMap Controller::sentEmpty() const {
    switch (load_) {
    case Load::UnderWay:
        return emptyState("refresh", "Cargando las hojas…", "");
    case Load::Offline:
        return emptyState("offline", "Sin conexión", "Las hojas realizadas necesitan conexión a internet.",
                          "Intentar de nuevo");
    case Load::Failed:
        return emptyState("warning", "No se han podido cargar", "Los borradores siguen disponibles.",
                          "Intentar de nuevo");
    case Load::Answered:
        break;
    }
    return emptyState("send", "No hay hojas realizadas", "Las hojas enviadas aparecerán aquí.");
}

bool Controller::isOffline() const {
    return !services_.reachability.isReachable();
}

void Controller::closeSceneAction() {
    emit closed();
}

QObject* Controller::beginWait(const QString& text) {
    veil_.setText(text);
    veil_.setVisible(true, true);
    return wait_.begin();
}

void Controller::endWait() {
    wait_.end();
    veil_.setVisible(false, false);
}

} // namespace kavor
