import QtQuick
import QtQuick.Templates as T
import Kavor.Ui
import Kavor.Screens

// The same four texts in a panel over the step.
T.Popup {
    id: panel

    required property BrochureSendViewController controller

    objectName: "panelInfoOrderView"
    parent: T.Overlay.overlay
    anchors.centerIn: parent
    width: Math.min((parent ? parent.width : 400) - 32, 560)
    height: Math.min((parent ? parent.height : 600) - 64, column.implicitHeight + 2 * padding)
    padding: Theme.spaceXL
    modal: true
    focus: true
    visible: controller.panelInfoOrderVisible
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onClosed: controller.closeInfoOrderAction()

    T.Overlay.modal: Rectangle { color: Theme.scrim }

    background: Rectangle {
        radius: 20
        color: Theme.surface
        border.width: 1
        border.color: Theme.hairline
    }

    contentItem: Flickable {
        contentHeight: column.implicitHeight
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        Column {
            id: column

            width: parent.width
            spacing: Theme.spaceM

            SectionTitle { width: parent.width; text: "Información del pedido"; icon: "info" }
            SendSummaryText {
                objectName: "orderDataInfoLeftPopup"
                width: parent.width
                fontSize: Theme.fontLarge
                text: panel.controller.orderDataInfoLeft
            }
            SendSummaryText {
                objectName: "orderDataInfoLeftWarningPopup"
                width: parent.width
                fontSize: Theme.fontLarge
                text: panel.controller.orderDataInfoLeftWarning
                warning: true
            }
            SendSummaryText {
                objectName: "orderDataInfoRightPopup"
                width: parent.width
                fontSize: Theme.fontLarge
                text: panel.controller.orderDataInfoRight
            }
            SendSummaryText {
                objectName: "orderDataInfoRightWarningPopup"
                width: parent.width
                fontSize: Theme.fontLarge
                text: panel.controller.orderDataInfoRightWarning
                warning: true
            }
            AppButton {
                objectName: "closeInfoOrderAction"
                width: parent.width
                text: "Cerrar"
                kind: "secondary"
                onClicked: panel.controller.closeInfoOrderAction()
            }
        }
    }
}
