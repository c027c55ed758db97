import QtQuick
import Kavor.Ui

// Small pictures in a row. model: a list of {source, text}; `tapped(index)` when one is chosen.
FocusScope {
    id: strip

    property var model: []
    property int currentIndex: -1
    property real thumbnailSize: 72
    property bool showTexts: true
    property string placeholderIcon: "poster"

    signal tapped(int index)

    readonly property InView inView: InView { item: strip }

    implicitWidth: 320
    implicitHeight: thumbnailSize + (showTexts ? 26 : 0) + 8
    onCurrentIndexChanged: list.positionViewAtIndex(currentIndex, ListView.Contain)

    ListView {
        id: list

        anchors.fill: parent
        orientation: ListView.Horizontal
        spacing: Theme.spaceS
        leftMargin: 4
        rightMargin: 4
        clip: strip.inView.value
        focus: true
        model: strip.model ? (strip.model.length ?? strip.model) : 0
        boundsBehavior: Flickable.StopAtBounds

        FocusFollower { view: list }

        delegate: Tappable {
            id: thumbnail

            required property int index
            readonly property var entry: strip.model[index] ?? ({})
            readonly property bool chosen: index === strip.currentIndex

            objectName: strip.objectName + "Thumbnail" + index
            width: strip.thumbnailSize + 8
            height: strip.height
            accessibleName: entry.text ?? ""
            onClicked: strip.tapped(index)

            contentItem: Item {
                ResourceImage {
                    id: picture

                    x: 4
                    y: 4
                    width: strip.thumbnailSize
                    height: strip.thumbnailSize
                    radius: 8
                    ground: Theme.paper
                    source: thumbnail.entry.source ?? ""
                    placeholderIcon: strip.placeholderIcon
                }
                Rectangle {
                    anchors.fill: picture
                    anchors.margins: -2
                    radius: 10
                    color: "transparent"
                    border.width: thumbnail.chosen ? 3 : 1
                    border.color: thumbnail.chosen ? Theme.amber : Theme.hairline
                }
                Text {
                    anchors.top: picture.bottom
                    anchors.topMargin: 4
                    width: parent.width
                    visible: strip.showTexts
                    horizontalAlignment: Text.AlignHCenter
                    text: thumbnail.entry.text ?? ""
                    color: thumbnail.chosen ? Theme.ink : Theme.mutedInk
                    elide: Text.ElideRight
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontSmall
                    font.weight: thumbnail.chosen ? Font.Bold : Font.Normal
                }
                FocusRing { shown: thumbnail.visualFocus; anchors.margins: 0; corner: 10 }
            }
        }
    }
}
