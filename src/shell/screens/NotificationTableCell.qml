import QtQuick
import Kavor.Screens
import Kavor.Ui

// One message: the title always, the description and the picture where it has them.
Item {
    id: cell

    property string title: ""
    property string description: ""
    property string image: ""
    property bool separator: true

    implicitHeight: Math.max(words.implicitHeight, image !== "" ? 88 : 0) + 2 * Theme.spaceL

    ResourceImage {
        id: picture

        x: Theme.spaceXL
        y: Theme.spaceL
        width: cell.image !== "" ? 88 : 0
        height: 88
        visible: cell.image !== ""
        source: cell.image
        placeholderIcon: "bell"
        text: cell.title
    }
    Column {
        id: words

        anchors.left: picture.right
        anchors.leftMargin: picture.visible ? Theme.spaceL : 0
        anchors.right: parent.right
        anchors.rightMargin: Theme.spaceXL
        y: Theme.spaceL
        spacing: Theme.spaceXS

        Text {
            width: parent.width
            text: cell.title
            color: Theme.ink
            wrapMode: Text.Wrap
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontLarge
            font.weight: Font.Bold
        }
        Text {
            width: parent.width
            visible: text !== ""
            text: cell.description
            color: Theme.mutedInk
            wrapMode: Text.Wrap
            lineHeight: 1.15
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
        }
    }
    Rectangle {
        anchors.bottom: parent.bottom
        x: Theme.spaceXL
        width: parent.width - 2 * x
        height: 1
        visible: cell.separator
        color: Theme.hairline
    }
}
