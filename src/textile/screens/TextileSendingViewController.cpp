#include "textile/screens/TextileSendingViewController.h"

#include "account/Budget.h"
#include "network/ServiceOperations.h"
#include "screens/ResourceImages.h"
#include "textile/screens/TextileMenuViewController.h"

namespace kavor {

TextileSendingViewController::TextileSendingViewController(TextileDesk& desk, QObject* parent)
    : TextileStepViewController(parent)
    , desk_(desk)
    , items_(desk) {
    const TextileRoad* road = &desk_.road();
    connect(road, &OrderRoad::documentReady, this, [this](const QUrl& document) {
        previewURL_ = document;
        emit previewRequested(document);
    });
    connect(road, &OrderRoad::checked, this, [this](const QStringList& sentences) {
        missing_ = sentences;
        emit missingChanged();
    });
    connect(road, &OrderRoad::orderSent, this, [this] {
        showWaiting({});
        emit summaryChanged();
    });
    connect(road, &OrderRoad::anotherOrderBegun, this, &TextileSendingViewController::summaryChanged);
    connect(road, &OrderRoad::waitingInOutbox, this, &TextileSendingViewController::showWaiting);
    connect(&desk_, &TextileDesk::changed, this, &TextileSendingViewController::summaryChanged);
    desk_.road().lookIntoOutbox();
    fetchBudget();
}

TextileSendingViewController::~TextileSendingViewController() = default;

QUrl TextileSendingViewController::view() const {
    return {QStringLiteral("qrc:/qt/qml/Kavor/Screens/TextileSendView.qml")};
}

bool TextileSendingViewController::isAboutCart(const std::string& sentence) {
    return sentence.starts_with("El carrito");
}

// A nicety: without an answer nothing is shown.
void TextileSendingViewController::fetchBudget() {
    if (!desk_.services().network.isReachable())
        return;
    desk_.services().network.profileInformation({budgetRun_.begin(),
                                                 [this](const UserProfile& profile) {
                                                     user_ = profile.user;
                                                     emit budgetChanged();
                                                 },
                                                 [](const RequestFailure&) {}});
}

void TextileSendingViewController::makeOrderOnServerAction() {
    desk_.road().sendToPrint();
}

void TextileSendingViewController::previewOrderAction() {
    desk_.road().preview();
}

void TextileSendingViewController::storeOrderOnDiskAction() {
    desk_.road().saveAs();
}

void TextileSendingViewController::editComment(const QString& text) {
    if (text == orderComment())
        return;
    desk_.change([&text](TextileIntermediateData& draft) {
        draft.orderComment = text.isEmpty() ? std::nullopt : std::optional(text.toStdString());
    });
}

void TextileSendingViewController::goToMissing(int index) {
    if (index < 0 || index >= missing_.size())
        return;
    emit stepRequested(isAboutCart(missing_[index].toStdString()) ? TextileMenuViewController::Products
                                                                  : TextileMenuViewController::Configuration);
}

void TextileSendingViewController::goToProducts() {
    emit stepRequested(TextileMenuViewController::Products);
}

const Product* TextileSendingViewController::brand() const {
    const auto& order = desk_.draft().order;
    return order.empty() ? nullptr
                         : TextileArticles::current().catalogue().product(order.front().item.brandIdentifier);
}

QString TextileSendingViewController::brandName() const {
    return brand() ? fromUtf8(brand()->name) : QString();
}

QString TextileSendingViewController::brandImage() const {
    return brand() ? resourceImageUrl(brand()->image) : QString();
}

QVariantMap TextileSendingViewController::lettering() const {
    return desk_.lettering(desk_.draft().selectedTypography(),
                           fromUtf8(desk_.draft().customizedText.value_or("")), QStringLiteral("#20262B"));
}

QString TextileSendingViewController::typographyName() const {
    const auto* typography = desk_.draft().selectedTypography();
    return typography ? fromUtf8(typography->mimetype) : QStringLiteral("Sin tipografía");
}

QString TextileSendingViewController::orderComment() const {
    return fromUtf8(desk_.draft().orderComment.value_or(""));
}

QString TextileSendingViewController::budgetText() const {
    if (!user_)
        return {};
    return QStringLiteral("Disponible: %1 de %2")
        .arg(fromUtf8(user_->textileAvailableBudget), fromUtf8(user_->textileInitialBudget));
}

double TextileSendingViewController::budgetShare() const {
    return user_ ? shareLeft(user_->textileInitialBudget, user_->textileAvailableBudget).value_or(-1) : -1;
}

void TextileSendingViewController::showWaiting(const QString& name) {
    waiting_ = name;
    emit waitingChanged();
}

QString TextileSendingViewController::waitingText() const {
    return desk_.road().waitingText(waiting_);
}

QString TextileSendingViewController::makeOrderTitle() const {
    return isOrderSent() ? QStringLiteral("Ver pedido") : QStringLiteral("Realizar pedido");
}

} // namespace kavor
