import QtQuick

// A turning ring of amber dots, for work without a measure.
Item {
    id: spinner

    property bool running: visible
    property color colour: Theme.amber
    property int step: 0

    implicitWidth: 40
    implicitHeight: 40

    Timer {
        interval: 100
        repeat: true
        running: spinner.running && spinner.visible
        onTriggered: spinner.step = (spinner.step + 1) % 8
    }

    Repeater {
        model: 8

        Rectangle {
            required property int index
            readonly property real angle: index * Math.PI / 4
            readonly property real reach: (spinner.width - width) / 2

            width: Math.max(3, spinner.width / 7)
            height: width
            radius: width / 2
            x: spinner.width / 2 - width / 2 + Math.sin(angle) * reach
            y: spinner.height / 2 - height / 2 - Math.cos(angle) * reach
            color: spinner.colour
            opacity: 1 - ((spinner.step - index + 8) % 8) * 0.115
        }
    }
}
