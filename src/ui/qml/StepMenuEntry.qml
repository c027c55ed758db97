import QtQuick
import Kavor.Ui

// One entry of StepMenu.
Tappable {
    id: entry

    property string text: ""
    property string icon: ""
    property string badge: ""
    property bool selected: false
    property bool done: false
    property bool vertical: true
    readonly property color tone: selected ? Theme.bottle : Theme.ink

    accessibleName: text
    Accessible.role: Accessible.PageTab
    Accessible.selected: selected
    implicitWidth: Math.max(76, Math.min(116, metrics.advanceWidth + 20))
    padding: 0
    opacity: enabled ? 1 : 0.4

    TextMetrics { id: metrics; text: entry.text; font: label.font }

    background: Rectangle {
        radius: Theme.radius
        color: entry.selected ? Theme.amberTint : entry.down ? Theme.hairline : entry.hot ? Theme.sunken : "transparent"

        Rectangle {
            visible: entry.selected
            x: entry.vertical ? 0 : (parent.width - width) / 2
            y: entry.vertical ? (parent.height - height) / 2 : parent.height - height
            width: entry.vertical ? 4 : 32
            height: entry.vertical ? 28 : 4
            radius: 2
            color: Theme.amber
        }
        FocusRing { shown: entry.visualFocus; anchors.margins: 0 }
    }

    contentItem: Item {
        Icon {
            id: drawing

            x: entry.vertical ? 16 : (parent.width - width) / 2
            y: entry.vertical ? (parent.height - height) / 2 : 8
            name: entry.icon
            size: entry.vertical ? 24 : 22
            colour: entry.selected ? Theme.bottle : Theme.mutedInk
        }
        Text {
            id: label

            x: entry.vertical ? 52 : 4
            y: entry.vertical ? 0 : 34
            width: entry.vertical ? parent.width - x - (mark.visible || count.visible ? 36 : 8) : parent.width - 8
            height: entry.vertical ? parent.height : parent.height - y - 4
            verticalAlignment: entry.vertical ? Text.AlignVCenter : Text.AlignTop
            horizontalAlignment: entry.vertical ? Text.AlignLeft : Text.AlignHCenter
            text: entry.text
            color: entry.tone
            elide: Text.ElideRight
            wrapMode: entry.vertical ? Text.Wrap : Text.NoWrap
            maximumLineCount: entry.vertical ? 2 : 1
            font.family: Theme.fontFamily
            font.pixelSize: entry.vertical ? Theme.fontBody : Theme.fontSmall
            font.weight: entry.selected ? Font.Bold : Font.Medium
        }
        Icon {
            id: mark

            x: entry.vertical ? parent.width - 28 : drawing.x + 24
            y: entry.vertical ? (parent.height - height) / 2 : 4
            visible: entry.done && entry.badge === ""
            name: "check"
            size: entry.vertical ? 18 : 14
            weight: 2.5
            colour: Theme.success
        }
        Badge {
            id: count

            x: entry.vertical ? parent.width - width - 10 : drawing.x + 18
            y: entry.vertical ? (parent.height - height) / 2 : 2
            text: entry.badge
        }
    }
}
