import QtQuick
import QtQuick.Layouts
import Kavor.Screens
import Kavor.Ui

// What stands over the lists: on a wide screen a title over each, on a phone tabs; sending all that waits, how old
// what is shown is, and loading it anew.
ColumnLayout {
    id: heads

    required property AllOrdersManagementViewController controller
    readonly property int sentCount: controller.sentShown ? controller.sentOrders.count : 0
    property bool sentCurrent: false // of a phone's tabs
    property real gap: Theme.spaceL  // between the lists

    signal tabTapped(bool sent)

    spacing: 0

    Rectangle {
        Layout.fillWidth: true
        implicitHeight: Theme.touch + 2 * Theme.spaceXS
        visible: Theme.compact
        radius: Theme.radius
        color: Theme.sunken

        RowLayout {
            anchors.fill: parent
            anchors.margins: Theme.spaceXS
            spacing: Theme.spaceXS

            OrderTab {
                objectName: "savedTab"
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                text: "Borradores"
                count: heads.controller.savedOrders.count
                current: !heads.sentCurrent
                onClicked: heads.tabTapped(false)
            }
            OrderTab {
                objectName: "sentTab"
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                text: "Enviados"
                count: heads.sentCount
                current: heads.sentCurrent
                onClicked: heads.tabTapped(true)
            }
        }
    }
    RowLayout {
        Layout.fillWidth: true
        Layout.minimumHeight: Theme.touch
        spacing: Theme.compact ? Theme.spaceS : heads.gap

        RowLayout {
            Layout.fillWidth: !Theme.compact
            Layout.preferredWidth: Theme.compact ? -1 : 1
            visible: !Theme.compact || sendAll.wanted
            spacing: Theme.spaceS

            SectionTitle {
                Layout.fillWidth: true
                visible: !Theme.compact
                text: "Borradores"
                detail: sendAll.visible ? "" : heads.controller.savedOrders.count
            }
            AppButton {
                id: sendAll

                readonly property bool wanted: text !== "" && !(Theme.compact && heads.sentCurrent)

                objectName: "sendAllButton"
                visible: wanted
                icon: "send"
                text: heads.controller.sendAllText
                onClicked: heads.controller.sendAllAction()
            }
        }
        RowLayout {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            spacing: Theme.spaceS

            SectionTitle {
                visible: !Theme.compact
                text: "Enviados"
                implicitWidth: 84
            }
            HelpText {
                objectName: "age"
                Layout.fillWidth: true
                visible: true
                horizontalAlignment: sendAll.visible || !Theme.compact ? Text.AlignRight : Text.AlignLeft
                maximumLineCount: 2
                elide: Text.ElideRight
                text: heads.controller.age
            }
            IconButton {
                objectName: "refreshOrders"
                icon: "refresh"
                text: "Actualizar"
                onClicked: heads.controller.refresh()
            }
        }
    }
}
