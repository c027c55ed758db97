import QtQuick
import Kavor.Ui

// Holds a carousel with its arrows at both sides of it, so that they cover no card. They show where there is room for
// them; the carousel keeps `side` free at either end.
Item {
    id: holder

    required property Carousel middle
    readonly property bool shown: !Theme.compact && middle.count > 1 && width >= middle.itemWidth + 120
    readonly property real side: shown ? Theme.touch + Theme.spaceS : 0

    IconButton {
        objectName: holder.middle.objectName + "Previous"
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        visible: holder.shown
        enabled: holder.middle.enabled && holder.middle.currentIndex > 0
        framed: true
        icon: "chevron-left"
        text: "Anterior"
        onClicked: holder.middle.go(holder.middle.currentIndex - 1)
    }
    IconButton {
        objectName: holder.middle.objectName + "Next"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: holder.shown
        enabled: holder.middle.enabled && holder.middle.currentIndex < holder.middle.count - 1
        framed: true
        icon: "chevron-right"
        text: "Siguiente"
        onClicked: holder.middle.go(holder.middle.currentIndex + 1)
    }
}
