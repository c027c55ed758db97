import QtQuick
import QtQuick.Layouts
import Kavor.Screens
import Kavor.Ui

// That what waits can be sent now.
Rectangle {
    id: notice

    required property AllOrdersManagementViewController controller

    implicitHeight: row.implicitHeight + 2 * Theme.spaceXS
    radius: Theme.radius
    color: Theme.amberTint
    border.width: 1
    border.color: Theme.amber

    Accessible.role: Accessible.AlertMessage
    Accessible.name: controller.notice

    RowLayout {
        id: row

        anchors.verticalCenter: parent.verticalCenter
        x: Theme.spaceL
        width: parent.width - x - Theme.spaceXS
        spacing: Theme.spaceM

        Icon {
            name: "cloud-upload"
            size: 24
            colour: Theme.amberDark
        }
        Text {
            objectName: "notice"
            Layout.fillWidth: true
            text: notice.controller.notice
            color: Theme.ink
            wrapMode: Text.Wrap
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
        }
        AppButton {
            objectName: "noticeSendAll"
            visible: notice.controller.sendAllText !== ""
            kind: "plain"
            text: "Enviar todos"
            onClicked: notice.controller.sendAllAction()
        }
    }
}
