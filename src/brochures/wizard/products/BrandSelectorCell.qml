import QtQuick
import Kavor.Ui

// A brand with its picture, bitterness and pairing, and a chip for each of its formats.
Item {
    id: cell

    required property int index
    required property var brandId
    required property string brandLabel
    required property string brandImage
    required property string category
    required property bool showPriorityBadge
    required property int bitterness
    required property string extraInfoMaridajeLabel
    required property var formats
    required property var selectedFormats

    readonly property bool chosen: selectedFormats.length > 0
    readonly property bool beside: width >= 640 // formats at the right of the texts
    readonly property real pictureSide: beside ? 88 : 72

    signal formatTapped(int row, var format)

    function focusFirst(): void {
        chipRepeater.itemAt(0)?.forceActiveFocus(Qt.TabFocusReason);
    }

    implicitHeight: card.height + Theme.spaceM

    Accessible.role: Accessible.ListItem
    Accessible.name: brandLabel

    Rectangle {
        id: card

        width: parent.width
        height: Math.max(picture.height, texts.height, cell.beside ? chips.height : 0) + 2 * Theme.spaceM
                + (cell.beside ? 0 : chips.height + Theme.spaceM)
        radius: Theme.radius
        color: cell.chosen ? Theme.bottleTint : Theme.surface
        border.width: 1
        border.color: cell.chosen ? Theme.bottle : Theme.hairline

        ResourceImage {
            id: picture

            x: Theme.spaceM
            y: Theme.spaceM
            width: cell.pictureSide
            height: cell.pictureSide
            radius: 10
            ground: card.color
            source: cell.brandImage
            text: cell.brandLabel
            placeholderIcon: "beer"
            fillMode: Image.PreserveAspectFit
            mat: Theme.paper

            Rectangle { // priorityProductBadgeImageView
                visible: cell.showPriorityBadge
                width: 28
                height: 28
                radius: 14
                color: Theme.amber
                border.width: 2
                border.color: card.color

                Icon { anchors.centerIn: parent; name: "star"; size: 16; filled: true; colour: Theme.ink }
            }
        }

        Column {
            id: texts

            anchors.left: picture.right
            anchors.leftMargin: Theme.spaceM
            y: Theme.spaceM
            width: (cell.beside ? Math.min(280, card.width * 0.36) : card.width - x - Theme.spaceM)
            spacing: Theme.spaceXS

            Text {
                width: parent.width
                text: cell.brandLabel
                color: Theme.ink
                elide: Text.ElideRight
                maximumLineCount: 2
                wrapMode: Text.Wrap
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontLarge
                font.weight: Font.Bold
            }
            HelpText {
                width: parent.width
                text: cell.category
                maximumLineCount: 1
                elide: Text.ElideRight
            }
            Row { // amargor1ImageView to amargor4ImageView
                visible: cell.bitterness > 0
                spacing: Theme.spaceXS
                Accessible.role: Accessible.StaticText
                Accessible.name: "Amargor " + cell.bitterness + " de 4"

                Repeater {
                    model: 4

                    Rectangle {
                        required property int index

                        anchors.verticalCenter: parent ? parent.verticalCenter : undefined
                        width: 12
                        height: 12
                        radius: 6
                        color: index < cell.bitterness ? Theme.amber : "transparent"
                        border.width: 1
                        border.color: index < cell.bitterness ? Theme.amberDark : Theme.hairline
                    }
                }
                HelpText { leftPadding: Theme.spaceXS; text: "Amargor" }
            }
            HelpText {
                width: parent.width
                text: cell.extraInfoMaridajeLabel !== "" ? "Marida con " + cell.extraInfoMaridajeLabel : ""
                maximumLineCount: 2
                elide: Text.ElideRight
            }
        }

        Flow {
            id: chips

            x: cell.beside ? texts.x + texts.width + Theme.spaceM : Theme.spaceM
            y: cell.beside ? (card.height - height) / 2
                           : Math.max(picture.y + picture.height, texts.y + texts.height) + Theme.spaceM
            width: card.width - x - Theme.spaceM
            spacing: Theme.spaceS

            Repeater {
                id: chipRepeater

                model: cell.formats

                BrandFormatChip {
                    required property var modelData

                    objectName: "brandFormat" + cell.brandId + "_" + modelData.formatId
                    text: modelData.text
                    image: modelData.image
                    narrow: !cell.beside && cell.width < 480
                    selected: cell.selectedFormats.indexOf(modelData.formatId) >= 0
                    width: Math.min(implicitWidth, chips.width)
                    onClicked: cell.formatTapped(cell.index, modelData.formatId)
                }
            }
        }
    }
}
