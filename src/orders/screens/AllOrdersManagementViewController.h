#pragma once

#include "base/NotificationCenter.h"
#include "interaction/PendingRun.h"
#include "orders/OrderList.h"
#include "orders/list/DraftOrderRows.h"
#include "orders/screens/OrderRowModels.h"
#include "orders/services/OrderActions.h"
#include "screens/ScreenController.h"
#include "screens/VeilState.h"

#include <QPointer>
#include <QString>
#include <QVariantList>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kavor {

class AlertPresenter;
class AppSingleton;
class BackgroundOrderSync;
class Clock;
class OrderDiskManager;
class Reachability;
class ServiceOperations;
class UrlOpener;
struct Choice;

// What the list of orders works with. Everything outlives it.
struct OrderListServices {
    AppSingleton& session;
    ServiceOperations& network;
    OrderDiskManager& orders;
    OrderActions& actions;
    BackgroundOrderSync& sync;
    AlertPresenter& alerts;
    UrlOpener& urls;
    Clock& clock;
    Reachability& reachability;
};

// The ways from the list to further screens.
struct OrderListWays {
    std::function<void()> wizard; // with the shared draft, as it stands
    std::function<void(const OrderList::Order&)> claim;
    std::function<void(const OrderList::Order&)> qrDemand;
};

// All that the user ordered: on the left the drafts of device and cloud and what waits in the outbox, on the
// right the brochures that the server has. The rows of the device stand without a network and whatever the
// server answers.
class AllOrdersManagementViewController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(kavor::SavedOrdersModel* savedOrders READ savedOrders CONSTANT)
    Q_PROPERTY(kavor::SentOrdersModel* sentOrders READ sentOrders CONSTANT)
    Q_PROPERTY(kavor::VeilState* veil READ veil CONSTANT)
    Q_PROPERTY(bool offline READ isOffline NOTIFY offlineChanged)
    // The three numbers of the summary, "-" while they are not known; each is the button of a quick filter.
    Q_PROPERTY(QString withoutConfirmNumberLabel READ withoutConfirmNumberLabel NOTIFY summaryChanged)
    Q_PROPERTY(QString realizedNumberLabel READ realizedNumberLabel NOTIFY summaryChanged)
    Q_PROPERTY(QString withoutCobrixCodeLabel READ withoutCobrixCodeLabel NOTIFY summaryChanged)
    Q_PROPERTY(kavor::AllOrdersManagementViewController::QuickFilter quickFilter READ quickFilter NOTIFY
                   filtersChanged)
    // What the fields of the search hold.
    Q_PROPERTY(QString orderIdSearch READ orderIdSearch NOTIFY searchChanged)
    Q_PROPERTY(QString cobrixSearch READ cobrixSearch NOTIFY searchChanged)
    Q_PROPERTY(QString localNameSearch READ localNameSearch NOTIFY searchChanged)
    // What is active: each {id, text}, to be removed one by one.
    Q_PROPERTY(QVariantList filters READ filters NOTIFY filtersChanged)
    // "Actualizado hace 5 minutos"; empty before the first answer.
    Q_PROPERTY(QString age READ age NOTIFY ageChanged)
    // "Enviar todos (3)"; empty when nothing waits.
    Q_PROPERTY(QString sendAllText READ sendAllText NOTIFY rowsChanged)
    // That the network is back and what waits to be sent; empty otherwise.
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)
    // What was deleted and can be brought back for eight seconds: "Se ha borrado «Bar Sol»"; empty otherwise.
    Q_PROPERTY(QString undoText READ undoText NOTIFY undoChanged)
    // Why a list is empty: {icon, title, text, action}; action is a button's text or empty.
    Q_PROPERTY(QVariantMap savedEmpty READ savedEmpty NOTIFY emptyChanged)
    Q_PROPERTY(QVariantMap sentEmpty READ sentEmpty NOTIFY emptyChanged)
    // Whether the right list shows its rows; otherwise it shows sentEmpty.
    Q_PROPERTY(bool sentShown READ isSentShown NOTIFY emptyChanged)
    Q_PROPERTY(bool helpShown READ isHelpShown NOTIFY helpChanged)
    // The states that the help explains: each {icon, text, colour, explanation}.
    Q_PROPERTY(QVariantList helpStates READ helpStates CONSTANT)
    // The sent row whose sheet is open: {orderId, title, date, type, pointOfSale, state, note, pending,
    // canDemandQr}; empty without one.
    Q_PROPERTY(QVariantMap sheet READ sheet NOTIFY sheetChanged)

public:
    enum class QuickFilter { None, WithoutConfirm, WithoutComplete, CurrentYear };
    Q_ENUM(QuickFilter)

    static constexpr std::chrono::seconds undoTime{8};

    explicit AllOrdersManagementViewController(const OrderListServices& services, QObject* parent = nullptr);
    ~AllOrdersManagementViewController() override;

    // Before it comes on show.
    void setWays(OrderListWays ways) { ways_ = std::move(ways); }

    void viewWillAppear() override;

    Q_INVOKABLE void closeSceneAction();
    // Loads again what is on show: pull to refresh.
    Q_INVOKABLE void refresh();

    Q_INVOKABLE void editOrderIdSearch(const QString& text);
    Q_INVOKABLE void editCobrixSearch(const QString& text);
    Q_INVOKABLE void editLocalNameSearch(const QString& text);
    Q_INVOKABLE void searchToFilterAction();
    // Removes one of filters, by its id.
    Q_INVOKABLE void removeFilter(const QString& id);
    Q_INVOKABLE void withoutConfirmAction();
    Q_INVOKABLE void withoutCompleteAction();
    Q_INVOKABLE void withoutFilterAction();

    // Of a row on the left, by its key.
    Q_INVOKABLE void editAction(const QString& key);
    Q_INVOKABLE void sendAction(const QString& key);
    Q_INVOKABLE void deleteOrder(const QString& key);
    Q_INVOKABLE void sendAllAction();
    Q_INVOKABLE void undoDelete();

    // Of a row on the right, by its number.
    Q_INVOKABLE void openSheet(qlonglong id);
    Q_INVOKABLE void closeSheet();
    Q_INVOKABLE void previewURLAction(qlonglong id);
    Q_INVOKABLE void copyOrder(qlonglong id);
    Q_INVOKABLE void claimOrder(qlonglong id);
    Q_INVOKABLE void demandQrOrder(qlonglong id);

    Q_INVOKABLE void openHelpModalButton();
    Q_INVOKABLE void hideNotifications();

    // What the server said of an order's QR material: its row takes it at once.
    void qrDemanded(Int id, std::optional<bool> canDemandQr, std::optional<OrderState> state,
                    const std::optional<std::string>& stateName);

    [[nodiscard]] SavedOrdersModel* savedOrders() { return &saved_; }
    [[nodiscard]] SentOrdersModel* sentOrders() { return &sent_; }
    [[nodiscard]] VeilState* veil() { return &veil_; }
    [[nodiscard]] bool isOffline() const;
    [[nodiscard]] QString withoutConfirmNumberLabel() const;
    [[nodiscard]] QString realizedNumberLabel() const;
    [[nodiscard]] QString withoutCobrixCodeLabel() const;
    [[nodiscard]] QuickFilter quickFilter() const { return quickFilter_; }
    [[nodiscard]] QString orderIdSearch() const { return typed_.orderId; }
    [[nodiscard]] QString cobrixSearch() const { return typed_.tevo; }
    [[nodiscard]] QString localNameSearch() const { return typed_.pdv; }
    [[nodiscard]] QVariantList filters() const;
    [[nodiscard]] QString age() const { return age_; }
    [[nodiscard]] QString sendAllText() const;
    [[nodiscard]] QString notice() const { return notice_; }
    [[nodiscard]] QString undoText() const;
    [[nodiscard]] QVariantMap savedEmpty() const;
    [[nodiscard]] QVariantMap sentEmpty() const;
    [[nodiscard]] bool isSentShown() const;
    [[nodiscard]] bool isHelpShown() const { return helpShown_; }
    [[nodiscard]] QVariantList helpStates() const;
    [[nodiscard]] QVariantMap sheet() const;
    // The rows behind what is shown.
    [[nodiscard]] const DraftOrderRows& rows() const { return rows_; }

signals:
    void offlineChanged();
    void summaryChanged();
    void searchChanged();
    void filtersChanged();
    void ageChanged();
    void rowsChanged();
    void noticeChanged();
    void undoChanged();
    void emptyChanged();
    void helpChanged();
    void sheetChanged();

private:
    struct Terms {
        QString orderId;
        QString tevo;
        QString pdv;
        bool operator==(const Terms&) const = default;
    };
    // What a load made, away from the window's thread.
    struct Shown {
        DraftOrderRows rows;
        std::vector<SavedOrderRow> saved;
        std::vector<SentOrderRow> sent;
    };
    enum class Load { None, UnderWay, Offline, Failed, Answered };

    void observe();
    [[nodiscard]] bool hasSession() const;
    void load();
    void rebuildLocalRows();
    void showJoined();
    void endWaitWithRows();
    void dropAnswer();
    void fetchServerOrders();
    void answered(const OrderList& answer);
    void failed(const RequestFailure& failure);
    void quickFilterFailed(QuickFilter which, const RequestFailure& failure);
    void runQuickFilter(QuickFilter which);
    void show(Shown shown);
    void setLoad(Load load);
    QObject* beginWait(const QString& text);
    void endWait();
    void left();
    // The alert of a failed request: showRequestFailure for an update that is needed, else these choices.
    void tellFailure(const RequestFailure& failure, const QString& text, std::vector<Choice> choices);

    void edit(const std::string& key);
    void fetchToEdit(const DraftOrderRow& row, OrderActions::Version version);
    void askForVersion(const DraftOrderRow& row);
    [[nodiscard]] bool canOpen(const DraftOrderRow& row);
    void open(const DraftOrderRow& row, const OrderToEdit& toEdit);
    static void tellSent(AlertPresenter& alerts, const OrderActions::Sending& sending);
    void sent(const std::string& key, const OrderActions::Sending& sending, bool isAwaited);
    void sentAll(const OrderActions::SentAll& all, int count, bool isAwaited);
    void confirmedDelete(const std::string& key);
    void deleteInCloud(const DraftOrderRow& row);
    void deletedInCloud(const DraftOrderRow& row, const OrderActions::Answer& failure);
    void forgetServerOrder(const DraftOrderRow& row);
    void removeFile(const DraftOrderRow& row);
    void offerUndo(const OrderFile& file);
    void endUndo();
    void fetchCopy(Int id, const std::string& name);
    void storeCopy(const SaveBrochuresOrder& copy, const std::string& name, bool overwrite);
    void tellCopy(const QString& text);
    void copyFailed(const RequestFailure& failure);
    void refreshAge();
    void reachabilityChanged();
    void setNotice(const QString& notice);
    void tellOldCatalogue();
    void cover(const std::function<void()>& openScreen);
    [[nodiscard]] std::vector<OrderFile> waitingFiles() const;

    OrderListServices services_;
    OrderListWays ways_;
    std::vector<NotificationCenter::Subscription> observers_;
    VeilState veil_;
    PendingRun wait_;    // the request that the veil stands for
    PendingRun reading_; // of the files
    PendingRun joining_; // of the rows that are shown next
    bool fetchesAfterReading_ = false;
    QPointer<QObject> endsWithRows_; // the wait that ends once they are on show
    bool isAnswerDue_ = true;        // what stands is of a load before this one
    SavedOrdersModel saved_;
    SentOrdersModel sent_;
    // The rows on show, those of the device alone, and the answer that was joined to them.
    DraftOrderRows rows_;
    DraftOrderRows local_;
    std::shared_ptr<const OrderList> answer_;
    std::shared_ptr<const OrderList> filtered_; // by the quick filter that stands
    Load load_ = Load::None;
    // The fields of the search, as they stand among the filters.
    struct SearchField {
        const char* name;
        const char* caption;
        QString Terms::*term;
    };
    static constexpr std::array searchFields{SearchField{"orderId", "Nº ", &Terms::orderId},
                                             SearchField{"tevo", "Código: ", &Terms::tevo},
                                             SearchField{"pdv", "Local: ", &Terms::pdv}};
    Terms typed_;
    Terms active_; // orderIdToFilter, cobrixToFilter, localNameToFilter
    QuickFilter quickFilter_ = QuickFilter::None;
    std::optional<qint64> answeredAt_; // milliseconds of the clock
    QString age_;
    quint64 ageTimer_ = 0;
    QString notice_;
    std::optional<OrderFile> undo_;
    quint64 undoTimer_ = 0;
    bool helpShown_ = false;
    bool covered_ = true; // by another screen, or not on show yet
    std::optional<Int> sheetId_;
};

} // namespace kavor
