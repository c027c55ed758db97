import QtQuick
import Kavor.Ui

// The ground of a day in the calendar of a party.
Item {
    id: ground

    property bool isToday: false
    property bool hatched: false
    property bool dim: false
    property bool selected: false
    property bool pressed: false
    property bool hovered: false

    Item { // strokes from lower left to upper right
        anchors.fill: parent
        visible: ground.hatched && !ground.selected
        clip: true

        Repeater {
            model: Math.ceil((ground.width + ground.height) / 7) + 1

            Rectangle {
                required property int index

                x: index * 7 - ground.height * 1.25
                y: ground.height / 2 - 1
                width: ground.height * 1.5
                height: 1.5
                rotation: -45
                color: Qt.darker(Theme.hairline, 1.12)
                antialiasing: true
            }
        }
    }
    Rectangle {
        anchors.centerIn: parent
        width: Math.min(parent.width, parent.height)
        height: width
        radius: width / 2
        color: ground.selected ? Theme.bottle : ground.pressed ? Theme.hairline : ground.hovered ? Theme.sunken
             : ground.dim ? Theme.sunken : "transparent"
        border.width: ground.isToday ? 2 : 0
        border.color: Theme.amber
    }
}
