import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Screens

// A selected format: its prices, its volume, its "new" mark, and the way out of the menu.
Item {
    id: cell

    required property BrochurePriceSetterViewController controller
    required property int index
    required property string productBrandNameLabel
    required property string productTypeLabel
    required property string productImage
    required property string primaryText
    required property string primaryEditText
    required property int primaryTag
    required property string secondaryText
    required property string secondaryEditText
    required property int secondaryTag
    required property bool isVolumeEditable
    required property bool isVolumeUnset
    required property string formatCustomVolumeLabel
    required property bool isNewProduct
    required property bool hasRecommendation

    readonly property bool wide: width >= 700

    implicitHeight: card.implicitHeight + Theme.spaceM

    Accessible.role: Accessible.ListItem
    Accessible.name: productBrandNameLabel + " " + productTypeLabel

    Rectangle {
        id: card

        width: parent.width
        implicitHeight: grid.implicitHeight + 2 * Theme.spaceM
        radius: Theme.radius
        color: Theme.surface
        border.width: 1
        border.color: Theme.hairline

        GridLayout {
            id: grid

            x: Theme.spaceM
            y: Theme.spaceM
            width: parent.width - 2 * Theme.spaceM
            columnSpacing: Theme.spaceM
            rowSpacing: Theme.spaceS

            RowLayout {
                Layout.row: 0
                Layout.column: 0
                Layout.fillWidth: true
                spacing: Theme.spaceM

                ResourceImage {
                    Layout.preferredWidth: 56
                    Layout.preferredHeight: 56
                    radius: 10
                    source: cell.productImage
                    mat: Theme.paper
                    placeholderIcon: "bottle"
                    fillMode: Image.PreserveAspectFit
                }
                Column {
                    Layout.fillWidth: true
                    spacing: 2

                    Text {
                        objectName: "productBrandNameLabel" + cell.index
                        width: parent.width
                        text: cell.productBrandNameLabel
                        color: Theme.ink
                        elide: Text.ElideRight
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontLarge
                        font.weight: Font.Bold
                    }
                    Text {
                        width: parent.width
                        text: cell.productTypeLabel + (cell.formatCustomVolumeLabel !== "" ? "  ·  " + cell.formatCustomVolumeLabel : "")
                        color: Theme.mutedInk
                        elide: Text.ElideRight
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontBody
                    }
                }
                IconButton {
                    objectName: "deleteProductButton" + cell.index
                    visible: !cell.wide
                    icon: "trash"
                    colour: Theme.danger
                    text: "Borrar " + cell.productBrandNameLabel + " " + cell.productTypeLabel
                    onClicked: cell.controller.deleteProductButton(cell.index)
                }
            }

            RowLayout {
                Layout.row: cell.wide ? 0 : 1
                Layout.column: cell.wide ? 1 : 0
                Layout.fillWidth: !cell.wide
                visible: cell.controller.primaryPriceVisible || cell.controller.secondaryPriceVisible
                spacing: Theme.spaceM

                PriceField {
                    objectName: "retailPrimaryPriceTextField" + cell.primaryTag
                    Layout.fillWidth: !cell.wide
                    Layout.preferredWidth: 124
                    visible: cell.controller.primaryPriceVisible
                    label: "PVP Rec"
                    emphasised: true
                    displayText: cell.primaryText
                    editText: cell.primaryEditText
                    onFinished: (text) => cell.controller.priceFieldDidEndEditing(cell.primaryTag, text)
                }
                PriceField {
                    objectName: "retailSecondaryPriceTextField" + cell.secondaryTag
                    Layout.fillWidth: !cell.wide
                    Layout.preferredWidth: 124
                    visible: cell.controller.secondaryPriceVisible
                    label: cell.controller.orderBySecondaryTitle
                    displayText: cell.secondaryText
                    editText: cell.secondaryEditText
                    onFinished: (text) => cell.controller.priceFieldDidEndEditing(cell.secondaryTag, text)
                }
            }

            RowLayout {
                Layout.row: cell.wide ? 0 : 2
                Layout.column: cell.wide ? 2 : 0
                Layout.alignment: Qt.AlignBottom
                Layout.fillWidth: !cell.wide
                // As wide in every row, so that the prices stand in a column.
                Layout.preferredWidth: cell.wide ? 340 : implicitWidth
                spacing: Theme.spaceXS

                Chip {
                    objectName: "newProductButton" + cell.index
                    text: "Nuevo"
                    icon: cell.isNewProduct ? "check" : "plus"
                    tappable: true
                    selected: cell.isNewProduct
                    Accessible.role: Accessible.CheckBox
                    Accessible.checkable: true
                    Accessible.checked: cell.isNewProduct
                    onClicked: cell.controller.newProductButton(cell.index)
                }
                Chip {
                    objectName: "editVolumeButton" + cell.index
                    visible: cell.isVolumeEditable
                    text: cell.isVolumeUnset ? "Volumen" : cell.formatCustomVolumeLabel
                    icon: "glass"
                    tappable: true
                    tone: cell.isVolumeUnset ? "amber" : "neutral"
                    accessibleName: "Cambiar el volumen"
                    onClicked: cell.controller.editVolumeButton(cell.index)
                }
                Item { Layout.fillWidth: true }
                IconButton {
                    objectName: "priceRecommendation" + cell.index
                    opacity: cell.hasRecommendation ? 1 : 0
                    enabled: cell.hasRecommendation
                    icon: "euro"
                    text: "Precio recomendado"
                    onClicked: cell.controller.priceRecommendation(cell.index)
                }
                IconButton {
                    objectName: cell.wide ? "deleteProductButton" + cell.index : ""
                    visible: cell.wide
                    icon: "trash"
                    colour: Theme.danger
                    text: "Borrar " + cell.productBrandNameLabel + " " + cell.productTypeLabel
                    onClicked: cell.controller.deleteProductButton(cell.index)
                }
            }
        }
    }
}
