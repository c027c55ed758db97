import QtQuick
import Kavor.Ui

// A draft, or an order that waits to be sent. A tap opens what can be edited.
OrderCell {
    id: cell

    required property string key
    required property string fileName
    required property string orderDate
    required property string number
    required property string orderType
    required property string pointOfSale
    required property string stateText
    required property string stateIcon
    required property color stateColour
    required property bool hasChanges
    required property bool busy
    required property string refusal
    required property bool canSend

    signal editTapped()
    signal sendTapped()
    signal deleteTapped()

    // Where the keyboard enters the row.
    function focusFirst(): void {
        const first = canSend ? send.item as Item : cell as Item;
        first.forceActiveFocus(Qt.TabFocusReason);
    }

    objectName: "savedOrder" + key
    accessibleName: fileName
    Accessible.description: stateText + ". " + orderType + ". " + pointOfSale + ". " + orderDate
    acceptsTaps: !canSend
    activeFocusOnTab: !canSend
    onClicked: editTapped()

    head: [
        OrderStateChip {
            objectName: "stateIcon"
            icon: cell.stateIcon
            text: cell.stateText
            colour: cell.stateColour
        },
        Text {
            objectName: "dateLabel"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: cell.orderDate
            color: Theme.mutedInk
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
        }
    ]
    told: [
        Text {
            objectName: "fileNameLabel"
            width: parent.width
            text: cell.fileName
            color: Theme.ink
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontLarge
            font.weight: Font.Bold
        },
        // Few rows have these.
        Loader {
            active: cell.hasChanges
            visible: active
            sourceComponent: Chip {
                objectName: "changesMark"
                icon: "cloud-upload"
                tone: "amber"
                text: "Cambios sin subir"
            }
        },
        Loader {
            width: parent.width
            active: cell.refusal !== ""
            visible: active
            sourceComponent: HelpText {
                objectName: "refusal"
                tone: "danger"
                text: cell.refusal
            }
        }
    ]
    foot: [
        Text {
            objectName: "typeLabel"
            width: parent.width
            text: "Nº " + cell.number + " · " + cell.orderType
            color: Theme.mutedInk
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
        },
        Text {
            objectName: "pointOfSaleLabel"
            width: parent.width
            text: cell.pointOfSale
            color: Theme.ink
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
        }
    ]
    buttons: [
        Loader {
            id: send

            active: cell.canSend
            visible: active
            sourceComponent: AppButton {
                objectName: "sendButton"
                text: "Enviar"
                icon: "send"
                busy: cell.busy
                onClicked: cell.sendTapped()
            }
        },
        IconButton {
            objectName: "editButton"
            visible: !cell.canSend
            icon: "edit"
            text: "Editar"
            onClicked: cell.editTapped()
        },
        IconButton {
            objectName: "deleteButton"
            enabled: !cell.busy
            icon: "trash"
            colour: Theme.dangerDark
            text: "Borrar"
            onClicked: cell.deleteTapped()
        }
    ]
}
