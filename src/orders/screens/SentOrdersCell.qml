import QtQuick
import Kavor.Ui

// An order that the server has. A tap shows all of it.
OrderCell {
    id: cell

    required property var orderId // beyond what an int holds
    required property string number
    required property string orderDate
    required property string orderType
    required property string pointOfSale
    required property string stateText
    required property bool pending
    required property bool canDemandQr
    required property bool hasNote

    signal copyTapped()
    signal claimTapped()
    signal demandQrTapped()

    // Where the keyboard enters the row.
    function focusFirst(): void {
        forceActiveFocus(Qt.TabFocusReason);
    }

    objectName: "sentOrder" + orderId
    accessibleName: "Pedido " + number + ", " + pointOfSale
    Accessible.description: stateText + ". " + orderType + ". " + orderDate + (pending ? ". Con incidencia" : "")

    head: [
        Icon {
            id: incidence

            objectName: "imageIncidence"
            anchors.verticalCenter: parent.verticalCenter
            visible: cell.pending
            name: "warning"
            size: 20
            weight: 2
            colour: Theme.danger
        },
        Text {
            objectName: "orderTypeLabel"
            anchors.left: parent.left
            anchors.leftMargin: cell.pending ? incidence.width + Theme.spaceS : 0
            anchors.right: date.left
            anchors.rightMargin: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            text: "Nº " + cell.number + " · " + cell.orderType
            color: Theme.mutedInk
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
        },
        Text {
            id: date

            objectName: "orderDateLabel"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: cell.orderDate
            color: Theme.mutedInk
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
        }
    ]
    told: Text {
        objectName: "orderPVDLabel"
        width: parent.width
        text: cell.pointOfSale
        color: Theme.ink
        elide: Text.ElideRight
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontLarge
        font.weight: Font.Bold
    }
    foot: Row {
        width: parent.width
        spacing: Theme.spaceS

        Chip {
            objectName: "orderStatusLabel"
            width: Math.min(implicitWidth, parent.width - (cell.hasNote ? 20 + parent.spacing : 0))
            tone: "bottle"
            text: cell.stateText
        }
        Icon {
            objectName: "noteMark"
            anchors.verticalCenter: parent.verticalCenter
            visible: cell.hasNote
            name: "mail"
            size: 20
            colour: Theme.mutedInk
        }
    }
    buttons: [
        Loader {
            active: cell.canDemandQr
            visible: active
            sourceComponent: IconButton {
                objectName: "demandQrOrderButton"
                icon: "qr"
                text: "Volver a pedir el material QR"
                onClicked: cell.demandQrTapped()
            }
        },
        IconButton {
            objectName: "copyOrderButton"
            icon: "copy"
            text: "Copiar a borradores"
            onClicked: cell.copyTapped()
        },
        IconButton {
            objectName: "claimOrderButton"
            icon: "claim"
            text: "Reclamar"
            onClicked: cell.claimTapped()
        }
    ]
}
