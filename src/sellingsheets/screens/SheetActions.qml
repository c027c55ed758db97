import QtQuick
import QtQuick.Layouts
import Kavor.Screens
import Kavor.Ui

// The ways out of the form of a sheet.
Rectangle {
    id: bar

    required property DataViewController controller

    implicitHeight: row.implicitHeight + 2 * Theme.spaceM
    color: Theme.surface

    Rectangle { width: parent.width; height: 1; color: Theme.hairline }

    GridLayout {
        id: row

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: Theme.pageMargin
        anchors.rightMargin: Theme.pageMargin
        columns: Theme.compact ? 2 : 3
        columnSpacing: Theme.spaceM
        rowSpacing: Theme.spaceS

        AppButton {
            objectName: "previewSheetAction"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            kind: "secondary"
            icon: "preview"
            text: "Vista previa"
            onClicked: bar.controller.previewAction()
        }
        AppButton {
            objectName: "saveSheetAction"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            kind: "secondary"
            icon: "save"
            text: "Guardar"
            onClicked: bar.controller.saveAction()
        }
        AppButton {
            objectName: "sendSheetAction"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.columnSpan: Theme.compact ? 2 : 1
            icon: "send"
            text: "Guardar y enviar"
            onClicked: bar.controller.sendAction()
        }
    }
}
