import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Screens

// The ways out, at the foot of the step: kept under a name, seen, sent.
Rectangle {
    id: bar

    required property BrochureSendViewController controller
    readonly property bool wide: width >= 920
    readonly property bool narrow: width < 640

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
        columns: bar.wide ? 4 : 2
        columnSpacing: Theme.spaceM
        rowSpacing: Theme.spaceS

        AppButton {
            objectName: "saveOrderAction"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            text: "Guardar"
            icon: "save"
            kind: "secondary"
            onClicked: bar.controller.saveOrderAction()
        }
        AppButton {
            objectName: "previewAction"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            text: "Vista previa"
            icon: "preview"
            kind: "secondary"
            onClicked: bar.controller.previewAction()
        }
        AppButton {
            objectName: "buidOrderWithoutPrinted"
            Layout.fillWidth: true
            Layout.preferredWidth: bar.wide ? 2 : 1
            Layout.columnSpan: bar.narrow ? 2 : 1
            visible: bar.controller.buidOrderWithoutPrintedVisible
            text: bar.controller.buidOrderWithoutPrintedTitle
            icon: "download"
            kind: "secondary"
            onClicked: bar.controller.sendOrderMyselfAction()
        }
        AppButton {
            objectName: "makeOrderButton"
            Layout.fillWidth: true
            Layout.preferredWidth: bar.wide ? 2 : 1
            Layout.columnSpan: bar.narrow || !bar.controller.buidOrderWithoutPrintedVisible ? 2 : 1
            text: bar.controller.makeOrderButtonTitle
            icon: bar.controller.orderSent ? "link" : "print"
            onClicked: bar.controller.sendOrderAction()
        }
    }
}
