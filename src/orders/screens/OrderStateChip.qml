import QtQuick
import Kavor.Ui

// What became of a draft, as drawing and word in its colour; on a dark ground, so that the colour can be read.
Rectangle {
    id: chip

    property string icon: ""
    property string text: ""
    property color colour: Theme.inverseInk

    implicitWidth: label.x + label.implicitWidth + Theme.spaceM
    implicitHeight: 28
    radius: 14
    color: Theme.ink

    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Icon {
        x: 10
        anchors.verticalCenter: parent.verticalCenter
        name: chip.icon
        size: 16
        weight: 2
        colour: chip.colour
    }
    Text {
        id: label

        x: 32
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, chip.width - x - Theme.spaceM)
        text: chip.text
        color: chip.colour
        elide: Text.ElideRight
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontSmall
        font.weight: Font.Medium
    }
}
