#include "orders/screens/DemandBrandQrController.h"

#include "base/StopProcess.h"
#include "interaction/QtText.h"
#include "network/records/ErrorRecords.h"
#include "screens/ResourceImages.h"
#include "session/AppSingleton.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace kavor {

namespace {

// The comment starts empty each time; the sends that nobody answered stay known.
MessageDraft& withoutText(MessageDraft& draft) {
    draft.text.clear();
    return draft;
}

const Brochures::Type* typeOf(const Catalogue* catalogue, BrochureType kind) {
    return catalogue && catalogue->information().brochures ? catalogue->brochureType(kind) : nullptr;
}

// What tells one demand from another.
std::string contentOf(const BrandQrDemand& demand) {
    std::string content = "qr";
    for (const Int number : std::array{demand.orderId, demand.brandQrId, demand.type, demand.quantityQr,
                                       demand.quantityQrCircular, demand.quantityQrTaco})
        content += '/' + std::to_string(number);
    return content + '/' + demand.comment.toStdString();
}

} // namespace

DemandBrandQrController::DemandBrandQrController(const OrderMessageServices& services,
                                                 const OrderList::Order& order, QObject* parent)
    : MessageFormController({services.network, services.alerts, services.urls, services.reachability},
                            withoutText(ownMessages(services).demands[order.id]),
                            QStringLiteral("Es posible que el material ya se haya pedido."), parent)
    , order_(order)
    , catalogue_(services.session.applicationInformation) {
    takeBrands();
    takeQuantities();
}

DemandBrandQrController::~DemandBrandQrController() = default;

void DemandBrandQrController::takeBrands() {
    const Brochures::Type* infoBrochureType = typeOf(catalogue_.get(), order_.typeId);
    if (!infoBrochureType)
        return;
    withTaco_ = infoBrochureType->parameters && infoBrochureType->parameters->withTaco;
    type_ = withTaco_ && order_.brandQrType.value_or(1) != 1 ? 1 : 0;
    std::ranges::copy_if(catalogue_->brochures().brandQrs, std::back_inserter(brandQrs_),
                         [&](const Brochures::BrandQr& brand) {
                             return brand.applicationFather == infoBrochureType->applicationFather;
                         });
    const auto ordered = std::ranges::find_if(
        brandQrs_, [&](const Brochures::BrandQr& brand) { return order_.brandQrId == brand.id; });
    currentBrand_ = ordered == brandQrs_.end() ? 0 : int(ordered - brandQrs_.begin());
}

void DemandBrandQrController::takeQuantities() {
    if (!catalogue_)
        return;
    const Validations& validations = catalogue_->information().validations;
    quantities_[Table] = PickerRows(QStringLiteral("Ninguno"));
    quantities_[Door] = PickerRows(QStringLiteral("Ninguno"));
    const auto append = [&](Quantity quantity, const std::vector<Int>& numbers) {
        for (const Int number : numbers)
            quantities_[quantity].append(number, QString::number(number));
    };
    append(Table, validations.lstMenuQrTableQuantity);
    append(Door, validations.lstMenuQrDoorQuantity);
    append(Taco, validations.lstMenuQrTacoQuantity); // without a row for none
}

void DemandBrandQrController::chooseType(int row) {
    if (row < 0 || row >= brandQrTypes().size() || row == type_)
        return;
    type_ = row;
    emit brandsChanged();
    emit changed();
}

void DemandBrandQrController::chooseQuantity(int quantity, int row) {
    if (quantity < Table || quantity > Taco || !quantities_[quantity].has(row))
        return;
    rows_[quantity] = row;
    emit changed();
}

void DemandBrandQrController::carouselCurrentItemIndexDidChange(int index) {
    if (index < 0 || index >= int(brandQrs_.size()) || index == currentBrand_)
        return;
    currentBrand_ = index;
    emit changed();
}

Int DemandBrandQrController::chosen(Quantity quantity) const {
    const bool isOffered = isTaco() == (quantity == Taco);
    return isOffered ? quantities_[quantity].idAt(rows_[quantity]).value_or(0) : 0;
}

BrandQrDemand DemandBrandQrController::demand() const {
    if (currentBrand_ >= int(brandQrs_.size()))
        stopProcess("brand of the QR material at the carousel's index");
    return {order_.id,    brandQrs_[std::size_t(currentBrand_)].id,
            type_ + 1,    chosen(Table),
            chosen(Door), chosen(Taco),
            text()};
}

void DemandBrandQrController::sendDemandAction() {
    if (!problem().isEmpty())
        return;
    const BrandQrDemand wanted = demand();
    send<DemandBrandQrErrorResponse>(
        contentOf(wanted),
        [&](const Completion<DemandBrandQrErrorResponse>& done, const QByteArray& key) {
            services().network.demandBrandQr(wanted, done, key);
        },
        [this](const DemandBrandQrErrorResponse& answer) { answered(answer); });
}

void DemandBrandQrController::answered(const DemandBrandQrErrorResponse& answer) {
    DemandedBrandQr kept{order_.id, answer.canDemandQr, std::nullopt, std::nullopt};
    if (answer.orderStateId)
        kept.orderStateId = caseOf<OrderState>(*answer.orderStateId);
    if (answer.orderStateName)
        kept.orderStateName = fromUtf8(*answer.orderStateName);
    emptyText();
    emit demanded(kept);
    tellAndLeave(QStringLiteral("Material QR"), fromUtf8(answer.message));
}

QString DemandBrandQrController::titleLabel() const {
    return QStringLiteral("Selecciona las unidades que deséas imprimir nuevamente - %1 - ").arg(order_.id) +
           (order_.pdv ? fromUtf8(*order_.pdv) : QStringLiteral("(Sin especificar)"));
}

QStringList DemandBrandQrController::brandQrTypes() const {
    QStringList types{QStringLiteral("Vinilos para mesa y puerta")};
    if (withTaco_)
        types << QStringLiteral("Tacos de madera");
    return types;
}

QVariantList DemandBrandQrController::brands() const {
    QVariantList result;
    for (const Brochures::BrandQr& brand : brandQrs_)
        result << QVariantMap{
            {QStringLiteral("source"), resourceImageUrl(isTaco() ? brand.imageTaco : brand.image)},
            {QStringLiteral("text"), fromUtf8(brand.name)}};
    return result;
}

QString DemandBrandQrController::brandQrCarouselLabel() const {
    return brandQrs_.empty() ? QString() : fromUtf8(brandQrs_[std::size_t(currentBrand_)].name);
}

// Vinyls are there as long as tables or doors can have some.
QString DemandBrandQrController::problem() const {
    const auto offers = [this](Quantity quantity, int rowsForNone) {
        return quantities_[quantity].names().size() > rowsForNone;
    };
    const bool isOffered = isTaco() ? offers(Taco, 0) : offers(Table, 1) || offers(Door, 1);
    return isOffered && !brandQrs_.empty() ? QString()
                                           : QStringLiteral("No hay material QR para este pedido.");
}

} // namespace kavor
