import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Screens

// The way out of the form: sent, and afterwards seen and put into the calendar.
Rectangle {
    id: bar

    required property ActivationsSendViewController controller

    implicitHeight: grid.implicitHeight + 2 * Theme.spaceM
    color: Theme.surface

    Rectangle { width: parent.width; height: 1; color: Theme.hairline }
    GridLayout {
        id: grid

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: Theme.pageMargin
        anchors.rightMargin: Theme.pageMargin
        columns: Theme.compact ? 1 : 3
        columnSpacing: Theme.spaceM
        rowSpacing: Theme.spaceS

        Row {
            Layout.fillWidth: true
            visible: bar.controller.sentText !== "" || !Theme.compact
            spacing: Theme.spaceS

            Icon {
                anchors.verticalCenter: parent.verticalCenter
                visible: bar.controller.sentText !== ""
                name: "circle-check"
                size: 20
                colour: Theme.success
            }
            Text {
                objectName: "sentText"
                anchors.verticalCenter: parent.verticalCenter
                text: bar.controller.sentText
                color: Theme.success
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
                font.weight: Font.Medium
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        AppButton {
            objectName: "addToCalendar"
            Layout.fillWidth: Theme.compact
            visible: bar.controller.calendarFileVisible
            kind: "secondary"
            icon: "calendar"
            text: "Añadir al calendario"
            onClicked: bar.controller.addToCalendar()
        }
        AppButton {
            objectName: "sendButton"
            Layout.fillWidth: Theme.compact
            Layout.minimumWidth: 240
            icon: bar.controller.sent ? "preview" : "send"
            text: bar.controller.sent ? "Previsualizar" : "Realizar pedido"
            onClicked: bar.controller.sendAction()
        }
    }
}
