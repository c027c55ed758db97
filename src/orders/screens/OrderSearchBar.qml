import QtQuick
import QtQuick.Layouts
import Kavor.Screens
import Kavor.Ui

// The three terms of the search; Enter in any of them searches.
GridLayout {
    id: bar

    required property AllOrdersManagementViewController controller

    signal searched()

    function takeFocus(): void {
        number.forceActiveFocus(Qt.ShortcutFocusReason);
    }
    function search(): void {
        searched();
        controller.searchToFilterAction();
    }

    columns: Theme.compact ? 2 : 4
    columnSpacing: Theme.spaceM
    rowSpacing: Theme.spaceM

    SearchField {
        id: number

        objectName: "orderIdSearch"
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        icon: ""
        placeholder: ""
        label: "Nº de pedido"
        inputMethodHints: Qt.ImhPreferNumbers | Qt.ImhNoPredictiveText
        text: bar.controller.orderIdSearch
        onEdited: (text) => bar.controller.editOrderIdSearch(text)
        onAccepted: bar.search()
    }
    SearchField {
        objectName: "cobrixSearch"
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        icon: ""
        placeholder: ""
        label: "Código de cliente"
        text: bar.controller.cobrixSearch
        onEdited: (text) => bar.controller.editCobrixSearch(text)
        onAccepted: bar.search()
    }
    SearchField {
        objectName: "localNameSearch"
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        icon: ""
        placeholder: ""
        label: "Local"
        text: bar.controller.localNameSearch
        onEdited: (text) => bar.controller.editLocalNameSearch(text)
        onAccepted: bar.search()
    }
    AppButton {
        objectName: "searchButton"
        Layout.fillWidth: Theme.compact
        Layout.preferredWidth: Theme.compact ? 1 : implicitWidth
        Layout.preferredHeight: Theme.touch + 2
        Layout.alignment: Qt.AlignBottom
        icon: "search"
        text: "Buscar"
        onClicked: bar.search()
    }
}
