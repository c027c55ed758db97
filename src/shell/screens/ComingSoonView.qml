import QtQuick
import Kavor.Screens
import Kavor.Ui

// A section that is still to come.
FocusScope {
    id: view

    required property ComingSoonViewController controller

    objectName: "comingSoonView"
    Keys.onEscapePressed: controller.close()

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }
    AppBar {
        id: bar

        width: parent.width
        title: view.controller.title
        backVisible: true
        onBackTapped: view.controller.close()
    }
    ComingSoon {
        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        objectName: "comingSoon"
        icon: view.controller.icon
        text: "Esta sección llegará con una próxima versión."
        actionText: "Volver"
        actionIcon: "back"
        onTriggered: view.controller.close()
    }
}
