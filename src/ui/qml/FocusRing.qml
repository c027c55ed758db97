import QtQuick

// Shown around a control that has the keyboard's focus.
Rectangle {
    property bool shown: false
    property real corner: Theme.radius

    anchors.fill: parent
    anchors.margins: -3
    radius: corner + 3
    color: "transparent"
    border.width: 2
    border.color: Theme.amber
    visible: shown
}
