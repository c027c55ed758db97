import QtQuick
import Kavor.Ui
import Kavor.Screens

// A selected format: its prices, its volume, its "new" mark, and the way out of the menu. All in one row, the prices
// beside the name, or (on a phone) everything below each other.
PriceCell {
    id: cell

    required property BrochurePriceSetterViewController controller
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

    readonly property bool twoPrices: controller.secondaryPriceVisible
    readonly property bool wide: width >= (twoPrices ? 900 : 700)
    readonly property bool stacked: !wide && width < 560
    readonly property real inner: width - 2 * Theme.spaceM

    fields: [primaryPrice, secondaryPrice]
    implicitHeight: card.height + Theme.spaceM

    Accessible.role: Accessible.ListItem
    Accessible.name: productBrandNameLabel + " " + productTypeLabel

    Rectangle {
        id: card

        width: parent.width
        height: Math.max(head.y + head.height, prices.visible ? prices.y + prices.height : 0, actions.y + actions.height)
                + Theme.spaceM
        radius: Theme.radius
        color: Theme.surface
        border.width: 1
        border.color: Theme.hairline
    }

    Item {
        id: head

        x: Theme.spaceM
        y: Theme.spaceM
        width: cell.stacked ? cell.inner
             : (cell.wide ? actions.x : card.width) - x - Theme.spaceM - (prices.visible ? prices.width + Theme.spaceM : 0)
        height: !cell.stacked && prices.visible ? prices.height : 56

        ResourceImage {
            id: picture

            anchors.verticalCenter: parent.verticalCenter
            width: 56
            height: 56
            radius: 10
            source: cell.productImage
            mat: Theme.paper
            placeholderIcon: "bottle"
            fillMode: Image.PreserveAspectFit
        }
        Column {
            anchors.left: picture.right
            anchors.leftMargin: Theme.spaceM
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
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
                text: cell.productTypeLabel
                      + (cell.formatCustomVolumeLabel !== "" ? "  ·  " + cell.formatCustomVolumeLabel : "")
                color: Theme.mutedInk
                elide: Text.ElideRight
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
            }
        }
    }

    Row {
        id: prices

        readonly property real fieldWidth: !cell.stacked ? 124
                                         : cell.twoPrices ? (cell.inner - spacing) / 2 : cell.inner

        x: cell.stacked ? Theme.spaceM : (cell.wide ? actions.x : card.width) - Theme.spaceM - width
        y: cell.stacked ? head.y + head.height + Theme.spaceS : Theme.spaceM
        visible: cell.controller.primaryPriceVisible
        spacing: Theme.spaceM

        PriceField {
            id: primaryPrice

            objectName: "retailPrimaryPriceTextField" + cell.primaryTag
            width: prices.fieldWidth
            label: "PVP Rec"
            emphasised: true
            inColumn: true
            lastInColumn: cell.last && !cell.twoPrices
            displayText: cell.primaryText
            editText: cell.primaryEditText
            onFinished: (text) => cell.controller.priceFieldDidEndEditing(cell.primaryTag, text)
            onReturned: cell.priceReturned(0)
        }
        PriceField {
            id: secondaryPrice

            objectName: "retailSecondaryPriceTextField" + cell.secondaryTag
            width: prices.fieldWidth
            visible: cell.twoPrices
            label: cell.controller.orderBySecondaryTitle
            inColumn: true
            lastInColumn: cell.last
            displayText: cell.secondaryText
            editText: cell.secondaryEditText
            onFinished: (text) => cell.controller.priceFieldDidEndEditing(cell.secondaryTag, text)
            onReturned: cell.priceReturned(1)
        }
    }

    Item {
        id: actions

        x: cell.wide ? card.width - Theme.spaceM - width : Theme.spaceM
        y: cell.wide ? Theme.spaceM + (head.height - height) / 2
         : (prices.visible ? Math.max(prices.y + prices.height, head.y + head.height) : head.y + head.height) + Theme.spaceS
        width: cell.wide ? 320 : cell.inner
        height: Theme.touch

        Row {
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
        }
        Row {
            anchors.right: parent.right

            IconButton {
                objectName: "priceRecommendation" + cell.index
                opacity: cell.hasRecommendation ? 1 : 0
                enabled: cell.hasRecommendation
                icon: "euro"
                text: "Precio recomendado"
                onClicked: cell.controller.priceRecommendation(cell.index)
            }
            IconButton {
                objectName: "deleteProductButton" + cell.index
                icon: "trash"
                colour: Theme.danger
                text: "Borrar " + cell.productBrandNameLabel + " " + cell.productTypeLabel
                onClicked: cell.controller.deleteProductButton(cell.index)
            }
        }
    }
}
