import QtQuick
import Kavor.Ui
import Kavor.Screens

// The profit account: a calculator over the prices of the menu.
FocusScope {
    id: view

    required property BrochureProfitAccountViewController controller
    readonly property real margin: Theme.pageMargin
    readonly property bool wide: width >= 700
    readonly property real columnWidth: width >= 1000 ? 128 : 112

    objectName: "profitAccountView"
    Keys.onEscapePressed: controller.closeSceneAction()

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }
    AppBar {
        id: bar

        width: parent.width
        title: view.controller.title
        subtitle: view.controller.subtitle
        backVisible: true
        backText: "Volver a los precios"
        onBackTapped: view.controller.closeSceneAction()
    }
    PriceTable {
        id: list

        objectName: "profitTable"
        x: view.margin
        anchors.top: bar.bottom
        width: parent.width - 2 * x
        height: parent.height - bar.height - summary.height - keyboard
        visible: !view.controller.empty
        focus: true
        clip: true
        roomBelow: summary.height
        model: view.controller.table
        shownColumns: view.controller.shownToCustomer ? [0, 2, 3] : [0, 1, 2, 3]

        header: Item {
            width: list.width
            height: head.implicitHeight + Theme.spaceM + Theme.spaceXS

            Column {
                id: head

                y: Theme.spaceM
                width: parent.width
                spacing: Theme.spaceXS

                Flow {
                    width: parent.width
                    spacing: Theme.spaceM

                    Chip {
                        id: toggle

                        objectName: "showToCustomer"
                        text: "Enseñar al cliente"
                        icon: view.controller.shownToCustomer ? "check" : "eye"
                        tappable: true
                        selected: view.controller.shownToCustomer
                        Accessible.role: Accessible.CheckBox
                        Accessible.checkable: true
                        Accessible.checked: selected
                        onClicked: view.controller.showToCustomer(!selected)
                    }
                    HelpText {
                        width: view.wide ? parent.width - toggle.width - parent.spacing : parent.width
                        height: view.wide ? Theme.touch : implicitHeight
                        verticalAlignment: Text.AlignVCenter
                        text: view.controller.helpText
                    }
                }
                ProfitSortBar {
                    width: parent.width
                    controller: view.controller
                    wide: view.wide
                    columnWidth: view.columnWidth
                }
            }
        }

        delegate: ProfitAccountCell {
            objectName: "profitAccountCell" + index
            width: list.width
            height: implicitHeight
            controller: view.controller
            wide: view.wide
            columnWidth: view.columnWidth
            last: index + 1 === list.count
            onPriceReturned: (column) => list.goOn(index, column)
        }
    }
    ProfitSummary {
        id: summary

        anchors.bottom: parent.bottom
        width: parent.width
        visible: !view.controller.empty
        controller: view.controller
        wide: view.wide
    }
    EmptyState { // WithoutElementsProfitCellIdentifier
        objectName: "withoutElementsProfit"
        anchors.centerIn: parent
        width: parent.width
        visible: view.controller.empty
        icon: "calculator"
        title: view.controller.emptyText
        actionText: "Volver a los precios"
        actionIcon: "price"
        focus: visible
        onTriggered: view.controller.closeSceneAction()
    }
}
