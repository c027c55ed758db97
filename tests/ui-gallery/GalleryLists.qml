import QtQuick
import QtQuick.Layouts
import Kavor.Ui

FormPage {
    id: page

    property int chosen: 2

    SectionTitle { text: "Estilo"; Layout.fillWidth: true; Layout.columnSpan: page.columns }
    Carousel {
        id: carousel

        objectName: "styles"
        Layout.fillWidth: true
        Layout.columnSpan: page.columns
        Layout.preferredHeight: 320
        itemWidth: 200
        model: 6
        currentIndex: 2
        delegate: Item {
            id: cell

            required property int index

            width: 200
            height: ListView.view.height

            Card {
                anchors.centerIn: parent
                width: parent.width
                selected: cell.ListView.isCurrentItem
                ResourceImage { width: parent.width; height: 210; source: galleryFolder + "/picture" + cell.index + ".png"; ground: parent.parent.ground ?? Theme.surface }
                Text { text: "Estilo " + (cell.index + 1); font.family: Theme.fontFamily; font.pixelSize: Theme.fontBody; color: Theme.ink }
            }
        }
    }
    ThumbnailStrip {
        Layout.fillWidth: true
        Layout.columnSpan: page.columns
        objectName: "brandStrip"
        model: [0, 1, 2, 3, 4, 5, 6].map((i) => ({ source: galleryFolder + "/picture" + i + ".png", text: "Marca " + (i + 1) }))
        currentIndex: page.chosen
        onTapped: (index) => page.chosen = index
    }
    Card {
        Layout.fillWidth: true
        Layout.columnSpan: page.columns
        padding: 0
        spacing: 0
        ListRow { width: parent.width; text: "Carta de Cervezas"; detail: "Bar La Ola · 12-03-2024 10:22:41"; icon: "beer"; chevron: true
            trailing: Chip { text: "Sincronizado"; dot: Theme.synced } }
        ListRow { width: parent.width; text: "Cartel de temporada"; detail: "Mesón del Puerto · 11-03-2024 18:02:10"; icon: "poster"; chevron: true; selected: true
            trailing: Chip { text: "Pendiente"; dot: Theme.pending } }
        ListRow { width: parent.width; text: "Camiseta de verano"; icon: "tshirt"; value: "24 uds."; separator: false; enabled: false }
    }
}
