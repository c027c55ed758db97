import QtQuick
import Kavor.Screens
import Kavor.Ui
import Kavor.Kit

// The login form; beside it, where there is room, a picture.
FocusScope {
    id: view

    required property LoginViewController controller
    readonly property bool wide: width > height && width >= 800
    readonly property real pictureHeight: wide ? height : Math.min(240, height * 0.26)

    objectName: "loginView"

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }

    Item {
        id: picture

        width: view.wide ? Math.round(parent.width * 0.44) : parent.width
        height: view.pictureHeight
        clip: true

        Artwork {
            anchors.fill: parent
            name: "login_image"
        }
        Column {
            visible: view.wide
            x: Theme.spaceXXL + Theme.spaceS
            y: parent.height * 0.18
            width: parent.width - 2 * x
            spacing: Theme.spaceM

            Text {
                width: parent.width
                text: "La carta de tu bar,\nlista para imprimir."
                color: Theme.inverseInk
                wrapMode: Text.Wrap
                lineHeight: 1.15
                font.family: Theme.fontFamily
                font.pixelSize: 34
                font.weight: Font.Bold
            }
            Text {
                width: parent.width
                text: "Pide cartas, pizarras y material para el punto de venta, también sin conexión."
                color: Theme.inverseMuted
                wrapMode: Text.Wrap
                lineHeight: 1.25
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontLarge
            }
        }
    }

    FormPage {
        id: page

        anchors.left: view.wide ? picture.right : parent.left
        anchors.right: parent.right
        anchors.top: view.wide ? parent.top : picture.bottom
        anchors.bottom: parent.bottom
        twoColumns: false
        maximumWidth: 420
        margin: Theme.compact ? Theme.pageMargin : Math.max(Theme.pageMargin, (height - 520) / (view.wide ? 2 : 4))

        LoginForm {
            focus: true
            implicitWidth: page.width < 420 + 2 * page.margin ? page.width - 2 * page.margin : 420
            controller: view.controller
        }
    }

    Text {
        objectName: "versionLabel"
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: Theme.spaceM
        text: view.controller.versionLabel
        color: Theme.mutedInk
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontSmall
    }
    ScreenVeil { veilState: view.controller.veil }
}
