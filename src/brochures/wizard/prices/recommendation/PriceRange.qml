import QtQuick
import Kavor.Ui

// From the least to the greatest price, with the usual one as a dot and the rep's own as a mark above. Places from 0
// to 1; below 0 one is not known.
Item {
    id: range

    property real least: -1
    property real usual: -1
    property real greatest: -1
    property real own: -1
    property string description: ""
    readonly property real room: width - 16

    function at(place: real): real {
        return 8 + room * place;
    }

    implicitHeight: 34

    Accessible.role: Accessible.Graphic
    Accessible.name: description

    Rectangle { // the scale
        x: 8
        y: 20
        width: range.room
        height: 4
        radius: 2
        color: Theme.hairline
    }
    Rectangle {
        visible: range.least >= 0 && range.greatest >= 0
        x: range.at(Math.min(range.least, range.greatest)) - 4
        y: 18
        width: range.at(Math.max(range.least, range.greatest)) - x + 4
        height: 8
        radius: 4
        color: Theme.bottleLight
        opacity: 0.55
    }
    Rectangle {
        visible: range.usual >= 0
        x: range.at(range.usual) - 8
        y: 14
        width: 16
        height: 16
        radius: 8
        color: Theme.bottle
        border.width: 2
        border.color: Theme.surface
    }
    Rectangle { // the rep's own price
        visible: range.own >= 0
        x: range.at(range.own) - 2
        y: 4
        width: 4
        height: 28
        radius: 2
        color: Theme.amber

        Rectangle {
            x: -4
            width: 12
            height: 12
            radius: 6
            color: Theme.amber
            border.width: 2
            border.color: Theme.surface
        }
    }
}
