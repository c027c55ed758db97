import QtQuick
import Kavor.Ui

// What the rows of both lists share: the card, a line at its head, what is told, and its buttons at the foot.
Tappable {
    id: cell

    property bool pooled: false // kept by the list for another row
    property alias head: headSlot.data
    property alias told: toldSlot.data       // a column across the card
    property alias foot: footSlot.data       // a column beside the buttons
    property alias buttons: buttonSlot.data

    visible: !pooled // for screen readers too
    ListView.onPooled: pooled = true
    ListView.onReused: pooled = false
    implicitWidth: 320
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    topPadding: Theme.spaceM
    bottomPadding: Theme.spaceXS
    leftPadding: Theme.spaceM + 2
    rightPadding: Theme.spaceXS

    background: Rectangle {
        radius: Theme.radius
        color: cell.down ? Theme.sunken : Theme.surface
        border.width: 1
        border.color: cell.hot && cell.acceptsTaps ? Theme.mutedInk : Theme.hairline

        FocusRing { shown: cell.visualFocus; anchors.margins: 0; corner: Theme.radius - 3 }
    }

    contentItem: Item {
        implicitHeight: buttonSlot.y + Theme.touch

        Item {
            id: headSlot

            width: parent.width - Theme.spaceS
            height: 28
        }
        Column {
            id: toldSlot

            anchors.top: headSlot.bottom
            anchors.topMargin: Theme.spaceXS
            width: parent.width - Theme.spaceS
            spacing: Theme.spaceXS
        }
        Column {
            id: footSlot

            anchors.left: parent.left
            anchors.right: buttonSlot.left
            anchors.rightMargin: Theme.spaceS
            anchors.verticalCenter: buttonSlot.verticalCenter
            spacing: 2
        }
        Row {
            id: buttonSlot

            anchors.right: parent.right
            y: toldSlot.y + toldSlot.height
            height: Theme.touch
        }
    }
}
