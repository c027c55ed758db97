#include "brochures/wizard/send/BrochureSendViewController.h"

#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/TemporalBrochure.h"
#include "brochures/wizard/StepSupport.h"
#include "catalogue/Catalogue.h"
#include "device/Background.h"
#include "interaction/OpenLink.h"
#include "interaction/Questions.h"
#include "network/ServiceOperations.h"
#include "network/ShowRequestFailure.h"
#include "orders/OrderDiskManager.h"
#include "orders/services/SendIntent.h"
#include "screens/ResourceImages.h"

#include <algorithm>
#include <utility>

namespace kavor {

namespace {

using Directory = OrderDiskManager::DirectoryName;
using Order = SaveBrochuresOrder;

QString lines(const std::vector<std::string>& sentences) {
    QStringList list;
    for (const std::string& sentence : sentences)
        list.append(fromUtf8(sentence));
    return list.join(QLatin1Char('\n'));
}

QString failureTitle(OrderRequestType type) {
    const QString opening = QStringLiteral("El pedido no se puede ");
    switch (type) {
    case OrderRequestType::sendToPrint:
        return opening + QStringLiteral("realizar");
    case OrderRequestType::sendPreview:
        return opening + QStringLiteral("previsualizar");
    case OrderRequestType::saveCloud:
        break;
    }
    return opening + QStringLiteral("sincronizar");
}

constexpr char savingText[] = "Guardando el pedido…";

// What the veil of a send says.
const char* veilText(OrderRequestType type) {
    switch (type) {
    case OrderRequestType::sendToPrint:
        return "Enviando el pedido…";
    case OrderRequestType::sendPreview:
        return "Preparando la vista previa…";
    case OrderRequestType::saveCloud:
        break;
    }
    return "Guardando el pedido en la nube…";
}

QUrl qurl(const Url& url) {
    return {QString::fromStdString(url.text)};
}

// What became of an order that could not be sent.
struct Queued {
    enum class Result { Written, WaitsAlready, Failed };
    std::string name; // of its file in the outbox
    Result result = Result::Failed;
};

// A further tap on an order that waits already is no further order.
Queued intoOutbox(const OrderDiskManager& orders, const KeptOrder& order, const UnansweredSends& unanswered) {
    if (auto waiting = send_intent::nameInOutbox(unanswered, order, orders))
        return {std::move(*waiting), Queued::Result::WaitsAlready};
    std::string name = "Sin enviar";
    for (int number = 1; orders.exists<Order>(name, Directory::outbox); ++number)
        name = "Sin enviar(" + std::to_string(number) + ")";
    const bool written = orders.create(order, Directory::outbox, name);
    return {std::move(name), written ? Queued::Result::Written : Queued::Result::Failed};
}

QString textOf(const Queued& queued) {
    switch (queued.result) {
    case Queued::Result::Written:
        return QStringLiteral("Su pedido ha sido guardado en borradores con el nombre \"%1\".")
            .arg(fromUtf8(queued.name));
    case Queued::Result::WaitsAlready:
        return QStringLiteral("Su pedido ya está en borradores con el nombre \"%1\", pendiente de envío.")
            .arg(fromUtf8(queued.name));
    case Queued::Result::Failed:
        break;
    }
    return QStringLiteral("Su pedido no se ha podido guardar");
}

} // namespace

BrochureSendViewController::BrochureSendViewController(const WizardStepContext& context, QObject* parent)
    : WizardStepViewController(parent)
    , context_(context) {}

BrochureSendViewController::~BrochureSendViewController() = default;

QUrl BrochureSendViewController::view() const {
    return stepView(QStringLiteral("BrochureSendView.qml"));
}

void BrochureSendViewController::viewWillAppear() {
    styleLogosInfo_.clear();
    if (const auto* style = context_.draft->currentStyle()) {
        for (const Int identifier : style->logotypeIdentifiers) {
            if (const auto* logo = context_.catalogue->logo(identifier))
                styleLogosInfo_.push_back(logo);
        }
    }
    summary_ = BrochureSendSummary::of(*context_.draft, *context_.catalogue);
    emit summaryChanged();
    emit freeTextForSupportChanged();
    emit buttonsChanged();
}

// ---- The ways out
// ----------------------------------------------------------------------------------------------

void BrochureSendViewController::sendOrderAction() {
    sendOrder(false);
}

void BrochureSendViewController::sendOrderMyselfAction() {
    sendOrder(true);
}

void BrochureSendViewController::sendOrder(bool printedMyself) {
    context_.draft->printedMyself = printedMyself;
    emit editingShouldEnd();
    if (context_.draft->sent) {
        openLink(context_.services.urls, context_.services.alerts, orderURL().toString(QUrl::FullyEncoded));
        return;
    }
    checkAndSend(OrderRequestType::sendToPrint);
}

void BrochureSendViewController::previewAction() {
    emit editingShouldEnd();
    checkAndSend(OrderRequestType::sendPreview);
}

void BrochureSendViewController::checkAndSend(OrderRequestType type) {
    if (type == OrderRequestType::saveCloud) // an unfinished draft may be kept
        return send(type);
    const auto errors = context_.draft->validationErrors();
    QStringList sentences;
    for (const std::string& error : errors)
        sentences.append(fromUtf8(error));
    setMissing(sentences);
    if (!errors.empty()) {
        context_.services.alerts.inform(QStringLiteral("Pedido incompleto"), lines(errors));
        return;
    }
    const auto warnings = context_.draft->priceWarnings();
    if (!warnings.empty())
        return askAboutPrices(type, lines(warnings));
    send(type);
}

void BrochureSendViewController::askAboutPrices(OrderRequestType type, const QString& warnings) {
    ask(context_.services.alerts, this, QStringLiteral("¿Los precios son correctos?"), warnings,
        {{QStringLiteral("Corregir"), AlertButton::Role::Cancel, {}},
         {QStringLiteral("Continuar"), AlertButton::Role::Normal, [this, type] { send(type); }}});
}

void BrochureSendViewController::send(OrderRequestType type) {
    if (!context_.services.network.isReachable())
        return sendOffline(type);
    const Order order = context_.draft->makeOrder(type, type != OrderRequestType::saveCloud);
    const QByteArray key = send_intent::keyFor(context_.draft->unansweredSends, order);
    autosave(context_.draft); // the key outlives the process
    context_.services.network.saveOrder(
        order,
        {wait_.begin(veilText(type), [this, type] { left(type); }),
         [this, order](const SaveBrochuresOrderResponse& answer) { sent(order, answer); },
         [this, order](const RequestFailure& failure) { failed(order, failure); }},
        key);
}

// An answer ends the intent, a lost one keeps its key for the next tap.
void BrochureSendViewController::endIntent(const SaveBrochuresOrder& order) {
    send_intent::answered(context_.draft->unansweredSends, order);
    autosave(context_.draft);
}

void BrochureSendViewController::sendOffline(OrderRequestType type) {
    switch (type) {
    case OrderRequestType::sendToPrint:
        return queueOffline();
    case OrderRequestType::sendPreview:
        informOffline(context_.services.alerts);
        return;
    case OrderRequestType::saveCloud:
        context_.services.alerts.inform(
            QStringLiteral("Guardado sólo localmente"),
            QStringLiteral("Su pedido se encuentra guardado en local, pero no se ha podido sincronizar."));
        context_.services.sync.startOrderSync();
        return;
    }
}

void BrochureSendViewController::failed(const SaveBrochuresOrder& order, const RequestFailure& failure) {
    const OrderRequestType type = order.save;
    wait_.end();
    if (!send_intent::isAnswerLost(failure))
        endIntent(order);
    showRequestFailure({context_.services.alerts, context_.services.urls}, {}, failure, true,
                       failureTitle(type));
    if (type == OrderRequestType::saveCloud)
        context_.services.sync.startOrderSync();
}

// The same as a lost answer: the order may have been made, and its key stays for the next send.
void BrochureSendViewController::left(OrderRequestType type) {
    switch (type) {
    case OrderRequestType::sendToPrint:
        context_.services.alerts.inform(
            QStringLiteral("Atención"),
            QStringLiteral(
                "Es posible que el pedido ya se haya realizado; si lo envía de nuevo sin cambiarlo, "
                "no se realizará dos veces."));
        return;
    case OrderRequestType::sendPreview:
        return;
    case OrderRequestType::saveCloud:
        context_.services.alerts.inform(
            QStringLiteral("Guardado sólo localmente"),
            QStringLiteral("Su pedido se encuentra guardado en local, pero no se ha podido sincronizar."));
        context_.services.sync.startOrderSync();
        return;
    }
}

// ---- Answers
// ---------------------------------------------------------------------------------------------------

void BrochureSendViewController::sent(const SaveBrochuresOrder& order,
                                      const SaveBrochuresOrderResponse& response) {
    wait_.end();
    // An order that was taken without saying where it is may be sent again, and is still the same one.
    if (order.save != OrderRequestType::sendToPrint || response.urlOrder)
        endIntent(order);
    switch (order.save) {
    case OrderRequestType::sendToPrint:
        return printed(response);
    case OrderRequestType::sendPreview:
        if (!response.urlPDF) {
            context_.services.alerts.inform(
                QStringLiteral("Error"),
                QStringLiteral("No hay url que previsualizar. Contacte con soporte."));
            return;
        }
        previewURL_ = qurl(*response.urlPDF);
        emit previewRequested(*previewURL_);
        return;
    case OrderRequestType::saveCloud:
        return savedInCloud(response);
    }
}

void BrochureSendViewController::printed(const SaveBrochuresOrderResponse& response) {
    if (!response.urlOrder) {
        context_.services.alerts.inform(
            QStringLiteral("Error"),
            QStringLiteral("No hay url para ver el pedido realizado. Contacte con soporte."));
        return;
    }
    TemporalBrochure::shared().removeAll();
    markSent(*context_.draft, response.urlOrder->text);
    emit buttonsChanged();
    context_.services.alerts.inform(QStringLiteral("Éxito"), fromUtf8(response.message.value_or("")));
}

void BrochureSendViewController::savedInCloud(const SaveBrochuresOrderResponse& response) {
    context_.services.alerts.inform(
        QStringLiteral("Pedido guardado"),
        QStringLiteral("El pedido se encuentra guardado en local y sincronizado"));
    if (response.orderId)
        context_.draft->orderIdentifier = response.orderId;
    if (response.customerId) {
        if (!context_.draft->customerInformation)
            context_.draft->customerInformation.emplace();
        context_.draft->customerInformation->id = response.customerId;
    }
    autosave(context_.draft);
    if (!context_.draft->fileName)
        return;
    // The identifiers stand on disk too, so that the order is not kept twice in the cloud.
    runInBackground(
        this,
        [&orders = context_.services.orders,
         order = context_.draft->keptOrder(OrderRequestType::saveCloud, false),
         file = OrderDiskManager::fileName(*context_.draft->fileName)] {
            return orders.update(order, file, Directory::draft);
        },
        [](bool) {}); // a failure is logged
}

// ---- Files
// -----------------------------------------------------------------------------------------------------

void BrochureSendViewController::queueOffline() {
    showVeil(true, savingText);
    KeptOrder order{context_.draft->makeOrder(OrderRequestType::sendToPrint, true)};
    // What may be at the server already goes by the key under which it was sent.
    if (auto known = send_intent::sentWithoutAnswer(context_.draft->unansweredSends, order); !known.empty())
        order.unansweredSends = std::move(known);
    runInBackground(
        this,
        [&orders = context_.services.orders, order, unanswered = context_.draft->unansweredSends] {
            return intoOutbox(orders, order, unanswered);
        },
        [this, order](const Queued& queued) {
            showVeil(false);
            if (queued.result == Queued::Result::Written)
                noteQueued(order, OrderDiskManager::fileName(queued.name));
            context_.services.alerts.inform(QStringLiteral("Sin conexión a internet."), textOf(queued));
        });
}

// The order may still be sent from here once the network is back: then it is the one of the file.
void BrochureSendViewController::noteQueued(const KeptOrder& order, const std::string& fileName) {
    const auto moment = context_.services.orders.moment<KeptOrder>(fileName, Directory::outbox);
    if (!moment)
        return;
    send_intent::noteQueued(context_.draft->unansweredSends, order,
                            send_intent::keyOfFile(order, Directory::outbox, fileName, *moment));
    autosave(context_.draft);
}

void BrochureSendViewController::saveOrderAction() {
    emit editingShouldEnd();
    const auto ask = [this] { askForName(fromUtf8(context_.draft->fileName.value_or(""))); };
    if (!context_.draft->sent)
        return ask();
    askForAnotherOrder(context_.services.alerts, this, [this, ask](bool another) {
        if (!another)
            return;
        beginAnotherOrder(*context_.draft);
        viewWillAppear();
        ask();
    });
}

void BrochureSendViewController::askForName(const QString& proposal) {
    askForText(context_.services.alerts, this, QStringLiteral("Guardar como"), QStringLiteral("Nombre:"),
               proposal, QStringLiteral("Guardar"), [this](const QString& name) { saveUnderName(name); });
}

void BrochureSendViewController::saveUnderName(const QString& name) {
    const std::string plainName = name.trimmed().toStdString();
    if (const auto refusal = OrderDiskManager::refusalOf(plainName))
        return context_.services.alerts.inform(QStringLiteral("Atención"), fromUtf8(*refusal), this,
                                               [this, name] { askForName(name); });
    if (!context_.services.orders.exists<Order>(plainName, Directory::draft))
        return writeDraftFile(plainName);
    ask(context_.services.alerts, this, QStringLiteral("Atención"),
        QStringLiteral("Ya existe un archivo con ese nombre. ¿desea sobrescribirlo?"),
        {no(), yesDestroy([this, plainName] { writeDraftFile(plainName); })});
}

void BrochureSendViewController::writeDraftFile(const std::string& name) {
    showVeil(true, savingText);
    const auto former = std::exchange(context_.draft->fileName, name);
    // Whoever sends the file afterwards does so under the key under which this step sends it.
    send_intent::keyFor(context_.draft->unansweredSends,
                        context_.draft->makeOrder(OrderRequestType::saveCloud, false));
    autosave(context_.draft);
    runInBackground(
        this,
        [&orders = context_.services.orders, name,
         order = context_.draft->keptOrder(OrderRequestType::saveCloud, false)] {
            return orders.exists<Order>(name, Directory::draft)
                       ? orders.update(order, OrderDiskManager::fileName(name), Directory::draft)
                       : orders.create(order, Directory::draft, name);
        },
        [this, former](bool written) {
            showVeil(false);
            if (written)
                return checkAndSend(OrderRequestType::saveCloud);
            context_.draft->fileName = former; // the draft is not in a file of that name
            autosave(context_.draft);
            context_.services.alerts.inform(QStringLiteral("Error al guardar pedido."),
                                            QStringLiteral("Su pedido no se ha podido guardar"));
        });
}

// ---- What the view shows
// ---------------------------------------------------------------------------------------

void BrochureSendViewController::myselfAction() {
    context_.services.alerts.inform(
        QStringLiteral("Información"),
        fromUtf8(context_.catalogue->information().validations.printedMyselfHelptext));
}

void BrochureSendViewController::printedKavorAction() {
    const Validations& validations = context_.catalogue->information().validations;
    context_.services.alerts.inform(QStringLiteral("Información"),
                                    fromUtf8(context_.parameters().withPrinter
                                                 ? validations.printedKavorHelptext
                                                 : validations.printedMyselfHelptext));
}

void BrochureSendViewController::finishSupportComment(const QString& comment) {
    if (comment == freeTextForSupport())
        return;
    context_.draft->supportComment = comment.toStdString();
    emit freeTextForSupportChanged();
}

void BrochureSendViewController::setPanelInfoOrderVisible(bool visible) {
    if (panelInfoOrderVisible_ == visible)
        return;
    panelInfoOrderVisible_ = visible;
    emit panelInfoOrderVisibleChanged();
}

void BrochureSendViewController::setMissing(const QStringList& sentences) {
    if (missing_ == sentences)
        return;
    missing_ = sentences;
    emit missingChanged();
}

QString BrochureSendViewController::brochureWord() const {
    return context_.kind ? fromUtf8(label(*context_.kind)) : QString();
}

bool BrochureSendViewController::isLocalNameMissing() const {
    return !context_.draft->customerInformation || context_.draft->customerInformation->name.empty();
}

QString BrochureSendViewController::localNameLabel() const {
    return isLocalNameMissing() ? QStringLiteral("Nombre del local no especificado")
                                : fromUtf8(context_.draft->customerInformation->name);
}

QString BrochureSendViewController::orderDataInfoLeft() const {
    return fromUtf8(summary_.orderDataInfoLeft);
}
QString BrochureSendViewController::orderDataInfoLeftWarning() const {
    return fromUtf8(summary_.orderDataInfoLeftWarning);
}
QString BrochureSendViewController::orderDataInfoRight() const {
    return fromUtf8(summary_.orderDataInfoRight);
}
QString BrochureSendViewController::orderDataInfoRightWarning() const {
    return fromUtf8(summary_.orderDataInfoRightWarning);
}

bool BrochureSendViewController::isStyleImageVisible() const {
    return context_.draft->includePaperBrochure || context_.parameters().allowDigitalPdf;
}

QString BrochureSendViewController::styleImage() const {
    const auto* style = context_.draft->currentStyle();
    return style ? resourceImageUrl(style->firstImage) : QString();
}

QString BrochureSendViewController::styleName() const {
    const auto* style = context_.draft->currentStyle();
    return style ? fromUtf8(style->name) : QString();
}

bool BrochureSendViewController::isStyleDigitalImageVisible() const {
    return context_.draft->includeDigitalBrochure;
}

QString BrochureSendViewController::styleDigitalImage() const {
    const auto* style = context_.draft->currentStyleDigital();
    return style ? resourceImageUrl(style->firstImage) : QString();
}

QString BrochureSendViewController::styleDigitalName() const {
    const auto* style = context_.draft->currentStyleDigital();
    return style ? fromUtf8(style->name) : QString();
}

QStringList BrochureSendViewController::brandImages() const {
    const auto logos = context_.draft->currentLogos();
    if (!logos || !isStyleImageVisible())
        return {};
    QStringList images;
    for (const Int identifier : {logos->firstIdentifier, logos->secondIdentifier, logos->thirdIdentifier}) {
        const auto logo = std::ranges::find(styleLogosInfo_, identifier, &Brochures::Logo::id);
        if (logo != styleLogosInfo_.end())
            images.append(resourceImageUrl((*logo)->image));
    }
    return images;
}

QString BrochureSendViewController::localLogoImage() const {
    const auto& customer = context_.draft->customerInformation;
    return customer && customer->imageLogo ? dataImageUrl(*customer->imageLogo) : QString();
}

QString BrochureSendViewController::logoLabel() const {
    return localLogoImage().isEmpty() ? QStringLiteral("Sin logotipo") : QString();
}

QString BrochureSendViewController::freeTextForSupport() const {
    return fromUtf8(context_.draft->supportComment.value_or(""));
}

QString BrochureSendViewController::makeOrderButtonTitle() const {
    if (context_.draft->sent)
        return QStringLiteral("Ver pedido");
    if (context_.kind == BrochureType::video)
        return QStringLiteral("Realizar pedido");
    return context_.kind == BrochureType::encarte ? QStringLiteral("Realizar pedido sin impresión")
                                                  : QStringLiteral("Realizar pedido con impresión");
}

bool BrochureSendViewController::isOrderSent() const {
    return context_.draft->sent.has_value();
}

QUrl BrochureSendViewController::orderURL() const {
    return context_.draft->sent ? qurl(Url{context_.draft->sent->url}) : QUrl();
}

bool BrochureSendViewController::isPrintedKavorButtonVisible() const {
    return !context_.draft->sent && context_.kind != BrochureType::video;
}

bool BrochureSendViewController::isPrintedMyselfVisible() const {
    return !context_.draft->sent && context_.parameters().withPrinter &&
           context_.catalogue->information().validations.withPrintedMyself;
}

} // namespace kavor
