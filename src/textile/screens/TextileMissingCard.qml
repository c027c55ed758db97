import QtQuick
import Kavor.Screens
import Kavor.Ui

// What the check had to say; a tap leads to where it is mended.
Card {
    id: card

    required property TextileSendingViewController controller
    readonly property int count: controller.missing.length

    objectName: "missingCard"
    visible: count > 0
    ground: Theme.dangerTint

    SectionTitle {
        width: parent.width
        text: "Pedido incompleto"
        detail: card.count === 1 ? "1 aviso" : card.count + " avisos"
        icon: "warning"
    }
    Column {
        width: parent.width

        Repeater {
            model: card.controller.missing

            ListRow {
                required property int index
                required property string modelData

                objectName: "missing" + index
                width: parent.width
                leftPadding: 0
                rightPadding: 0
                separator: index + 1 < card.count
                text: modelData
                icon: "warning"
                iconColour: Theme.danger
                chevron: true
                onClicked: card.controller.goToMissing(index)
            }
        }
    }
}
