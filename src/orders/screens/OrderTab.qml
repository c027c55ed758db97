import QtQuick
import Kavor.Ui

// One of the two tabs of a phone, with the count of its list.
Tappable {
    id: tab

    property string text: ""
    property int count: 0
    property bool current: false

    accessibleName: text + ", " + count
    Accessible.role: Accessible.PageTab
    Accessible.selected: current
    implicitHeight: Theme.touch

    background: Rectangle {
        radius: Theme.radius - 3
        color: tab.current ? Theme.surface : tab.down ? Theme.hairline : "transparent"
        border.width: tab.current ? 1 : 0
        border.color: Theme.hairline

        FocusRing { shown: tab.visualFocus }
    }

    contentItem: Item {
        Row {
            anchors.centerIn: parent
            spacing: Theme.spaceS

            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: tab.text
                color: tab.current ? Theme.bottle : Theme.mutedInk
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
                font.weight: tab.current ? Font.Bold : Font.Medium
            }
            Badge {
                anchors.verticalCenter: parent.verticalCenter
                text: tab.count
                tone: tab.current ? "bottle" : "amber"
            }
        }
    }
}
