import QtQuick

// The frame that all fields share.
Rectangle {
    property bool active: false
    property bool wrong: false
    property bool usable: true

    radius: Theme.radius
    color: !usable ? Theme.sunken : Theme.surface
    border.width: active ? 2 : 1
    border.color: wrong ? Theme.danger : active ? Theme.amber : Theme.hairline
}
