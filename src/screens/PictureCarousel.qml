import QtQuick
import Kavor.Ui

// Pictures with their names, {source, text} each, one of them chosen. It asks with `selected` and shows what
// `chosen` says, also when other pictures take the place of these.
Carousel {
    id: carousel

    property int chosen: 0
    property string placeholderIcon: "poster"

    itemWidth: 180
    onModelChanged: currentIndex = chosen
    onChosenChanged: currentIndex = chosen
    Component.onCompleted: currentIndex = chosen

    delegate: Item {
        id: entry

        required property var modelData
        readonly property bool current: ListView.isCurrentItem

        width: carousel.itemWidth
        height: ListView.view ? ListView.view.height : 180

        ResourceImage {
            id: picture

            anchors.fill: parent
            anchors.margins: 4
            anchors.bottomMargin: 28
            source: entry.modelData.source
            text: entry.modelData.text
            mat: Theme.paper
            placeholderIcon: carousel.placeholderIcon
            fillMode: Image.PreserveAspectFit
        }
        Rectangle {
            anchors.fill: picture
            anchors.margins: -3
            radius: Theme.radius + 3
            color: "transparent"
            border.width: entry.current ? 3 : 1
            border.color: entry.current ? Theme.amber : Theme.hairline
        }
        HelpText {
            anchors.bottom: parent.bottom
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: entry.modelData.text
            elide: Text.ElideRight
            maximumLineCount: 1
        }
    }
}
