import QtQuick
import Kavor.Ui

// How far a film is. A press or a drag asks for another place when it is let go; so do the arrow keys, by steps.
Item {
    id: bar

    property real share: 0
    property bool usable: true
    property string text: ""
    readonly property real shown: area.pressed ? area.wanted : share

    signal sought(real share)
    signal stepped(int seconds)

    implicitWidth: 200
    implicitHeight: Theme.touch
    activeFocusOnTab: usable
    opacity: usable ? 1 : 0.5

    Accessible.role: Accessible.Slider
    Accessible.name: "Posición del vídeo"
    Accessible.description: text

    Keys.onLeftPressed: stepped(-10)
    Keys.onRightPressed: stepped(10)

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        height: 6
        radius: 3
        color: Theme.bottleLight

        Rectangle {
            width: parent.width * bar.shown
            height: parent.height
            radius: 3
            color: Theme.amber
        }
    }
    Rectangle {
        x: bar.shown * (bar.width - width)
        anchors.verticalCenter: parent.verticalCenter
        width: 20
        height: 20
        radius: 10
        color: Theme.amber
        border.width: 3
        border.color: Theme.bottleDark

        FocusRing { shown: bar.activeFocus; corner: 10 }
    }
    MouseArea {
        id: area

        property real wanted: 0

        function follow(x: real): void {
            wanted = Math.max(0, Math.min(1, x / width));
        }

        anchors.fill: parent
        enabled: bar.usable
        preventStealing: true
        onPressed: (mouse) => follow(mouse.x)
        onPositionChanged: (mouse) => follow(mouse.x)
        onReleased: bar.sought(wanted)
    }
}
