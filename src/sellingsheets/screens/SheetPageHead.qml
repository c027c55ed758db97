import QtQuick
import Kavor.Kit
import Kavor.Screens
import Kavor.Ui

// The head of the small page: what the sheet is about, until when it holds, and its style in small.
Rectangle {
    id: head

    required property SheetPage page
    property real unit: 3

    height: Math.max(picture.visible ? picture.height : 0, headings.implicitHeight) + 8 * unit
    color: Theme.bottle

    component Line: Text {
        width: parent.width
        visible: text !== ""
        color: Theme.inverseInk
        wrapMode: Text.Wrap
        maximumLineCount: 2
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
        font.family: Theme.fontFamily
    }

    ResourceImage {
        id: picture

        objectName: "pageStyle"
        x: 5 * head.unit
        anchors.verticalCenter: parent.verticalCenter
        visible: head.page.styleImage !== ""
        width: 16 * head.unit
        height: 22 * head.unit
        radius: 2
        ground: head.color
        source: head.page.styleImage
        placeholderIcon: "sellingsheet"
        fillMode: Image.PreserveAspectFit
    }
    Column {
        id: headings

        anchors.verticalCenter: parent.verticalCenter
        anchors.left: picture.visible ? picture.right : parent.left
        anchors.leftMargin: (picture.visible ? 4 : 5) * head.unit
        anchors.right: parent.right
        anchors.rightMargin: 5 * head.unit
        spacing: head.unit

        Line {
            objectName: "pageTitle"
            text: head.page.title !== "" ? head.page.title : "Título"
            opacity: head.page.title !== "" ? 1 : 0.6
            maximumLineCount: 3
            font.pixelSize: Math.max(9, 7 * head.unit)
            font.weight: Font.Bold
        }
        Line {
            text: head.page.subtitle
            font.pixelSize: Math.max(8, 4.5 * head.unit)
        }
        Line {
            text: head.page.validity
            color: Theme.amber
            font.pixelSize: Math.max(8, 4 * head.unit)
            font.weight: Font.Medium
        }
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: head.unit
        color: Theme.amber
    }
}
