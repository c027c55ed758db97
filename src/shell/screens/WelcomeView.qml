import QtQuick
import Kavor.Screens
import Kavor.Ui
import Kavor.Kit

// The dashboard: what can be ordered, and the tools beside it.
FocusScope {
    id: view

    required property WelcomeViewController controller

    objectName: "welcomeView"
    Keys.onPressed: (event) => event.accepted = tiles.step(event.key)

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }

    AppBar {
        id: bar

        width: parent.width
        title: "Kavor"
        subtitle: Theme.compact ? "" : view.controller.user
        offline: view.controller.offline

        DashboardToolBar {
            visible: !Theme.compact
            inverse: true
            controller: view.controller
        }
    }

    Flickable {
        id: scroll

        anchors.top: bar.bottom
        anchors.bottom: tools.visible ? tools.top : parent.bottom
        width: parent.width
        contentWidth: width
        contentHeight: content.implicitHeight
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        FocusFollower { view: scroll }
        Column {
            id: content

            width: parent.width
            spacing: Theme.spaceL
            bottomPadding: Theme.spaceL

            WelcomeHeader {
                width: parent.width
                controller: view.controller
            }
            ButtonsContainerView {
                id: tiles

                x: Theme.pageMargin
                width: parent.width - 2 * x
                controller: view.controller
            }
            EmptyState {
                objectName: "noSections"
                width: parent.width
                visible: view.controller.welcomeButtons.length === 0
                icon: "info"
                title: "Sin secciones"
                text: "Tu usuario todavía no tiene pedidos disponibles."
            }
            Text {
                objectName: "versionLabel"
                anchors.right: parent.right
                anchors.rightMargin: Theme.pageMargin
                text: view.controller.versionLabel
                color: Theme.mutedInk
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontSmall
            }
        }
    }

    Rectangle {
        id: tools

        anchors.bottom: parent.bottom
        width: parent.width
        height: 64
        visible: Theme.compact
        color: Theme.surface

        Rectangle {
            width: parent.width
            height: 1
            color: Theme.hairline
        }
        DashboardToolBar {
            anchors.fill: parent
            anchors.topMargin: 1
            controller: view.controller
        }
    }

    NotificationsView {
        controller: view.controller
    }
    ScreenVeil { objectName: "progressVeilView"; veilState: view.controller.progressVeil }
}
