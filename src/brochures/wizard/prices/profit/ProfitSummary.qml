import QtQuick
import Kavor.Ui
import Kavor.Screens

// What stands below the profit account: the mean margin, the lowest, what is missing, and the way back to the menu's
// prices.
Rectangle {
    id: summary

    required property BrochureProfitAccountViewController controller
    property bool wide: true

    implicitHeight: content.implicitHeight + 2 * Theme.spaceM
    color: Theme.surface

    Rectangle {
        width: parent.width
        height: 1
        color: Theme.hairline
    }
    Flow {
        id: content

        x: Theme.pageMargin
        y: Theme.spaceM
        width: parent.width - 2 * x
        spacing: summary.wide ? Theme.spaceXL : Theme.spaceM

        Figure {
            objectName: "meanMargin"
            visible: summary.controller.meanLabel !== ""
            caption: "Margen medio"
            text: summary.controller.meanLabel
        }
        Figure {
            objectName: "lowestMargin"
            visible: summary.controller.lowestLabel !== ""
            caption: "Margen más bajo"
            text: summary.controller.lowestLabel
        }
        Chip {
            objectName: "withoutNetPrice"
            visible: text !== "" && !summary.controller.shownToCustomer
            height: 36
            tone: "amber"
            icon: "warning"
            text: summary.controller.withoutNetPriceLabel
        }
        AppButton {
            objectName: "restoreMenuPrices"
            visible: summary.controller.differsFromMenu
            kind: "secondary"
            icon: "undo"
            text: "Volver a los precios de la carta"
            onClicked: summary.controller.restoreMenuPrices()
        }
    }

    component Figure: Column {
        id: figure

        property string caption: ""
        property string text: ""

        width: Math.min(parent ? parent.width : implicitWidth, implicitWidth)
        spacing: 2

        Accessible.role: Accessible.StaticText
        Accessible.name: caption + ": " + text

        Text {
            text: figure.caption
            color: Theme.mutedInk
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
        }
        Text {
            width: Math.min(implicitWidth, summary.width - 2 * Theme.pageMargin)
            text: figure.text
            color: Theme.ink
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontLarge
            font.weight: Font.Bold
        }
    }
}
