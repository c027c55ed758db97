import QtQuick
import Kavor.Ui

// The screen of a section, for tests of what stands around it.
FocusScope {
    id: view

    required property var controller

    AppBar {
        width: parent.width
        title: "Sección"
        backVisible: true
        onBackTapped: view.controller.closed()
    }
}
