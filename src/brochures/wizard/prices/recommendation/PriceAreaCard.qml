import QtQuick
import Kavor.Ui
import Kavor.Screens

// The prices of one area: their captions, the range that they make, and how many menus they come from.
Card {
    id: card

    required property var area

    Item {
        width: parent.width
        height: Math.max(caption.implicitHeight, menus.implicitHeight)

        Text {
            id: caption

            anchors.left: parent.left
            anchors.right: menus.visible ? menus.left : parent.right
            anchors.rightMargin: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            text: card.area.caption
            color: Theme.ink
            wrapMode: Text.Wrap
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontLarge
            font.weight: Font.Bold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Chip {
            id: menus

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            icon: "menu"
            text: card.area.menus
        }
    }
    PriceRange {
        width: parent.width
        least: card.area.least
        usual: card.area.usual
        greatest: card.area.greatest
        own: card.area.own
        description: card.area.range
    }
    Row {
        id: prices

        width: parent.width

        Repeater {
            model: card.area.prices

            Column {
                id: price

                required property var modelData

                width: prices.width / Math.max(1, card.area.prices.length)
                spacing: 2

                Accessible.role: Accessible.StaticText
                Accessible.name: modelData.caption + ": " + modelData.text

                Text {
                    width: parent.width - Theme.spaceXS
                    text: price.modelData.caption
                    color: Theme.mutedInk
                    elide: Text.ElideRight
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontSmall
                }
                Text {
                    width: parent.width - Theme.spaceXS
                    text: price.modelData.text
                    color: Theme.ink
                    elide: Text.ElideRight
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontLarge
                    font.weight: Font.Bold
                }
            }
        }
    }
}
