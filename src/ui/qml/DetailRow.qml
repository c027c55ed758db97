import QtQuick
import Kavor.Ui

// One thing that is known of what is shown: a drawing, what it is, and the text in full.
Item {
    id: detail

    property string icon: ""
    property string label: ""
    property string text: ""

    implicitWidth: 240
    implicitHeight: texts.implicitHeight

    Accessible.role: Accessible.StaticText
    Accessible.name: label + ": " + text

    Icon {
        y: 4
        name: detail.icon
        size: 22
        colour: Theme.mutedInk
    }
    Column {
        id: texts

        x: 34
        width: parent.width - x
        spacing: 2

        Text {
            width: parent.width
            text: detail.label
            color: Theme.mutedInk
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
            elide: Text.ElideRight
        }
        Text {
            width: parent.width
            text: detail.text
            color: Theme.ink
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
            wrapMode: Text.Wrap
        }
    }
}
