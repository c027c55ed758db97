import QtQuick
import Kavor.Screens
import Kavor.Ui

// The picture of the dashboard with the state of the device: how old the catalogue is, what waits to be sent.
Item {
    id: header

    required property WelcomeViewController controller

    implicitHeight: Math.max(Theme.compact ? 124 : 148, words.implicitHeight + 2 * Theme.spaceXL)

    Artwork {
        objectName: "loginImage"
        anchors.fill: parent
        name: header.controller.loginImage
    }
    Column {
        id: words

        anchors.verticalCenter: parent.verticalCenter
        anchors.verticalCenterOffset: -Theme.spaceXS // the shelf is below
        x: Theme.pageMargin
        width: Math.min(parent.width * 0.5, 460)
        spacing: Theme.spaceS

        Text {
            width: parent.width
            text: "¿Qué preparamos hoy?"
            color: Theme.inverseInk
            wrapMode: Text.Wrap
            font.family: Theme.fontFamily
            font.pixelSize: Theme.compact ? Theme.fontTitle : Theme.fontDisplay
            font.weight: Font.Bold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Text {
            objectName: "catalogueAge"
            width: parent.width
            visible: text !== ""
            text: header.controller.catalogueAge
            color: Theme.inverseMuted
            wrapMode: Text.Wrap
            font.family: Theme.fontFamily
            font.pixelSize: Theme.compact ? Theme.fontSmall : Theme.fontBody
        }
        Chip {
            objectName: "unsentOrders"
            visible: header.controller.unsentOrders !== ""
            tone: "amber"
            icon: "send"
            text: header.controller.unsentOrders
            tappable: true
            onClicked: header.controller.openTool("allOrders")
        }
    }
}
