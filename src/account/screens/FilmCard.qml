import QtQuick
import Kavor.Ui

// A film by its picture and name.
Tappable {
    id: card

    required property var film

    accessibleName: film.label
    implicitWidth: 280
    implicitHeight: picture.height + name.implicitHeight + 2 * Theme.spaceM

    background: Rectangle {
        radius: Theme.radius
        color: card.down ? Theme.sunken : Theme.surface
        border.width: 1
        border.color: card.hot ? Theme.mutedInk : Theme.hairline

        FocusRing { shown: card.visualFocus }
    }
    contentItem: Item {
        ResourceImage {
            id: picture

            x: 1
            y: 1
            width: parent.width - 2
            height: width * 9 / 16
            radius: Theme.radius - 1
            source: card.film.source
            placeholderIcon: "video"

            Rectangle {
                // In the corner: a picture may bear words, and a sign of its own.
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                anchors.margins: Theme.spaceS
                width: 40
                height: 40
                radius: 20
                color: Theme.bottle
                opacity: card.hot ? 1 : 0.88

                Icon {
                    anchors.centerIn: parent
                    anchors.horizontalCenterOffset: 2
                    name: "play"
                    size: 20
                    filled: true
                    colour: Theme.inverseInk
                }
            }
        }
        Text {
            id: name

            anchors.top: picture.bottom
            anchors.topMargin: Theme.spaceM
            x: Theme.spaceM
            width: parent.width - 2 * x
            text: card.film.label
            color: Theme.ink
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
            font.weight: Font.Medium
        }
    }
}
