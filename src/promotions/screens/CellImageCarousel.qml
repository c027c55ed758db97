import QtQuick
import Kavor.Ui

// A picture of the gallery: the poster and what it is.
Tappable {
    id: cell

    required property int index
    required property string name
    required property string brand
    required property string detail
    required property string image
    property bool ringed: true // shows that the keyboard is here
    readonly property bool current: GridView.isCurrentItem && activeFocus && ringed

    objectName: "collectionViewCell" + index
    focus: GridView.isCurrentItem
    activeFocusOnTab: false
    padding: Theme.spaceS
    accessibleName: name + ", " + brand
    Accessible.description: detail

    background: Rectangle {
        anchors.fill: parent
        anchors.margins: 4
        radius: Theme.radius
        color: cell.down ? Theme.sunken : Theme.surface
        border.width: cell.current ? 2 : 1
        border.color: cell.current ? Theme.amber : cell.hot ? Theme.mutedInk : Theme.hairline
    }
    contentItem: Item {
        ResourceImage {
            objectName: "imageView"
            anchors.top: parent.top
            anchors.topMargin: Theme.spaceS
            anchors.bottom: words.top
            anchors.bottomMargin: Theme.spaceS
            x: Theme.spaceS
            width: parent.width - 2 * x
            radius: 8
            source: cell.image
            mat: "transparent"
            fillMode: Image.PreserveAspectFit
        }
        Column {
            id: words

            anchors.bottom: parent.bottom
            anchors.bottomMargin: Theme.spaceS
            x: Theme.spaceS
            width: parent.width - 2 * x
            spacing: 2

            Text {
                width: parent.width
                text: cell.name
                color: Theme.ink
                elide: Text.ElideRight
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
                font.weight: Font.Bold
            }
            HelpText { width: parent.width; text: cell.brand; elide: Text.ElideRight; maximumLineCount: 1 }
            HelpText { width: parent.width; text: cell.detail; elide: Text.ElideRight; maximumLineCount: 1 }
        }
    }
}
