import QtQuick
import Kavor.Screens
import Kavor.Ui

// What has no section of its own. In the bar of a wide window, at the foot of a phone.
Row {
    id: bar

    required property WelcomeViewController controller
    property bool inverse: false
    readonly property var entries: [
        { id: "updateInfoapp", text: "Actualizar", icon: "refresh" },
        { id: "allOrders", text: "Pedidos", icon: "orders" },
        { id: "profile", text: "Perfil", icon: "user" },
        { id: "suggestions", text: "Buzón", icon: "mailbox" },
        { id: "tutorials", text: "Tutoriales", icon: "play" },
        { id: "logout", text: "Salir", icon: "logout" }
    ]

    Repeater {
        model: bar.entries

        Tappable {
            id: entry

            required property var modelData
            readonly property color ink: bar.inverse ? Theme.inverseInk : Theme.bottle

            objectName: modelData.id + "Button"
            width: bar.inverse ? 76 : bar.width / bar.entries.length
            height: bar.inverse ? 64 : bar.height
            accessibleName: modelData.text
            onClicked: bar.controller.openTool(modelData.id)

            background: Rectangle {
                anchors.fill: parent
                anchors.margins: 4
                radius: Theme.radius
                color: entry.down ? (bar.inverse ? Theme.bottleDark : Theme.hairline)
                     : entry.hot ? (bar.inverse ? Theme.bottleLight : Theme.sunken) : "transparent"

                FocusRing { shown: entry.visualFocus }
            }
            contentItem: Item {
                Column {
                    anchors.centerIn: parent
                    spacing: 2

                    Icon {
                        anchors.horizontalCenter: parent.horizontalCenter
                        name: entry.modelData.icon
                        size: 22
                        colour: entry.ink
                    }
                    Text {
                        anchors.horizontalCenter: parent.horizontalCenter
                        text: entry.modelData.text
                        color: entry.ink
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontSmall
                    }
                }
            }
        }
    }
}
