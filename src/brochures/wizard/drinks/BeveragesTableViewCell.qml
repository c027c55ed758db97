import QtQuick
import Kavor.Ui
import Kavor.Screens

// A drink of the menu in one of its formats, with its prices. The name, the description and the way out of the menu
// stand at the product's first format. All in one row, or (where it is narrow) the format and its prices below.
Item {
    id: cell

    required property BrochureDrinkListViewController controller
    required property int index
    required property string beverageName
    required property string beverageDescription
    required property string formatName
    required property bool beforeDistinct
    required property bool withFormat
    required property string priceText
    required property string priceEditText
    required property string secondPriceText
    required property string secondPriceEditText
    property bool last: false // no row with a price below

    // Enter was pressed in a price: the table knows where its column goes on.
    signal priceReturned(bool secondary)

    readonly property bool twoPrices: controller.secondPriceLabel !== ""
    readonly property bool stacked: width < 560
    readonly property real inner: width - 2 * Theme.spaceM

    function priceField(secondary: bool): PriceField {
        return secondary ? secondPrice : firstPrice;
    }

    implicitHeight: card.height + Theme.spaceS

    Accessible.role: Accessible.ListItem
    Accessible.name: beverageName + " " + formatName

    Rectangle {
        id: card

        width: parent.width
        height: Math.max(named.visible ? named.y + named.height : 0,
                         cell.withFormat ? prices.y + prices.height : 0) + Theme.spaceS
        radius: Theme.radius
        color: Theme.surface
        border.width: 1
        border.color: Theme.hairline
    }

    Item {
        id: named

        x: Theme.spaceM
        y: Theme.spaceS
        visible: cell.beforeDistinct || !cell.stacked
        width: cell.stacked || !cell.withFormat ? cell.inner : format.x - x - Theme.spaceS
        height: Math.max(Theme.touch, names.implicitHeight,
                         !cell.stacked && cell.withFormat ? prices.height : 0)

        Column {
            id: names

            anchors.left: parent.left
            anchors.right: cell.beforeDistinct ? actions.left : parent.right
            anchors.rightMargin: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2

            Text {
                objectName: "beverageName" + cell.index
                width: parent.width
                text: cell.beverageName
                color: cell.beforeDistinct ? Theme.ink : Theme.mutedInk
                elide: Text.ElideRight
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontLarge
                font.weight: cell.beforeDistinct ? Font.Bold : Font.Normal
            }
            HelpText {
                width: parent.width
                text: cell.beforeDistinct ? cell.beverageDescription : ""
                elide: Text.ElideRight
                maximumLineCount: 2
            }
        }
        Row {
            id: actions

            anchors.right: parent.right
            anchors.bottom: parent.bottom
            visible: cell.beforeDistinct

            IconButton {
                objectName: "productDescription" + cell.index
                icon: "edit"
                text: "Descripción de " + cell.beverageName
                onClicked: cell.controller.selectedDrinks.productDescriptionButtonDelegateMethod(cell.index)
            }
            IconButton {
                objectName: "productDelete" + cell.index
                icon: "trash"
                colour: Theme.danger
                text: "Quitar " + cell.beverageName
                onClicked: cell.controller.selectedDrinks.productDeleteButtonDelegateMethod(cell.index)
            }
        }
    }

    Text {
        id: format

        objectName: "beverageFormat" + cell.index
        x: cell.stacked ? Theme.spaceM : prices.x - width - Theme.spaceM
        y: prices.y + prices.height - Theme.touch
        width: cell.stacked ? prices.x - Theme.spaceM - Theme.spaceS : Math.min(130, cell.inner * 0.18)
        height: Theme.touch
        visible: cell.withFormat
        verticalAlignment: Text.AlignVCenter
        text: cell.formatName
        color: Theme.ink
        wrapMode: Text.Wrap
        maximumLineCount: 2
        elide: Text.ElideRight
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontBody
    }
    Row {
        id: prices

        readonly property real fieldWidth: cell.stacked && cell.width < 420 ? 98 : 112

        x: removal.x - width
        y: cell.stacked && named.visible ? named.y + named.height : Theme.spaceS
        visible: cell.withFormat
        spacing: Theme.spaceS

        PriceField {
            id: firstPrice

            objectName: "beveragePrice" + cell.index
            width: prices.fieldWidth
            label: cell.controller.firstPriceLabel
            emphasised: true
            inColumn: true
            lastInColumn: cell.last && !cell.twoPrices
            displayText: cell.priceText
            editText: cell.priceEditText
            onEdited: (text) => cell.controller.selectedDrinks.priceEdited(cell.index, false, text)
            onFinished: (text) => cell.controller.selectedDrinks.productModifyPriceDelegateMethod(cell.index, false, text)
            onReturned: cell.priceReturned(false)
        }
        PriceField {
            id: secondPrice

            objectName: "beverageSecondPrice" + cell.index
            width: prices.fieldWidth
            visible: cell.twoPrices
            label: cell.controller.secondPriceLabel
            inColumn: true
            lastInColumn: cell.last
            displayText: cell.secondPriceText
            editText: cell.secondPriceEditText
            onEdited: (text) => cell.controller.selectedDrinks.priceEdited(cell.index, true, text)
            onFinished: (text) => cell.controller.selectedDrinks.productModifyPriceDelegateMethod(cell.index, true, text)
            onReturned: cell.priceReturned(true)
        }
    }
    IconButton {
        id: removal

        objectName: "formatDelete" + cell.index
        x: card.width - width - Theme.spaceXS
        y: prices.y + prices.height - height
        visible: cell.withFormat
        icon: "close"
        iconSize: 20
        colour: Theme.mutedInk
        text: "Quitar el formato " + cell.formatName + " de " + cell.beverageName
        onClicked: cell.controller.selectedDrinks.formatDeleteButtonDelegateMethod(cell.index)
    }
}
