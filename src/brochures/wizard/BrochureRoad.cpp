#include "brochures/wizard/BrochureRoad.h"

#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/TemporalBrochure.h"
#include "brochures/wizard/StepSupport.h"
#include "brochures/wizard/WizardStep.h"
#include "interaction/AlertPresenter.h"
#include "orders/DraftsWithChanges.h"
#include "orders/services/SentFiles.h"

#include <utility>

namespace kavor {

namespace {

OrderTexts brochureTexts() {
    OrderTexts texts;
    texts.warningsTitle = QStringLiteral("¿Los precios son correctos?");
    return texts;
}

QUrl qurl(const std::string& url) {
    return {QString::fromStdString(url)};
}

} // namespace

BrochureRoad::BrochureRoad(const WizardServices& services, std::shared_ptr<BrochureIntermediateData> draft)
    : FiledOrderRoad({services.network, services.alerts, services.urls}, services.orders, brochureTexts())
    , network_(services.network)
    , orders_(services.orders)
    , sync_(services.sync)
    , draft_(std::move(draft)) {}

BrochureRoad::~BrochureRoad() = default;

std::vector<std::string> BrochureRoad::missing() const {
    return draft_->validationErrors();
}

std::vector<std::string> BrochureRoad::warnings() const {
    return draft_->priceWarnings();
}

std::optional<QUrl> BrochureRoad::sentTo() const {
    return draft_->sent ? std::optional(qurl(draft_->sent->url)) : std::nullopt;
}

void BrochureRoad::planSync() {
    sync_.startOrderSync();
}

SaveBrochuresOrder BrochureRoad::make(OrderRequestType type) const {
    return draft_->makeOrder(type, type != OrderRequestType::saveCloud);
}

void BrochureRoad::post(const Order& order, Completion<Answer> done, const QByteArray& key) {
    network_.saveOrder(order, std::move(done), key);
}

SendContent BrochureRoad::contentOf(OrderRequestType, const Order& order) const {
    return order;
}

UnansweredSends& BrochureRoad::unansweredSends() {
    return draft_->unansweredSends;
}

void BrochureRoad::keepSafe() {
    autosave(draft_);
}

OrderAnswer BrochureRoad::read(const Answer& answer) const {
    return {answer.urlOrder.has_value(),
            answer.urlPDF ? std::optional(qurl(answer.urlPDF->text)) : std::nullopt,
            fromUtf8(answer.message.value_or(""))};
}

void BrochureRoad::takeSent(const Answer& answer) {
    TemporalBrochure::shared().removeAll();
    removeFilesOfSent(make(OrderRequestType::saveCloud));
    draft_->outboxFile.reset();
    markSent(*draft_, answer.urlOrder->text);
}

// The order is no draft any more, nor does it wait.
void BrochureRoad::removeFilesOfSent(const SaveBrochuresOrder& sent) {
    const auto waiting = draft_->outboxFile;
    const auto texts = this->texts();
    runInBackground(
        &alerts(),
        [&orders = orders_, sent, waiting] {
            sent_files::removeDraft(orders, sent);
            return !waiting || orders.remove<Order>(OrderDiskManager::fileName(*waiting), Directory::outbox);
        },
        [&alerts = alerts(), &orders = orders_, sent, texts](bool gone) {
            sent_files::forgetChanges(orders, sent);
            if (!gone)
                alerts.inform(texts.fileStaysTitle, texts.fileStays);
        });
}

KeptOrder BrochureRoad::keep(Order order, const UnansweredSends& unanswered) const {
    KeptOrder kept{std::move(order)};
    kept.printsMyself = kept.printedMyself ? std::optional(true) : std::nullopt;
    kept.supportComment = draft_->supportComment;
    if (!unanswered.empty())
        kept.unansweredSends = unanswered;
    return kept;
}

std::optional<std::string>& BrochureRoad::fileName() {
    return draft_->fileName;
}

std::optional<std::string> BrochureRoad::outboxFile() const {
    return draft_->outboxFile;
}

// Without a number the server has no other version, and the next run sends this one.
void BrochureRoad::noteKeptLocally(const std::string& plainName) {
    if (draft_->orderIdentifier)
        DraftsWithChanges::shared().add(plainName);
}

void BrochureRoad::noteUploaded(const std::string& plainName) {
    DraftsWithChanges::shared().remove(plainName);
}

void BrochureRoad::takeSaved(const Answer& answer) {
    if (answer.orderId)
        draft_->orderIdentifier = answer.orderId;
    if (!answer.customerId)
        return;
    if (!draft_->customerInformation)
        draft_->customerInformation.emplace();
    draft_->customerInformation->id = answer.customerId;
}

void BrochureRoad::beginAnotherOrder() {
    kavor::beginAnotherOrder(*draft_);
}

} // namespace kavor
