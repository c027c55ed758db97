import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Screens

// The ways out of the form: seen and ordered, or into the menu. A quiet line names the order that was made.
Rectangle {
    id: bar

    required property PromotionViewController controller

    implicitHeight: column.implicitHeight + 2 * Theme.spaceM
    color: Theme.surface

    Rectangle { width: parent.width; height: 1; color: Theme.hairline }

    ColumnLayout {
        id: column

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: Theme.pageMargin
        anchors.rightMargin: Theme.pageMargin
        spacing: Theme.spaceS

        RowLayout {
            Layout.fillWidth: true
            visible: bar.controller.sentText !== ""
            spacing: Theme.spaceS

            Icon { name: "circle-check"; size: 20; colour: Theme.success }
            Text {
                objectName: "sentText"
                Layout.fillWidth: true
                text: bar.controller.sentText
                color: Theme.success
                elide: Text.ElideRight
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
                font.weight: Font.Medium
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            AppButton {
                objectName: "showSentDocument"
                visible: bar.controller.sentDocumentVisible
                kind: "plain"
                icon: "preview"
                text: "Ver el PDF"
                onClicked: bar.controller.showSentDocument()
            }
        }
        RowLayout {
            objectName: "sendStackView"
            Layout.fillWidth: true
            visible: !bar.controller.byMenuOrder
            spacing: Theme.spaceM

            AppButton {
                objectName: "previewAction"
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                kind: "secondary"
                icon: "preview"
                text: "Vista previa"
                onClicked: bar.controller.previewAction()
            }
            AppButton {
                objectName: "makeOrderButton"
                Layout.fillWidth: true
                Layout.preferredWidth: Theme.compact ? 1 : 1.5
                icon: "print"
                text: "Realizar pedido"
                onClicked: bar.controller.sendOrderAction()
            }
        }
        AppButton {
            objectName: "appendStackview"
            Layout.fillWidth: true
            visible: bar.controller.byMenuOrder
            icon: "check"
            text: bar.controller.appendTitle
            onClicked: bar.controller.appendByOrderAction()
        }
    }
}
