import QtQuick
import Kavor.Ui

// A line of the cart. A tap chooses it; a swipe up, the bin and the Delete key take it out.
Item {
    id: line

    required property var model
    property string name: ""

    signal chosen()
    signal removed()

    implicitWidth: 300
    implicitHeight: 96

    Card {
        id: card

        objectName: line.name
        accessibleName: line.model.title + ", " + line.model.detail + ", " + line.model.units + " unidades"
        width: parent.width
        height: parent.height
        tappable: true
        selected: line.model.chosen
        padding: Theme.spaceS
        opacity: 1 + Math.min(0, y) / 160
        onClicked: line.chosen()
        Keys.onDeletePressed: line.removed()

        GarmentPicture {
            id: picture

            width: 80
            height: 80
            marked: false
            garment: line.model.garment
            ground: card.ground
        }
        Behavior on y {
            enabled: !swipe.active
            NumberAnimation { duration: Theme.fast }
        }
    }
    Column {
        x: 96
        y: card.y + Theme.spaceS
        width: parent.width - x - Theme.touch
        spacing: 2

        Text {
            width: parent.width
            text: line.model.title
            textFormat: Text.PlainText
            color: Theme.ink
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
            font.weight: Font.Medium
        }
        Text {
            width: parent.width
            text: line.model.detail
            textFormat: Text.PlainText
            color: Theme.mutedInk
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
        }
        Text {
            width: parent.width
            text: line.model.sizes.join("· ")
            textFormat: Text.PlainText
            color: Theme.ink
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
        }
    }
    IconButton {
        objectName: line.name + "Delete"
        anchors.right: parent.right
        y: card.y
        icon: "trash"
        iconSize: 20
        text: "Quitar del carrito"
        colour: Theme.danger
        onClicked: line.removed()
    }
    DragHandler {
        id: swipe

        target: card
        xAxis.enabled: false
        yAxis.minimum: -line.height
        yAxis.maximum: 0
        onActiveChanged: {
            if (active)
                return;
            const far = card.y < -line.height * 0.4;
            card.y = 0;
            if (far)
                line.removed();
        }
    }
}
