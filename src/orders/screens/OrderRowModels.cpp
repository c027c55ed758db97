#include "orders/screens/OrderRowModels.h"

#include "interaction/QtText.h"
#include "orders/DraftsWithChanges.h"

#include <iterator>

namespace kavor {

namespace {

QString dateText(const LocalDateTime& date) {
    return QStringLiteral("%1-%2-%3")
        .arg(date.day, 2, 10, QLatin1Char('0'))
        .arg(date.month, 2, 10, QLatin1Char('0'))
        .arg(date.year % 100, 2, 10, QLatin1Char('0'));
}

QString placeText(const std::string& pointOfSale) {
    return pointOfSale.empty() ? QStringLiteral("(Sin especificar)") : fromUtf8(pointOfSale);
}

QString nameText(const std::string& fileName) {
    return fileName.empty() ? QStringLiteral("(Sin nombre)")
                            : fromUtf8(fileName.substr(0, fileName.find('.')));
}

QString typeText(const SectionIdentifier& section) {
    const auto kind = section.brochureType();
    return kind ? fromUtf8(label(*kind)) : QStringLiteral("Textil");
}

SavedOrderRow savedRow(const DraftOrderRow& row, const std::set<std::string>& withChanges) {
    SavedOrderRow shown;
    shown.key = row.key();
    shown.name = nameText(row.filename);
    shown.date = dateText(row.date);
    const auto number = row.serverId() || !row.localOrder ? row.serverId() : row.localOrder->orderIdentifier;
    shown.number = number ? QString::number(*number) : QStringLiteral("-");
    shown.type = typeText(row.sectionIdentifier);
    shown.pointOfSale = placeText(row.pointOfSale());
    shown.syncState = row.syncState;
    if (row.syncState == OrderSyncState::pendingToSend)
        shown.waiting = row.file();
    const auto file = row.file();
    shown.hasChanges = row.syncState == OrderSyncState::synced && file &&
                       withChanges.contains(nameOfChanged(file->kind, file->plainName));
    return shown;
}

enum SavedRole {
    Key = Qt::UserRole + 1,
    FileName,
    OrderDate,
    Number,
    OrderType,
    PointOfSale,
    StateText,
    StateIcon,
    StateColour,
    HasChanges,
    Busy,
    Refusal,
    CanSend
};

enum SentRole {
    OrderId = Qt::UserRole + 1,
    SentNumber,
    SentDate,
    SentType,
    SentPlace,
    SentState,
    Pending,
    CanDemandQr,
    HasNote
};

} // namespace

QColor stateColour(OrderSyncState state) {
    switch (state) {
    case OrderSyncState::synced:
    case OrderSyncState::cloud:
        return QColor::fromRgbF(0.3F, 1.0F, 0.53F);
    case OrderSyncState::savedLocally:
        return QColor(QStringLiteral("#FFB600"));
    case OrderSyncState::pendingToSend:
        break;
    }
    return QColor(QStringLiteral("#FF4A4A"));
}

std::vector<SavedOrderRow> savedRows(const DraftOrderRows& rows, const std::set<std::string>& withChanges) {
    std::vector<SavedOrderRow> shown;
    shown.reserve(rows.draftsOrderList().size());
    for (const DraftOrderRow& row : rows.draftsOrderList())
        shown.push_back(savedRow(row, withChanges));
    return shown;
}

std::vector<SentOrderRow> sentRows(const DraftOrderRows& rows) {
    std::vector<SentOrderRow> shown;
    shown.reserve(rows.sentBrochureOrders().size());
    for (const OrderList::Order& order : rows.sentBrochureOrders())
        shown.push_back({order.id, QString::number(order.id), dateText(order.date), fromUtf8(order.type),
                         placeText(order.pdv.value_or("")), fromUtf8(order.state),
                         order.pending.value_or(false), order.canDemandQr,
                         order.note && !order.note->empty()});
    return shown;
}

QVariant SavedOrdersModel::data(const QModelIndex& index, int role) const {
    const SavedOrderRow* row = rows_.at(index);
    if (!row)
        return {};
    switch (role) {
    case Key:
        return fromUtf8(row->key);
    case Qt::DisplayRole:
    case FileName:
        return row->name;
    case OrderDate:
        return row->date;
    case Number:
        return row->number;
    case OrderType:
        return row->type;
    case PointOfSale:
        return row->pointOfSale;
    case StateText:
        return fromUtf8(label(row->syncState));
    case StateIcon:
        return fromUtf8(iconName(row->syncState));
    case StateColour:
        return stateColour(row->syncState);
    case HasChanges:
        return row->hasChanges;
    case Busy:
        return row->isBusy;
    case Refusal:
        return row->refusal;
    case CanSend:
        return row->syncState == OrderSyncState::pendingToSend;
    default:
        return {};
    }
}

QHash<int, QByteArray> SavedOrdersModel::roleNames() const {
    return {{Key, "key"},
            {FileName, "fileName"},
            {OrderDate, "orderDate"},
            {Number, "number"},
            {OrderType, "orderType"},
            {PointOfSale, "pointOfSale"},
            {StateText, "stateText"},
            {StateIcon, "stateIcon"},
            {StateColour, "stateColour"},
            {HasChanges, "hasChanges"},
            {Busy, "busy"},
            {Refusal, "refusal"},
            {CanSend, "canSend"}};
}

QVariant SentOrdersModel::data(const QModelIndex& index, int role) const {
    const SentOrderRow* row = rows_.at(index);
    if (!row)
        return {};
    switch (role) {
    case OrderId:
        return qlonglong(row->id);
    case Qt::DisplayRole:
    case SentNumber:
        return row->number;
    case SentDate:
        return row->date;
    case SentType:
        return row->type;
    case SentPlace:
        return row->pointOfSale;
    case SentState:
        return row->state;
    case Pending:
        return row->pending;
    case CanDemandQr:
        return row->canDemandQr;
    case HasNote:
        return row->hasNote;
    default:
        return {};
    }
}

QHash<int, QByteArray> SentOrdersModel::roleNames() const {
    return {{OrderId, "orderId"},    {SentNumber, "number"},       {SentDate, "orderDate"},
            {SentType, "orderType"}, {SentPlace, "pointOfSale"},   {SentState, "stateText"},
            {Pending, "pending"},    {CanDemandQr, "canDemandQr"}, {HasNote, "hasNote"}};
}

} // namespace kavor
