#include "textile/screens/TextileRoad.h"

#include "interaction/AlertPresenter.h"
#include "orders/DraftsWithChanges.h"
#include "textile/UnfinishedTextile.h"

#include <utility>

namespace kavor {

namespace {

OrderTexts textileTexts() {
    OrderTexts texts;
    texts.queued = QStringLiteral("Su pedido ha sido guardado en borradores con el nombre \"%1\"");
    texts.notWrittenTitle = QStringLiteral("Guardar pedido.");
    texts.notWritten = QStringLiteral("No se ha podido guardar su pedido.");
    texts.notUpdated = QStringLiteral("No se ha podido actualizar el pedido guardado.");
    return texts;
}

std::optional<QUrl> qurl(const std::optional<Url>& url) {
    return url ? std::optional(QUrl(fromUtf8(url->text))) : std::nullopt;
}

std::string nameOfChanges(const std::string& plainName) {
    return nameOfChanged(OrderFile::Kind::Textile, plainName);
}

bool isSameBar(const SaveTextileOrder& one, const SaveTextileOrder& other) {
    const SaveTextileOrder::Customer nobody;
    const auto& bar = one.customer ? *one.customer : nobody;
    const auto& otherBar = other.customer ? *other.customer : nobody;
    return bar.tevo == otherBar.tevo && (bar.tevo || bar.name == otherBar.name);
}

// Whether the file of an order's name is that order as it was kept: a name may have been given to another
// one.
bool isFileOf(const SaveTextileOrder& order, bool isFromOutbox, const SaveTextileOrder& file) {
    if (order.orderIdentifier && file.orderIdentifier)
        return order.orderIdentifier == file.orderIdentifier;
    const bool neverSaved = !order.orderIdentifier && !file.orderIdentifier;
    return (neverSaved && !isFromOutbox) || isSameBar(order, file);
}

} // namespace

TextileRoad::TextileRoad(const OrderRoadServices& services, const OrderDiskManager& orders,
                         std::shared_ptr<TextileIntermediateData> draft)
    : FiledOrderRoad(services, orders, textileTexts())
    , network_(services.network)
    , orders_(orders)
    , draft_(std::move(draft)) {}

TextileRoad::~TextileRoad() = default;

std::vector<std::string> TextileRoad::missing() const {
    draft_->removeGoneArticles();
    return draft_->validate();
}

std::optional<QUrl> TextileRoad::sentTo() const {
    return draft_->orderURL ? std::optional(QUrl(fromUtf8(*draft_->orderURL))) : std::nullopt;
}

// A catalogue that came since the check may have taken articles away; the order goes without them.
SaveTextileOrder TextileRoad::make(OrderRequestType type) const {
    const bool isChecked = !draft_->removeGoneArticles();
    return draft_->makeOrder(type, isChecked && type != OrderRequestType::saveCloud);
}

void TextileRoad::post(const Order& order, Completion<Answer> done, const QByteArray& key) {
    network_.createTextileOrder(order, std::move(done), key);
}

SendContent TextileRoad::contentOf(OrderRequestType, const Order& order) const {
    return order;
}

void TextileRoad::keepSafe() {
    if (draft_ == TextileIntermediateData::shared())
        UnfinishedTextile::shared().keep();
}

OrderAnswer TextileRoad::read(const Answer& answer) const {
    return {answer.urlOrder.has_value(), qurl(answer.urlPDF),
            QStringLiteral("Pedido realizado correctamente.")};
}

void TextileRoad::takeSent(const Answer& answer) {
    removeFilesOfSent();
    draft_->outboxFile.reset();
    draft_->orderURL = answer.urlOrder->text;
    if (draft_ == TextileIntermediateData::shared())
        UnfinishedTextile::shared().removeAll();
}

// The order is no draft any more, nor does it wait.
void TextileRoad::removeFilesOfSent() {
    const auto waiting = draft_->outboxFile;
    const auto texts = this->texts();
    runInBackground(
        &alerts(),
        [&orders = orders_, sent = make(OrderRequestType::saveCloud), waiting] {
            const std::string file = OrderDiskManager::fileName(sent.filename.value_or(""));
            const auto kept = sent.filename ? orders.retrieve<Order>(file, Directory::draft) : std::nullopt;
            if (kept && isFileOf(sent, waiting.has_value(), *kept))
                orders.remove<Order>(file, Directory::draft);
            return !waiting || orders.remove<Order>(OrderDiskManager::fileName(*waiting), Directory::outbox);
        },
        [&alerts = alerts(), &orders = orders_, name = draft_->filename, texts](bool gone) {
            if (name && !orders.exists<Order>(*name, Directory::draft))
                DraftsWithChanges::shared().remove(nameOfChanges(*name));
            if (!gone)
                alerts.inform(texts.fileStaysTitle, texts.fileStays);
        });
}

KeptTextileOrder TextileRoad::keep(Order order, const UnansweredSends& unanswered) const {
    KeptTextileOrder kept{std::move(order)};
    if (!unanswered.empty())
        kept.unansweredSends = unanswered;
    return kept;
}

void TextileRoad::takeSaved(const Answer& answer) {
    if (answer.orderId)
        draft_->orderIdentifier = answer.orderId;
}

void TextileRoad::beginAnotherOrder() {
    draft_->orderURL.reset();
    draft_->orderIdentifier.reset();
    draft_->filename.reset();
    draft_->unansweredSends.clear();
    keepSafe();
}

// The server has an older version of it.
void TextileRoad::noteKeptLocally(const std::string& plainName) {
    if (draft_->orderIdentifier)
        DraftsWithChanges::shared().add(nameOfChanges(plainName));
}

void TextileRoad::noteUploaded(const std::string& plainName) {
    DraftsWithChanges::shared().remove(nameOfChanges(plainName));
}

bool TextileRoad::asksToOverwrite(const std::string& plainName) {
    if (draft_->filename != plainName)
        return true;
    const auto kept = orders_.retrieve<Order>(OrderDiskManager::fileName(plainName), Directory::draft);
    return !kept || !isFileOf(make(OrderRequestType::saveCloud), draft_->outboxFile.has_value(), *kept);
}

} // namespace kavor
