import QtQuick
import Kavor.Screens
import Kavor.Ui

// While the automatic login runs; who has waited too long can leave it.
FocusScope {
    id: view

    required property LaunchViewController controller

    objectName: "launchView"
    Keys.onEscapePressed: {
        if (wayOut.visible)
            wayOut.trigger();
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.bottle
    }
    Column {
        anchors.centerIn: parent
        spacing: Theme.spaceL

        Artwork {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 112
            height: 112
            name: "logo"
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: "Kavor"
            color: Theme.inverseInk
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontDisplay
            font.weight: Font.Bold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Spinner {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 36
            height: 36
            running: view.visible
        }
        WayOut {
            id: wayOut

            anchors.horizontalCenter: parent.horizontalCenter
            waiting: view.visible
            onClicked: view.controller.cancelAction()
        }
    }
}
