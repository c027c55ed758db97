#pragma once

#include "orders/screens/OrderListBoard.h"

#include <chrono>
#include <optional>
#include <string>

namespace kavor {

// What the user does with a row of the lists, with its questions and what becomes of it.
class OrderRowActions : public QObject {
    Q_OBJECT
public:
    static constexpr std::chrono::seconds undoTime{8};

    // The board outlives it.
    OrderRowActions(const OrderListServices& services, OrderListBoard& board);
    ~OrderRowActions() override;

    void setWays(const OrderListWays& ways) { ways_ = ways; }

    // Of a draft, by the key of its row.
    void askToEdit(const QString& key);
    void send(const QString& key);
    void askToDelete(const QString& key);
    // Everything in the outbox.
    void sendAll();
    void undoDelete();
    // What was deleted and can be brought back; empty without any.
    [[nodiscard]] QString undoText() const;
    // A sent order becomes a draft, by its number.
    void copy(qlonglong id);

signals:
    void undoChanged();

private:
    void edit(const std::string& key);
    void fetchToEdit(const DraftOrderRow& row, OrderActions::Version version);
    void askForVersion(const DraftOrderRow& row);
    [[nodiscard]] bool canOpen(const DraftOrderRow& row);
    [[nodiscard]] bool isInCatalogue(const SectionIdentifier& section) const;
    template <class ToEdit>
    void fetched(const DraftOrderRow& row, const OrderActions::Fetched<ToEdit>& fetched);
    void open(const DraftOrderRow& row, const OrderToEdit& toEdit);
    void open(const DraftOrderRow& row, const TextileOrderToEdit& toEdit);
    void enterSection(const DraftOrderRow& row);
    static void tellSent(AlertPresenter& alerts, const OrderActions::Sending& sending);
    void sent(const std::string& key, const OrderActions::Sending& sending, bool isAwaited);
    void sentAll(const OrderActions::SentAll& all, int count, bool isAwaited);
    void confirmedDelete(const std::string& key);
    void deleteInCloud(const DraftOrderRow& row);
    void deletedInCloud(const DraftOrderRow& row, const OrderActions::Answer& failure);
    void removeFile(const DraftOrderRow& row);
    void offerUndo(const OrderFile& file);
    void endUndo();
    void fetchCopy(Int id, const std::string& name);
    void storeCopy(const SaveBrochuresOrder& copy, const std::string& name, bool overwrite);
    void tellCopy(const QString& text);
    void copyFailed(const RequestFailure& failure);

    OrderListServices services_;
    OrderListWays ways_;
    OrderListBoard& board_;
    std::optional<OrderFile> undo_;
    quint64 undoTimer_ = 0;
};

} // namespace kavor
