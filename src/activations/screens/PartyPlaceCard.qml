import QtQuick
import Kavor.Ui
import Kavor.Screens

// Where the party is: looked for by an address, or one of those that were chosen before.
Card {
    id: card

    required property ActivationsSendViewController controller
    readonly property bool present: controller.locationString !== ""

    SectionTitle { width: parent.width; icon: "location"; text: "Ubicación*" }

    Tappable {
        id: row

        objectName: "locationRow"
        width: parent.width
        implicitHeight: Math.max(56, texts.implicitHeight + 20)
        leftPadding: Theme.spaceM
        rightPadding: Theme.spaceM
        accessibleName: "Ubicación: " + (card.present ? card.controller.locationString : "sin elegir")
        onClicked: card.controller.locationAction()

        background: FieldFrame {
            color: row.down ? Theme.sunken : Theme.surface
            FocusRing { shown: row.visualFocus }
        }
        contentItem: Item {
            Icon {
                anchors.verticalCenter: parent.verticalCenter
                name: "search"
                size: 20
                colour: Theme.mutedInk
            }
            Column {
                id: texts

                x: 32
                width: parent.width - x
                anchors.verticalCenter: parent.verticalCenter
                spacing: 2

                Text {
                    objectName: "locationString"
                    width: parent.width
                    text: card.present ? card.controller.locationString : "Buscar la dirección"
                    color: card.present ? Theme.ink : Theme.mutedInk
                    wrapMode: Text.Wrap
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontBody
                }
                HelpText { width: parent.width; text: card.controller.locationDetail }
            }
        }
    }
    Column {
        width: parent.width
        visible: places.count > 0
        spacing: 0

        HelpText { text: "Direcciones anteriores" }
        Repeater {
            id: places

            model: card.controller.earlierPlaces

            ListRow {
                required property int index
                required property string modelData

                objectName: "earlierPlace" + index
                width: parent.width
                implicitHeight: 48
                leftPadding: 4
                rightPadding: 4
                icon: "location"
                text: modelData
                separator: index < places.count - 1
                onClicked: card.controller.useEarlierPlace(index)
            }
        }
    }
}
