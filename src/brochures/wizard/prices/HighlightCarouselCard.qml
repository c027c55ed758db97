import QtQuick
import Kavor.Ui
import Kavor.Screens

// Chooses the format that the menu highlights. Entry 0 of the carousel is "no highlight".
Card {
    id: card

    required property HighlightZone zone

    function follow(animated: bool): void {
        const view = carousel.view;
        if (!animated)
            view.highlightMoveDuration = 0;
        carousel.currentIndex = zone.currentIndex;
        view.highlightMoveDuration = Theme.normal;
    }

    Component.onCompleted: follow(false)

    Connections {
        target: card.zone
        function onScrolled(index: int, animated: bool): void {
            card.follow(animated);
        }
    }

    SectionTitle {
        width: parent.width
        icon: "star"
        text: "Producto destacado"
    }
    HelpText {
        objectName: "informationCarouselLabel"
        width: parent.width
        text: card.zone.informationCarouselLabel
        tone: card.zone.carouselEnabled ? "neutral" : "danger"
    }
    HelpText {
        objectName: "withoutHighlightedProductsLabel"
        width: parent.width
        visible: card.zone.withoutHighlightedProductsVisible
        text: "Ninguno de los productos seleccionados se puede destacar."
    }
    AppButton {
        objectName: "removeHighlightButton"
        visible: card.zone.removeHighlightVisible
        text: "Quitar el destacado"
        icon: "close"
        kind: "secondary"
        onClicked: {
            card.zone.removeHighlight();
            if (card.zone.carouselEnabled)
                carousel.forceActiveFocus(Qt.OtherFocusReason);
        }
    }
    Carousel {
        id: carousel

        objectName: "productsHighlightableCarousel"
        width: parent.width
        height: 132
        visible: card.zone.carouselVisible
        enabled: card.zone.carouselEnabled
        opacity: card.zone.carouselEnabled ? 1 : 0.25
        itemWidth: Math.min(260, width * 0.7)
        showDots: false
        text: "Producto destacado"
        model: card.zone
        onSelected: (index) => card.zone.carouselCurrentItemIndexDidChange(index)

        delegate: Item {
            id: entry

            required property int index
            required property string entryText
            required property string entryDetail
            required property string entryImage
            readonly property bool current: ListView.isCurrentItem

            width: carousel.itemWidth
            height: ListView.view ? ListView.view.height : 120

            Rectangle { // selectorFrameView
                anchors.fill: parent
                anchors.margins: 2
                radius: Theme.radius
                color: entry.current ? Theme.amberTint : Theme.paper
                border.width: entry.current ? 2 : 1
                border.color: entry.current ? Theme.amber : Theme.hairline
            }
            ResourceImage {
                id: picture

                x: Theme.spaceM
                anchors.verticalCenter: parent.verticalCenter
                width: entry.width < 250 ? 64 : 84
                height: width
                radius: 10
                ground: entry.current ? Theme.amberTint : Theme.paper
                mat: "transparent"
                source: entry.entryImage
                placeholderIcon: entry.index === 0 ? "circle-close" : "bottle"
                fillMode: Image.PreserveAspectFit
            }
            Column {
                anchors.left: picture.right
                anchors.leftMargin: Theme.spaceM
                anchors.right: parent.right
                anchors.rightMargin: Theme.spaceM
                anchors.verticalCenter: parent.verticalCenter
                spacing: 2

                Text {
                    width: parent.width
                    text: entry.entryText
                    color: Theme.ink
                    wrapMode: Text.WordWrap
                    maximumLineCount: 2
                    elide: Text.ElideRight
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontBody
                    font.weight: Font.Bold
                }
                HelpText { width: parent.width; text: entry.entryDetail; maximumLineCount: 2; elide: Text.ElideRight }
            }
        }
    }
    Text {
        objectName: "brandAndProductHighlightedLabel"
        width: parent.width
        visible: card.zone.carouselVisible
        horizontalAlignment: Text.AlignHCenter
        text: card.zone.brandAndProductHighlightedLabel
        color: Theme.bottle
        wrapMode: Text.Wrap
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontBody
        font.weight: Font.Bold
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    HelpText {
        objectName: "firstLabelInformation"
        width: parent.width
        visible: card.zone.firstInformationVisible
        tone: "danger"
        text: "El producto destacado ocupa más espacio y no cabe con las marcas seleccionadas."
    }
}
