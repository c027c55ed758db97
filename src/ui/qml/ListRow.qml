import QtQuick
import Kavor.Ui

// A row of a list: drawing or picture, one or two lines, a detail at the right, a chevron where it leads on.
Tappable {
    id: row

    property string text: ""
    property string detail: "" // second line
    property string value: ""  // at the right
    property string icon: ""
    property color iconColour: Theme.bottle
    property bool chevron: false
    property bool selected: false
    property bool separator: true
    property alias leading: leadingSlot.data   // replaces the drawing
    property alias trailing: trailingSlot.data // stands before the chevron

    accessibleName: text
    Accessible.description: detail
    Accessible.selected: selected
    implicitWidth: 280
    implicitHeight: Math.max(56, implicitContentHeight + topPadding + bottomPadding)
    topPadding: Theme.spaceS
    bottomPadding: Theme.spaceS
    leftPadding: Theme.spaceL
    rightPadding: Theme.spaceL
    opacity: enabled ? 1 : 0.45

    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.margins: 3
            radius: 9
            color: row.selected ? Theme.amberTint : row.down ? Theme.hairline
                 : row.hot && row.acceptsTaps ? Theme.sunken : "transparent"

            Rectangle {
                visible: row.selected
                anchors.verticalCenter: parent.verticalCenter
                width: 4
                height: Math.min(28, parent.height - 12)
                radius: 2
                color: Theme.amber
            }
        }
        Rectangle {
            visible: row.separator
            anchors.bottom: parent.bottom
            x: row.leftPadding
            width: parent.width - 2 * x
            height: 1
            color: Theme.hairline
        }
        FocusRing { shown: row.visualFocus; anchors.margins: 2; corner: 8 }
    }

    contentItem: Item {
        implicitHeight: Math.max(texts.implicitHeight, leadingSlot.height, trailingSlot.height)

        Item {
            id: leadingSlot

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            width: childrenRect.width
            height: childrenRect.height

            Icon { visible: row.icon !== ""; name: row.icon; colour: row.iconColour; size: row.icon !== "" ? 24 : 0 }
        }
        Column {
            id: texts

            anchors.left: leadingSlot.right
            anchors.leftMargin: leadingSlot.width > 0 ? Theme.spaceM : 0
            anchors.right: note.left
            anchors.rightMargin: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2

            Text {
                width: parent.width
                text: row.text
                color: Theme.ink
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
                font.weight: row.selected ? Font.Bold : Font.Medium
                elide: Text.ElideRight
                maximumLineCount: 2
                wrapMode: Text.Wrap
            }
            HelpText { width: parent.width; text: row.detail; elide: Text.ElideRight; maximumLineCount: 2 }
        }
        Text {
            id: note

            anchors.right: trailingSlot.left
            anchors.rightMargin: trailingSlot.width > 0 ? Theme.spaceS : 0
            anchors.verticalCenter: parent.verticalCenter
            text: row.value
            color: Theme.mutedInk
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
        }
        Item {
            id: trailingSlot

            anchors.right: arrow.left
            anchors.rightMargin: arrow.visible && width > 0 ? Theme.spaceS : 0
            anchors.verticalCenter: parent.verticalCenter
            width: childrenRect.width
            height: childrenRect.height
        }
        Icon {
            id: arrow

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: row.chevron
            width: visible ? 20 : 0
            name: "chevron-right"
            size: 20
            colour: Theme.mutedInk
        }
    }
}
