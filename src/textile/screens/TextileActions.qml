import QtQuick
import QtQuick.Layouts
import Kavor.Screens
import Kavor.Ui

// The ways out, at the foot of the step: kept under a name, seen, sent.
Rectangle {
    id: bar

    required property TextileSendingViewController controller
    readonly property bool narrow: width < 560

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
        columns: bar.narrow ? 2 : 3
        columnSpacing: Theme.spaceM
        rowSpacing: Theme.spaceS

        AppButton {
            objectName: "storeOrderOnDisk"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            text: "Guardar"
            icon: "save"
            kind: "secondary"
            onClicked: bar.controller.storeOrderOnDiskAction()
        }
        AppButton {
            objectName: "previewOrder"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            text: "Vista previa"
            icon: "preview"
            kind: "secondary"
            onClicked: bar.controller.previewOrderAction()
        }
        AppButton {
            objectName: "makeOrderOnServer"
            Layout.fillWidth: true
            Layout.preferredWidth: bar.narrow ? 1 : 1.5
            Layout.columnSpan: bar.narrow ? 2 : 1
            text: bar.controller.makeOrderTitle
            icon: bar.controller.orderSent ? "link" : "print"
            onClicked: bar.controller.makeOrderOnServerAction()
        }
    }
}
