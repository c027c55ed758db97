#include "sellingsheets/screens/SellingSheetRoad.h"

#include "base/StopProcess.h"
#include "base/json/Json.h"
#include "interaction/Questions.h"
#include "network/FailureMapping.h"
#include "orders/OrderDiskManager.h"
#include "sellingsheets/SheetRules.h"
#include "sellingsheets/UnfinishedSheet.h"

#include <utility>

namespace kavor {

namespace {

constexpr auto draftFolder = OrderDiskManager::DirectoryName::draft;

OrderTexts sheetTexts() {
    OrderTexts texts;
    texts.incompleteTitle = QStringLiteral("Error");
    texts.waiting.print = QStringLiteral("Enviando la hoja…");
    return texts;
}

std::string documentOf(const SellingSheetOrder& order) {
    auto text = json::encode(order);
    if (!text)
        stopProcess("document of a selling sheet to send: " + text.error().text());
    return std::move(*text);
}

} // namespace

SellingSheetRoad::SellingSheetRoad(const OrderRoadServices& services, OrderDiskManager& orders,
                                   std::shared_ptr<const Catalogue> catalogue)
    : OrderRoadOf(services, sheetTexts())
    , network_(services.network)
    , orders_(orders)
    , catalogue_(std::move(catalogue)) {}

SellingSheetRoad::~SellingSheetRoad() = default;

void SellingSheetRoad::sendDraft(const SellingSheetOrder& order, const std::string& plainName) {
    isChecked_ = true;
    take(order, plainName, OrderRequestType::sendToPrint);
    sendToPrint();
}

void SellingSheetRoad::previewDraft(const SellingSheetOrder& order, const std::string& plainName) {
    isChecked_ = true;
    take(order, plainName, OrderRequestType::sendPreview);
    preview();
}

void SellingSheetRoad::previewSent(const SellingSheetOrder& order) {
    isChecked_ = false;
    take(order, "sent/" + std::to_string(order.identifier), OrderRequestType::sendPreview);
    preview();
}

// The key of the send is the same whoever makes it.
void SellingSheetRoad::take(const SellingSheetOrder& order, const std::string& name, OrderRequestType type) {
    order_ = order;
    plainName_ = name;
    const auto content = contentOf(type, make(type));
    sends_.clear();
    send_intent::noteQueued(sends_, content, send_intent::keyOfName(name + '/' + content.text(), type));
}

std::vector<std::string> SellingSheetRoad::missing() const {
    std::string text = isChecked_ ? validationText(order_, *catalogue_) : std::string();
    if (text.empty())
        return {};
    text.pop_back(); // the line feed at its end
    return {text};
}

SellingSheetOrder SellingSheetRoad::make(OrderRequestType type) const {
    SellingSheetOrder order = order_;
    order.save = type == OrderRequestType::sendToPrint;
    return order;
}

void SellingSheetRoad::post(const SellingSheetOrder& order, Completion<Answer> done, const QByteArray& key) {
    done.success = [taken = done.success, refused = done.failure](const Answer& answer) {
        if (const auto refusal = refusalIn(answer))
            refused(*refusal);
        else
            taken(answer);
    };
    network_.sellingSheetOrderSend(order, std::move(done), key);
}

SendContent SellingSheetRoad::contentOf(OrderRequestType type, const SellingSheetOrder& order) const {
    return {type, documentOf(order)};
}

OrderAnswer SellingSheetRoad::read(const Answer& answer) const {
    return {true,
            answer.PDFURL ? std::optional(QUrl(QString::fromStdString(answer.PDFURL->text))) : std::nullopt,
            QStringLiteral("Pedido realizado correctamente.")};
}

void SellingSheetRoad::takeSent(const Answer& /*answer*/) {
    fileStays_ = !orders_.remove<SellingSheetOrder>(OrderDiskManager::fileName(plainName_), draftFolder);
    auto& work = StyleSingleton::shared();
    if (work.editingOrder && work.orderFilename == plainName_) {
        UnfinishedSheet::shared().removeAll();
        work = {};
    }
}

void SellingSheetRoad::tellSent(const OrderAnswer& answer) {
    if (fileStays_)
        return tell(QStringLiteral("Error"),
                    QStringLiteral("No se ha podido borrar el pedido almacenado en el iPad, pero sí se ha "
                                   "enviado a servidor."));
    std::vector<Choice> choices{{QStringLiteral("Aceptar"), AlertButton::Role::Cancel, {}}};
    if (answer.document)
        choices.push_back({QStringLiteral("Ver el PDF"), AlertButton::Role::Normal,
                           [this, document = *answer.document] { emit documentReady(document); }});
    ask(alerts(), this, texts().sentTitle, answer.message, std::move(choices));
}

} // namespace kavor
