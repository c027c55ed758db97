import QtQuick
import Kavor.Ui

// An element as a card: its picture, what it is, and whether it goes along; a lock on one that must.
Tappable {
    id: card

    required property int index
    required property string name
    required property string description
    required property string source
    required property bool required
    required property bool selected

    objectName: "item" + index
    padding: Theme.spaceS
    implicitHeight: picture.height + texts.implicitHeight + 3 * Theme.spaceS
    accessibleName: name + (required ? ", obligatorio" : "")
    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: selected || required

    background: Rectangle {
        radius: Theme.radius
        color: card.down ? Theme.sunken : card.selected ? Theme.surface : Theme.paper
        border.width: card.selected ? 2 : 1
        border.color: card.selected ? Theme.amber : card.hot ? Theme.mutedInk : Theme.hairline

        FocusRing { shown: card.visualFocus }
    }
    contentItem: Item {
        ResourceImage {
            id: picture

            width: parent.width
            height: width * 0.62
            source: card.source
            text: card.name
            radius: Theme.radius - 4
            ground: card.selected ? Theme.surface : Theme.paper
            placeholderIcon: "package"
            opacity: card.selected ? 1 : 0.45
        }
        Rectangle {
            anchors.right: picture.right
            anchors.top: picture.top
            anchors.margins: Theme.spaceS
            width: 32
            height: 32
            radius: 16
            color: card.required ? Theme.bottle : card.selected ? Theme.amber : Theme.surface
            border.width: card.selected ? 0 : 1
            border.color: Theme.mutedInk

            Icon {
                anchors.centerIn: parent
                visible: card.selected
                name: card.required ? "lock" : "check"
                size: 18
                weight: 2.5
                colour: card.required ? Theme.inverseInk : Theme.ink
            }
        }
        Column {
            id: texts

            anchors.top: picture.bottom
            anchors.topMargin: Theme.spaceS
            x: 4
            width: parent.width - 8
            spacing: 2

            Text {
                width: parent.width
                text: card.name
                color: Theme.ink
                wrapMode: Text.Wrap
                maximumLineCount: 2
                elide: Text.ElideRight
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
                font.weight: Font.Medium
            }
            HelpText {
                width: parent.width
                maximumLineCount: 3
                elide: Text.ElideRight
                text: card.required && card.description === "" ? "Obligatorio" : card.description
            }
        }
    }
}
