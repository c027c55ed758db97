import QtQuick
import Kavor.Kit
import Kavor.Screens
import Kavor.Ui

// What is about to be sent, to be looked over once.
StepSheet {
    id: sheet

    required property ActivationsSendViewController controller

    name: "summary"
    title: "Revisa el pedido"
    onDismissed: controller.dismissSummary()

    actions: [
        AppButton {
            objectName: "summaryCancel"
            kind: "secondary"
            text: "Seguir editando"
            onClicked: sheet.controller.dismissSummary()
        },
        AppButton {
            objectName: "summarySend"
            icon: "send"
            text: "Enviar"
            onClicked: sheet.controller.confirmSend()
        }
    ]

    Repeater {
        model: sheet.controller.summary

        DetailRow {
            required property var modelData

            width: parent.width
            icon: modelData.icon
            label: modelData.label
            text: modelData.text
        }
    }
}
