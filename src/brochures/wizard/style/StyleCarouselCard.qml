import QtQuick
import Kavor.Ui
import Kavor.Screens

// The styles as large covers: swipe, turn over, zoom; below them a strip of miniatures.
Column {
    id: card

    required property BrochureStyleSelectorViewController controller
    property real coverHeight: 380
    readonly property int currentStyle: controller.currentStyle
    property bool landscape: false
    readonly property real coverRatio: landscape ? 1.414 : 0.7075 // covers are sheets of paper

    spacing: Theme.spaceM

    function follow(): void {
        carousel.currentIndex = currentStyle;
    }

    onCurrentStyleChanged: follow()
    Component.onCompleted: {
        const view = carousel.view;
        view.highlightMoveDuration = 0; // the chosen style stands in the middle from the first frame
        follow();
        view.highlightMoveDuration = Theme.normal;
    }

    Image { // tells whether the covers lie on their side
        visible: false
        asynchronous: true
        source: carousel.view.currentItem?.styleImage ?? ""
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
            text: card.controller.currentStyleName
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
            text: card.controller.selectedAndTotalNumberOfStylesLabel
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
        text: "Estilos"
        model: card.controller.styles
        onSelected: (index) => card.controller.carouselCurrentItemIndexDidChange(index)
        onTapped: card.controller.zoomStyleButtonAction()

        delegate: Item {
            id: item

            required property int index
            required property string styleName
            required property string styleImage
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
                source: item.styleImage
                text: item.styleName + (item.isCover ? ", portada" : ", contraportada")
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
            onClicked: card.controller.flipStyleButtonAction()
        }
        AppButton {
            objectName: "zoomStyleButton"
            text: "Ampliar"
            icon: "zoom"
            kind: "secondary"
            onClicked: card.controller.zoomStyleButtonAction()
        }
    }

    ThumbnailStrip {
        objectName: "styleStrip"
        width: parent.width
        model: card.controller.styles.thumbnails
        currentIndex: card.controller.currentStyle
        placeholderIcon: "style"
        onTapped: (index) => card.controller.carouselCurrentItemIndexDidChange(index)
    }
}
