import QtQuick
import Kavor.Kit
import Kavor.Screens
import Kavor.Ui

// All of an order that was sent, and what can be done with it.
StepSheet {
    id: sheet

    required property AllOrdersManagementViewController controller
    readonly property var order: controller.sheet

    name: "sentOrderSheet"
    title: order.title ?? ""
    onDismissed: controller.closeSheet()
    onOpened: first.forceActiveFocus(Qt.PopupFocusReason)

    Flow {
        width: parent.width
        spacing: Theme.spaceS

        Chip {
            objectName: "sheetState"
            width: Math.min(implicitWidth, parent.width)
            tone: "bottle"
            text: sheet.order.state ?? ""
        }
        Chip {
            objectName: "sheetIncidence"
            visible: sheet.order.pending ?? false
            tone: "danger"
            icon: "warning"
            text: "Con incidencia"
        }
    }
    DetailRow {
        width: parent.width
        icon: "store"
        label: "Local"
        text: sheet.order.pointOfSale ?? ""
    }
    DetailRow {
        width: parent.width
        icon: "brochure"
        label: "Tipo"
        text: sheet.order.type ?? ""
    }
    DetailRow {
        width: parent.width
        icon: "calendar"
        label: "Fecha"
        text: sheet.order.date ?? ""
    }
    DetailRow {
        objectName: "sheetNote"
        width: parent.width
        visible: text !== ""
        icon: "mail"
        label: "Nota"
        text: sheet.order.note ?? ""
    }
    Column {
        width: parent.width

        Rectangle {
            width: parent.width
            height: 1
            color: Theme.hairline
        }
        ListRow {
            id: first

            objectName: "sheetPreview"
            width: parent.width
            leftPadding: Theme.spaceS
            icon: "link"
            text: "Ver pedido"
            onClicked: sheet.controller.previewURLAction(sheet.order.orderId)
        }
        ListRow {
            objectName: "sheetCopy"
            width: parent.width
            leftPadding: Theme.spaceS
            icon: "copy"
            text: "Copiar a borradores"
            onClicked: sheet.controller.copyOrder(sheet.order.orderId)
        }
        ListRow {
            objectName: "sheetClaim"
            width: parent.width
            leftPadding: Theme.spaceS
            icon: "claim"
            text: "Reclamar"
            separator: demandQr.visible
            onClicked: sheet.controller.claimOrder(sheet.order.orderId)
        }
        ListRow {
            id: demandQr

            objectName: "sheetDemandQr"
            width: parent.width
            visible: sheet.order.canDemandQr ?? false
            leftPadding: Theme.spaceS
            icon: "qr"
            text: "Volver a pedir el material QR"
            separator: false
            onClicked: sheet.controller.demandQrOrder(sheet.order.orderId)
        }
    }
}
