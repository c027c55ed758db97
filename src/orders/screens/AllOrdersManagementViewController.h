#pragma once

#include "orders/screens/OrderListBoard.h"
#include "orders/screens/OrderRowActions.h"
#include "screens/ScreenController.h"

#include <QString>
#include <QVariantList>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

#include <array>
#include <optional>
#include <string>

namespace kavor {

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

    explicit AllOrdersManagementViewController(const OrderListServices& services, QObject* parent = nullptr);
    ~AllOrdersManagementViewController() override;

    // Before it comes on show.
    void setWays(const OrderListWays& ways);

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
    Q_INVOKABLE void editAction(const QString& key) { actions_.askToEdit(key); }
    Q_INVOKABLE void sendAction(const QString& key) { actions_.send(key); }
    Q_INVOKABLE void deleteOrder(const QString& key) { actions_.askToDelete(key); }
    Q_INVOKABLE void sendAllAction() { actions_.sendAll(); }
    Q_INVOKABLE void undoDelete() { actions_.undoDelete(); }

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
                    const std::optional<std::string>& stateName) {
        board_.qrDemanded(id, canDemandQr, state, stateName);
    }

    [[nodiscard]] SavedOrdersModel* savedOrders() { return &board_.saved(); }
    [[nodiscard]] SentOrdersModel* sentOrders() { return &board_.sent(); }
    [[nodiscard]] VeilState* veil() { return &board_.veil(); }
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
    [[nodiscard]] QString undoText() const { return actions_.undoText(); }
    [[nodiscard]] QVariantMap savedEmpty() const;
    [[nodiscard]] QVariantMap sentEmpty() const;
    [[nodiscard]] bool isSentShown() const;
    [[nodiscard]] bool isHelpShown() const { return helpShown_; }
    [[nodiscard]] QVariantList helpStates() const;
    [[nodiscard]] QVariantMap sheet() const;

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
    // The fields of the search, as they stand among the filters.
    struct SearchField {
        const char* name;
        const char* caption;
        QString SearchTerms::*term;
    };
    static constexpr std::array searchFields{SearchField{"orderId", "Nº ", &SearchTerms::orderId},
                                             SearchField{"tevo", "Código: ", &SearchTerms::tevo},
                                             SearchField{"pdv", "Local: ", &SearchTerms::pdv}};

    void answered();
    void rowsShown();
    void runQuickFilter(QuickFilter which);
    void setQuickFilter(QuickFilter which);
    void quickFilterFailed(QuickFilter which, const RequestFailure& failure);
    void refreshAge();
    void reachabilityChanged();
    void setNotice(const QString& notice);

    OrderListServices services_;
    OrderListWays ways_;
    OrderListBoard board_;
    OrderRowActions actions_;
    SearchTerms typed_;
    QuickFilter quickFilter_ = QuickFilter::None;
    std::optional<qint64> answeredAt_; // seconds of the clock
    QString age_;
    quint64 ageTimer_ = 0;
    QString notice_;
    bool helpShown_ = false;
    std::optional<Int> sheetId_;
};

} // namespace kavor
