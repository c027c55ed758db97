import QtQuick
import Kavor.Ui
import Kavor.Kit

// Large covers: swipe, turn over, zoom; below them a strip of miniatures.
Column {
    id: card

    required property CoverGallery gallery
    property string text: "Estilos"
    property real coverHeight: 380
    readonly property int current: gallery.current
    property bool landscape: false
    readonly property real coverRatio: landscape ? 1.414 : 0.7075 // covers are sheets of paper

    spacing: Theme.spaceM

    function follow(): void {
        carousel.currentIndex = current;
    }

    onCurrentChanged: follow()
    Component.onCompleted: {
        const view = carousel.view;
        view.highlightMoveDuration = 0; // the chosen style stands in the middle from the first frame
        follow();
        view.highlightMoveDuration = Theme.normal;
    }

    Image { // tells whether the covers lie on their side
        visible: false
        asynchronous: true
        source: carousel.view.currentItem?.coverImage ?? ""
        sourceSize.width: 64
        sourceSize.height: 64
        onStatusChanged: {
            if (status === Image.Ready)
                card.landscape = implicitWidth > implicitHeight;
        }
    }

    Item {
        width: parent.width
        height: Math.max(name.height, place.height)

        Text {
            id: name

            objectName: "styleName"
            anchors.left: parent.left
            anchors.right: place.left
            text: card.gallery.currentName
            color: Theme.ink
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontTitle
            font.weight: Font.Bold
        }
        Text {
            id: place

            objectName: "selectedAndTotalNumberOfStylesLabel"
            anchors.right: parent.right
            anchors.baseline: name.baseline
            text: card.gallery.selectedAndTotalNumberOfStylesLabel
            color: Theme.mutedInk
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
        }
    }

    Carousel {
        id: carousel

        objectName: "styleCarousel"
        width: parent.width
        height: (itemWidth - 8) / card.coverRatio + 8
        itemWidth: Math.min(width * (card.landscape ? 0.84 : 0.72), (card.coverHeight - 8) * card.coverRatio + 8)
        showDots: false
        text: card.text
        model: card.gallery.covers
        onSelected: (index) => card.gallery.carouselCurrentItemIndexDidChange(index)
        onTapped: card.gallery.zoomStyleButtonAction()

        delegate: Item {
            id: item

            required property int index
            required property string coverName
            required property string coverImage
            required property bool isCover
            required property bool isPreferred
            readonly property bool current: ListView.isCurrentItem

            width: carousel.itemWidth
            height: ListView.view ? ListView.view.height : 300

            ResourceImage {
                id: cover

                anchors.fill: parent
                anchors.margins: item.current ? 4 : 16
                radius: Theme.radius
                ground: Theme.paper
                source: item.coverImage
                text: item.coverName + (item.isCover ? ", portada" : ", contraportada")
                placeholderIcon: "style"
                mat: Theme.surface
                fillMode: Image.PreserveAspectFit

                Behavior on anchors.margins { NumberAnimation { duration: Theme.fast } }
            }
            Rectangle {
                anchors.fill: cover
                anchors.margins: -3
                radius: Theme.radius + 3
                color: "transparent"
                border.width: item.current ? 3 : 1
                border.color: item.current ? Theme.amber : Theme.hairline
            }
            Rectangle { // the badge "preferente_big"
                objectName: "preferente_big" + item.index
                visible: item.isPreferred
                anchors.right: cover.right
                anchors.top: cover.top
                anchors.margins: Theme.spaceS
                width: badge.implicitWidth + 2 * Theme.spaceM
                height: 32
                radius: 16
                color: Theme.amber

                Row {
                    id: badge

                    anchors.centerIn: parent
                    spacing: 6

                    Icon { anchors.verticalCenter: parent.verticalCenter; name: "star"; size: 16; filled: true; colour: Theme.ink }
                    Text {
                        anchors.verticalCenter: parent.verticalCenter
                        text: "Preferente"
                        color: Theme.ink
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontSmall
                        font.weight: Font.Bold
                    }
                }
            }
        }
    }

    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: Theme.spaceS

        AppButton {
            objectName: "flipStyleButton"
            text: "Girar"
            icon: "flip"
            kind: "secondary"
            onClicked: card.gallery.flipStyleButtonAction()
        }
        AppButton {
            objectName: "zoomStyleButton"
            text: "Ampliar"
            icon: "zoom"
            kind: "secondary"
            onClicked: card.gallery.zoomStyleButtonAction()
        }
    }

    ThumbnailStrip {
        objectName: "styleStrip"
        width: parent.width
        model: card.gallery.covers.thumbnails
        currentIndex: card.gallery.current
        placeholderIcon: "style"
        onTapped: (index) => card.gallery.carouselCurrentItemIndexDidChange(index)
    }

    Loader {
        active: card.gallery.zoom !== null
        visible: false
        sourceComponent: StyleZoomView {
            controller: card.gallery.zoom
            onDismissed: card.gallery.closeZoom()
        }
    }
}
