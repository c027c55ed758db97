#pragma once

#include "orders/list/DraftOrderRows.h"
#include "screens/RowListModel.h"

#include <QColor>
#include <QString>

#include <set>
#include <string>
#include <vector>

namespace kavor {

// A row of the left list as it is shown.
struct SavedOrderRow {
    std::string key; // of the row, as DraftOrderRow gives it
    QString name;
    QString date;
    QString number;
    QString type;
    QString pointOfSale;
    OrderSyncState syncState = OrderSyncState::savedLocally;
    std::optional<OrderFile> waiting; // its file, of a row of the outbox
    bool hasChanges = false;          // the server has an older version
    bool isBusy = false;              // it is being sent
    QString refusal;                  // why the server refused it last
    bool operator==(const SavedOrderRow&) const = default;
};

// A row of the right list as it is shown.
struct SentOrderRow {
    Int id = 0;
    QString number;
    QString date;
    QString type;
    QString pointOfSale;
    QString state;
    bool pending = false;
    bool canDemandQr = false;
    bool hasNote = false;
    bool operator==(const SentOrderRow&) const = default;
};

// The rows of both lists, as they are shown. From any thread.
std::vector<SavedOrderRow> savedRows(const DraftOrderRows& rows, const std::set<std::string>& withChanges);
std::vector<SentOrderRow> sentRows(const DraftOrderRows& rows);

// The colour of a state on its dark chip.
QColor stateColour(OrderSyncState state);

// The left list. Roles: key, fileName, orderDate, number, orderType, pointOfSale, stateText, stateIcon,
// stateColour, hasChanges, busy, refusal, canSend (else it can be edited).
class SavedOrdersModel : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the list of orders")
public:
    using RowListModel::RowListModel;

    void show(std::vector<SavedOrderRow> rows) { rows_.show(std::move(rows)); }
    [[nodiscard]] const std::vector<SavedOrderRow>& rows() const { return rows_.all(); }

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    struct KeyOf {
        const std::string& operator()(const SavedOrderRow& row) const { return row.key; }
    };
    RowList<SavedOrderRow, KeyOf> rows_{*this};
};

// The right list. Roles: orderId, number, orderDate, orderType, pointOfSale, stateText, pending, canDemandQr,
// hasNote.
class SentOrdersModel : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the list of orders")
public:
    using RowListModel::RowListModel;

    void show(std::vector<SentOrderRow> rows) { rows_.show(std::move(rows)); }
    [[nodiscard]] const std::vector<SentOrderRow>& rows() const { return rows_.all(); }

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    struct KeyOf {
        Int operator()(const SentOrderRow& row) const { return row.id; }
    };
    RowList<SentOrderRow, KeyOf> rows_{*this};
};

} // namespace kavor
