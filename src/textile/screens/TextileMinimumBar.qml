import QtQuick
import Kavor.Screens
import Kavor.Ui

// What the cart holds, and how far it is from the smallest order.
Item {
    id: bar

    required property TextileCart cart

    implicitWidth: 240
    implicitHeight: column.implicitHeight

    Column {
        id: column

        width: parent.width
        spacing: Theme.spaceXS

        Text {
            objectName: "addedElementsLabel"
            width: parent.width
            text: bar.cart.summary
            color: Theme.ink
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
            font.weight: Font.Medium
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        ProgressLine {
            width: parent.width
            visible: bar.cart.minimumText !== ""
            value: bar.cart.share
            tone: bar.cart.enough ? "success" : "amber"
        }
        Text {
            objectName: "minimumText"
            width: parent.width
            visible: text !== ""
            text: bar.cart.minimumText
            color: bar.cart.enough ? Theme.success : Theme.amberDark
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
            font.weight: Font.Medium
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
