import QtQuick

// How far a job is: value from 0 to 1. tone as in Chip; amber when nothing is said.
Item {
    id: line

    property real value: 0
    property string tone: "amber"
    property int thickness: 8
    property color track: Theme.hairline
    readonly property real shown: Math.max(0, Math.min(1, isNaN(value) ? 0 : value))
    property real drawn: shown // follows in its own time, but a new width at once

    Behavior on drawn { NumberAnimation { duration: Theme.normal } }

    implicitWidth: 160
    implicitHeight: thickness

    Accessible.role: Accessible.ProgressBar
    Accessible.name: Math.round(shown * 100) + " %"

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        height: line.thickness
        radius: height / 2
        color: line.track

        Rectangle {
            width: line.drawn <= 0 ? 0 : Math.max(parent.height, parent.width * line.drawn)
            height: parent.height
            radius: height / 2
            color: Theme.toneStrong(line.tone)
        }
    }
}
