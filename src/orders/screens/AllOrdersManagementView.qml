import QtQuick
import QtQuick.Layouts
import Kavor.Kit
import Kavor.Screens
import Kavor.Ui

// All that the user ordered: drafts and what waits, and what was sent; side by side, on a phone behind tabs. Both lists
// stay alive, and so keep their places.
FocusScope {
    id: view

    required property AllOrdersManagementViewController controller
    property bool sentCurrent: false // of a phone's tabs
    property bool searchOpen: false  // on a phone the fields fold away
    readonly property real gap: Theme.spaceL
    readonly property var sheet: controller.sheet

    function showSent(): void {
        sentCurrent = true;
        searchOpen = false;
    }
    function startSearch(): void {
        searchOpen = true;
        search.takeFocus();
    }
    // The arrows lead from list to list.
    function turnTo(sent: bool): void {
        sentCurrent = sent;
        (sent ? sentPane : savedPane).focusShownRow();
    }

    objectName: "allOrdersView"
    Keys.onEscapePressed: controller.closeSceneAction()
    Keys.onBackPressed: controller.closeSceneAction()
    Keys.onPressed: (event) => {
        event.accepted = true;
        if (event.matches(StandardKey.Undo))
            controller.undoDelete();
        else if (event.matches(StandardKey.Refresh))
            controller.refresh();
        else if (event.matches(StandardKey.Find))
            startSearch();
        else
            event.accepted = false;
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }
    AppBar {
        id: bar

        width: parent.width
        title: "Pedidos"
        backVisible: true
        offline: view.controller.offline
        onBackTapped: view.controller.closeSceneAction()

        IconButton {
            objectName: "openSearch"
            visible: Theme.compact
            inverse: true
            icon: "search"
            checked: view.searchOpen
            text: view.searchOpen ? "Ocultar la búsqueda" : "Buscar"
            onClicked: view.searchOpen ? view.searchOpen = false : view.startSearch()
        }
        IconButton {
            objectName: "openHelp"
            inverse: true
            icon: "help"
            text: "Ayuda sobre los estados"
            onClicked: view.controller.openHelpModalButton()
        }
    }

    ColumnLayout {
        id: top

        anchors.top: bar.bottom
        anchors.topMargin: Theme.spaceM
        x: Theme.pageMargin
        width: parent.width - 2 * x
        spacing: Theme.spaceM

        GridLayout {
            Layout.fillWidth: true
            columns: view.width < 900 ? 1 : 2
            columnSpacing: Theme.spaceXL
            rowSpacing: Theme.spaceM

            OrderNumbers {
                Layout.fillWidth: view.width < 900
                Layout.preferredWidth: 336
                Layout.alignment: Qt.AlignBottom
                controller: view.controller
                onTapped: view.showSent()
            }
            OrderSearchBar {
                id: search

                Layout.fillWidth: true
                visible: !Theme.compact || view.searchOpen
                controller: view.controller
                onSearched: view.showSent()
            }
        }
        OrderFilterChips {
            Layout.fillWidth: true
            visible: view.controller.filters.length > 0
            controller: view.controller
        }
        OrderNotice {
            Layout.fillWidth: true
            visible: view.controller.notice !== ""
            controller: view.controller
        }
        OrderListHeads {
            Layout.fillWidth: true
            controller: view.controller
            savedCount: savedPane.count
            sentCount: view.controller.sentShown ? sentPane.count : 0
            sentCurrent: view.sentCurrent
            gap: view.gap
            onTabTapped: (sent) => view.sentCurrent = sent
        }
    }

    OrderListPane {
        id: savedPane

        anchors.top: top.bottom
        anchors.topMargin: Theme.spaceXS
        anchors.bottom: parent.bottom
        x: Theme.pageMargin
        width: Theme.compact ? top.width : (top.width - view.gap) / 2
        visible: !Theme.compact || !view.sentCurrent
        name: "savedOrdersTable"
        model: view.controller.savedOrders
        emptiness: view.controller.savedEmpty
        footRoom: undo.visible ? undo.height : 0
        onRefreshAsked: view.controller.refresh()
        Keys.onRightPressed: view.turnTo(true)

        delegate: SavedOrdersCell {
            required property int index

            width: savedPane.width
            Keys.onUpPressed: savedPane.focusRow(index - 1)
            Keys.onDownPressed: savedPane.focusRow(index + 1)
            onEditTapped: view.controller.editAction(key)
            onSendTapped: view.controller.sendAction(key)
            onDeleteTapped: view.controller.deleteOrder(key)
        }
    }
    OrderListPane {
        id: sentPane

        anchors.top: savedPane.top
        anchors.bottom: parent.bottom
        x: Theme.compact ? Theme.pageMargin : savedPane.x + savedPane.width + view.gap
        width: savedPane.width
        visible: !Theme.compact || view.sentCurrent
        name: "sentOrdersTable"
        model: view.controller.sentOrders
        rowsShown: view.controller.sentShown
        emptiness: view.controller.sentEmpty
        footRoom: savedPane.footRoom
        onRefreshAsked: view.controller.refresh()
        Keys.onLeftPressed: view.turnTo(false)

        delegate: SentOrdersCell {
            required property int index

            width: sentPane.width
            Keys.onUpPressed: sentPane.focusRow(index - 1)
            Keys.onDownPressed: sentPane.focusRow(index + 1)
            onClicked: view.controller.openSheet(orderId)
            onCopyTapped: view.controller.copyOrder(orderId)
            onClaimTapped: view.controller.claimOrder(orderId)
            onDemandQrTapped: view.controller.demandQrOrder(orderId)
        }
    }
    UndoBar {
        id: undo

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.spaceL
        width: Math.min(parent.width - 2 * Theme.pageMargin, 480)
        text: view.controller.undoText
        onUndone: view.controller.undoDelete()
    }

    Loader {
        active: view.sheet.orderId !== undefined
        sourceComponent: SentOrderSheet { controller: view.controller }
    }
    Loader {
        anchors.fill: parent
        active: view.controller.helpShown
        sourceComponent: SyncHelpView { controller: view.controller }
    }
    ScreenVeil {
        objectName: "veloView"
        veilState: view.controller.veil
        wayOutText: "Trabajar en local"
    }
}
