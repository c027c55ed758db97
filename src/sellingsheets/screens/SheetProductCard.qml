import QtQuick
import Kavor.Kit
import Kavor.Screens
import Kavor.Ui

// One product of a module: the brand, its formats, and how many boxes of the one chosen.
Card {
    id: card

    required property SheetProductChooser chooser
    property string title: ""
    property string boxes: ""

    signal boxesEdited(string typed)

    SectionTitle { width: parent.width; icon: "bottle"; text: card.title }
    ThumbnailStrip {
        objectName: card.objectName + "Brands"
        width: parent.width
        thumbnailSize: 60
        placeholderIcon: "bottle"
        model: card.chooser.brands
        currentIndex: card.chooser.brand
        onTapped: (index) => card.chooser.chooseBrand(index)
    }
    PictureCarousel {
        objectName: card.objectName + "Formats"
        width: parent.width
        height: 200
        itemWidth: 150
        text: card.title
        placeholderIcon: "package"
        model: card.chooser.formats
        chosen: card.chooser.format
        onSelected: (index) => card.chooser.chooseFormat(index)
        onTapped: (index) => card.chooser.chooseFormat(index)
    }
    TextRow {
        objectName: card.objectName + "Boxes"
        width: parent.width
        label: "Cajas"
        help: card.chooser.boxText
        inputMethodHints: Qt.ImhDigitsOnly
        text: card.boxes
        onEdited: (typed) => card.boxesEdited(typed)
    }
}
