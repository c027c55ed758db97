import QtQuick
import Kavor.Ui
import Kavor.Screens

// A format of the profit account: its four numbers, each of which may be typed, and its margin as a bar. One line of
// the table, or (on a phone) a card.
PriceCell {
    id: cell

    required property BrochureProfitAccountViewController controller
    required property string brandNameLabel
    required property string productNameLabel
    required property string pvpText
    required property string pvpEditText
    required property int pvpTag
    required property string netPriceText
    required property string netPriceEditText
    required property int netPriceTag
    required property string marginText
    required property string marginEditText
    required property int marginTag
    required property string percentText
    required property string percentEditText
    required property int percentTag
    required property real marginShare
    required property string marginTone
    required property bool isChanged
    required property string menuPriceLabel
    required property bool isWithoutNetPrice

    property bool wide: true
    property real columnWidth: 120
    readonly property real gap: wide ? Theme.spaceS : Theme.spaceM
    readonly property bool withNet: !controller.shownToCustomer
    readonly property int shownFields: withNet ? 4 : 3
    readonly property real inner: width - 2 * Theme.spaceM

    fields: [pvp, netPrice, margin, percent]
    implicitHeight: card.height + Theme.spaceS

    Accessible.role: Accessible.ListItem
    Accessible.name: brandNameLabel + " " + productNameLabel

    Rectangle {
        id: card

        width: parent.width
        height: (cell.wide ? Math.max(names.y + names.height, numbers.y + numbers.height) : numbers.y + numbers.height)
                + Theme.spaceM
        radius: Theme.radius
        color: cell.isChanged ? Theme.amberTint : Theme.surface
        border.width: 1
        border.color: cell.isChanged ? Theme.amber : Theme.hairline
    }

    Column {
        id: names

        x: Theme.spaceM
        y: Theme.spaceM
        width: cell.wide ? numbers.x - x - Theme.spaceL : cell.inner
        spacing: Theme.spaceXS

        Text {
            objectName: "brandNameLabel" + cell.index
            width: parent.width
            text: cell.brandNameLabel
            color: Theme.ink
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontLarge
            font.weight: Font.Bold
        }
        Text {
            objectName: "productNameLabel" + cell.index
            width: parent.width
            text: cell.productNameLabel
            color: Theme.mutedInk
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
        }
        ProgressLine {
            objectName: "marginBar" + cell.index
            width: parent.width
            value: cell.marginShare
            tone: cell.marginTone
            thickness: 10
            track: Theme.sunken
            Accessible.name: cell.controller.marginPercentCaption + " " + cell.percentText
        }
        HelpText {
            objectName: "changedMark" + cell.index
            width: parent.width
            visible: cell.isChanged
            text: cell.menuPriceLabel
            color: Theme.amberDark
            font.weight: Font.Medium
        }
        HelpText {
            width: parent.width
            visible: cell.isWithoutNetPrice && cell.withNet
            text: "Sin precio neto"
        }
    }

    Grid {
        id: numbers

        readonly property real fieldWidth: cell.wide ? cell.columnWidth : (cell.inner - cell.gap) / 2

        x: cell.wide ? cell.width - Theme.spaceM - width : Theme.spaceM
        y: cell.wide ? Theme.spaceM : names.y + names.height + Theme.spaceM
        columns: cell.wide ? cell.shownFields : 2
        columnSpacing: cell.gap
        rowSpacing: Theme.spaceS

        ProfitField {
            id: pvp

            controller: cell.controller
            inTable: cell.wide
            tag: cell.pvpTag
            objectName: "pvpTextField" + cell.index
            width: numbers.fieldWidth
            caption: cell.controller.pvpCaption
            emphasised: true
            displayText: cell.pvpText
            editText: cell.pvpEditText
            onReturned: cell.priceReturned(0)
        }
        ProfitField {
            id: netPrice

            controller: cell.controller
            inTable: cell.wide
            tag: cell.netPriceTag
            objectName: "netPriceTextField" + cell.index
            width: numbers.fieldWidth
            visible: cell.withNet
            caption: cell.controller.netPriceCaption
            displayText: cell.netPriceText
            editText: cell.netPriceEditText
            onReturned: cell.priceReturned(1)
        }
        ProfitField {
            id: margin

            controller: cell.controller
            inTable: cell.wide
            tag: cell.marginTag
            objectName: "marginTextField" + cell.index
            width: numbers.fieldWidth
            caption: cell.controller.marginCaption
            signed: true
            displayText: cell.marginText
            editText: cell.marginEditText
            onReturned: cell.priceReturned(2)
        }
        ProfitField {
            id: percent

            controller: cell.controller
            inTable: cell.wide
            tag: cell.percentTag
            objectName: "manginPerCentLabel" + cell.index
            width: numbers.fieldWidth
            caption: cell.controller.marginPercentCaption
            signed: true
            placeholder: "0%"
            displayText: cell.percentText
            editText: cell.percentEditText
            lastInColumn: cell.last
            onReturned: cell.priceReturned(3)
        }
    }
}
