import QtQuick
import QtQuick.Layouts
import Kavor.Screens
import Kavor.Ui

// What the order holds, a row for each line of the cart.
Card {
    id: card

    required property TextileSendingViewController controller

    RowLayout {
        width: parent.width
        spacing: Theme.spaceM

        ResourceImage {
            Layout.preferredWidth: 56
            Layout.preferredHeight: 56
            visible: card.controller.brandName !== ""
            source: card.controller.brandImage
            text: card.controller.brandName
            placeholderIcon: "tag"
            fillMode: Image.PreserveAspectFit
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2

            Text {
                Layout.fillWidth: true
                visible: text !== ""
                text: card.controller.brandName
                textFormat: Text.PlainText
                color: Theme.bottle
                elide: Text.ElideRight
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontTitle
                font.weight: Font.Bold
            }
            TextileMinimumBar {
                Layout.fillWidth: true
                cart: card.controller.items
            }
        }
    }
    EmptyState {
        objectName: "EmptyCellItemIdentifier"
        width: parent.width
        visible: card.controller.items.lines.count === 0
        icon: "tshirt"
        title: "No hay prendas en el carrito"
        actionText: "Elegir prendas"
        onTriggered: card.controller.goToProducts()
    }
    Repeater {
        model: card.controller.items.lines

        RowLayout {
            id: row

            required property int index
            required property var model

            objectName: "sendItem" + index
            width: parent.width
            spacing: Theme.spaceM

            GarmentPicture {
                Layout.preferredWidth: 148
                Layout.preferredHeight: 148
                marked: false
                garment: row.model.garment
            }
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 2

                Text {
                    Layout.fillWidth: true
                    text: row.model.title
                    textFormat: Text.PlainText
                    color: Theme.ink
                    wrapMode: Text.Wrap
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontLarge
                    font.weight: Font.Medium
                }
                Text {
                    Layout.fillWidth: true
                    text: row.model.detail
                    textFormat: Text.PlainText
                    color: Theme.mutedInk
                    wrapMode: Text.Wrap
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontBody
                }
                Flow {
                    Layout.fillWidth: true
                    spacing: Theme.spaceXS

                    Repeater {
                        model: row.model.sizes

                        Chip {
                            required property string modelData

                            text: modelData.trim()
                            tone: "bottle"
                        }
                    }
                }
            }
        }
    }
    HelpText {
        width: parent.width
        visible: card.controller.items.lines.count > 0
        text: "Simulación: la prenda impresa puede variar."
    }
}
