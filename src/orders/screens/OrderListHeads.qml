import QtQuick
import QtQuick.Layouts
import Kavor.Screens
import Kavor.Ui

// What stands over the lists: on a wide screen a title over each, on a phone tabs; sending all that waits, how old
// what is shown is, and loading it anew.
ColumnLayout {
    id: heads

    required property AllOrdersManagementViewController controller
    property int savedCount: 0
    property int sentCount: 0
    property bool sentCurrent: false // of a phone's tabs
    property real gap: Theme.spaceL  // between the lists

    signal tabTapped(bool sent)

    spacing: Theme.spaceS

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
                count: heads.savedCount
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
                visible: !Theme.compact
                text: "Borradores"
                implicitWidth: 96
            }
            Badge {
                objectName: "savedCount"
                visible: !Theme.compact
                text: heads.savedCount
                tone: "bottle"
            }
            Item {
                Layout.fillWidth: true
                visible: !Theme.compact
            }
            AppButton {
                id: sendAll

                // The notice has the same button.
                readonly property bool wanted: text !== "" && heads.controller.notice === ""
                                               && !(Theme.compact && heads.sentCurrent)

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
                implicitWidth: 80
            }
            Badge {
                objectName: "sentCount"
                visible: !Theme.compact && heads.sentCount > 0
                text: heads.sentCount
                tone: "bottle"
            }
            HelpText {
                objectName: "age"
                Layout.fillWidth: true
                Layout.fillHeight: true
                visible: true
                verticalAlignment: Text.AlignVCenter
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
