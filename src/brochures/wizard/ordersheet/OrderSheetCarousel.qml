import QtQuick
import Kavor.Ui
import Kavor.Screens

// The order sheets as large pictures. Entry 0 is the absence of one.
Card {
    id: card

    required property BrochureOrderSheetViewController controller
    property real sheetHeight: 320
    readonly property int currentEntry: controller.currentIndex

    function follow(): void {
        carousel.currentIndex = currentEntry;
    }

    onCurrentEntryChanged: follow()
    Component.onCompleted: {
        const view = carousel.view;
        view.highlightMoveDuration = 0; // the chosen one stands in the middle from the first frame
        follow();
        view.highlightMoveDuration = Theme.normal;
    }

    SectionTitle { width: parent.width; icon: "ordersheet"; text: "Comandero" }

    Carousel {
        id: carousel

        objectName: "orderSheetCarousel"
        width: parent.width
        height: card.sheetHeight
        itemWidth: Math.min(260, width * 0.72)
        text: "Comanderos"
        model: card.controller.carousel
        onSelected: (index) => card.controller.carouselCurrentItemIndexDidChange(index)

        delegate: Item {
            id: entry

            required property int index
            required property string entryName
            required property string entryReference
            required property string entryImage
            readonly property bool current: ListView.isCurrentItem

            width: carousel.itemWidth
            height: ListView.view ? ListView.view.height : 300

            Accessible.role: Accessible.ListItem
            Accessible.name: entryName

            Rectangle { // selectedOrderSheetFrame
                anchors.fill: parent
                anchors.margins: 2
                radius: Theme.radius
                color: entry.current ? Theme.amberTint : Theme.paper
                border.width: entry.current ? 3 : 1
                border.color: entry.current ? Theme.amber : Theme.hairline
            }
            Icon { // in place of a picture
                anchors.centerIn: picture
                visible: entry.index === 0
                name: "circle-close"
                size: 56
                colour: Theme.mutedInk
            }
            ResourceImage {
                id: picture

                anchors.top: parent.top
                anchors.bottom: words.top
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.margins: Theme.spaceM
                visible: entry.index > 0
                ground: entry.current ? Theme.amberTint : Theme.paper
                mat: "transparent"
                source: entry.entryImage
                placeholderIcon: "ordersheet"
                fillMode: Image.PreserveAspectFit
            }
            Column {
                id: words

                anchors.bottom: parent.bottom
                anchors.bottomMargin: Theme.spaceM
                x: Theme.spaceM
                width: parent.width - 2 * x
                spacing: 2

                Text {
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    text: entry.entryName
                    color: Theme.ink
                    wrapMode: Text.WordWrap
                    maximumLineCount: 2
                    elide: Text.ElideRight
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontBody
                    font.weight: Font.Bold
                }
                HelpText { width: parent.width; horizontalAlignment: Text.AlignHCenter; text: entry.entryReference }
            }
        }
    }
}
