import QtQuick
import Kavor.Kit
import Kavor.Ui

// A module on the small page: its boxes, and what they cost.
Rectangle {
    id: module

    property var entry: ({})
    property real unit: 3
    readonly property bool twofold: entry.second !== undefined

    height: Math.max(22 * unit, words.implicitHeight + 4 * unit)
    radius: 2 * unit
    color: Theme.paper
    border.width: 1
    border.color: Theme.hairline

    component Boxes: Item {
        id: boxes

        property var product: ({})

        width: 18 * module.unit
        height: 18 * module.unit

        ResourceImage {
            anchors.fill: parent
            radius: 4
            mat: "white"
            source: boxes.product.image ?? ""
            placeholderIcon: "package"
            fillMode: Image.PreserveAspectFit
        }
        Rectangle {
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            width: Math.max(height, times.implicitWidth + 2 * module.unit)
            height: Math.max(14, 6 * module.unit)
            radius: height / 2
            color: Theme.bottle

            Text {
                id: times

                anchors.centerIn: parent
                text: "×" + (boxes.product.boxes ?? "")
                color: Theme.inverseInk
                font.family: Theme.fontFamily
                font.pixelSize: Math.max(8, 3.6 * module.unit)
                font.weight: Font.Bold
            }
        }
    }

    Row {
        id: pictures

        x: 2 * module.unit
        anchors.verticalCenter: parent.verticalCenter
        spacing: module.unit

        Boxes { product: module.entry }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            visible: module.twofold
            text: "+"
            color: Theme.mutedInk
            font.family: Theme.fontFamily
            font.pixelSize: Math.max(9, 5 * module.unit)
        }
        Boxes {
            visible: module.twofold
            product: module.entry.second ?? ({})
        }
    }
    Column {
        id: words

        anchors.left: pictures.right
        anchors.leftMargin: 2 * module.unit
        anchors.right: parent.right
        anchors.rightMargin: 2 * module.unit
        anchors.verticalCenter: parent.verticalCenter
        spacing: 0.5 * module.unit

        Text {
            width: parent.width
            text: (module.entry.name ?? "") + (module.twofold ? " + " + module.entry.second.name : "")
            color: Theme.ink
            wrapMode: Text.Wrap
            maximumLineCount: 3
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignRight
            font.family: Theme.fontFamily
            font.pixelSize: Math.max(8, 3.4 * module.unit)
        }
        Text {
            width: parent.width
            text: module.entry.price ?? ""
            color: Theme.dangerDark
            horizontalAlignment: Text.AlignRight
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 8
            font.family: Theme.fontFamily
            font.pixelSize: Math.max(10, 6 * module.unit)
            font.weight: Font.Bold
        }
        Text {
            width: parent.width
            visible: text !== ""
            text: module.entry.bottle ?? ""
            color: Theme.ink
            horizontalAlignment: Text.AlignRight
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: Math.max(8, 3.2 * module.unit)
        }
        Text {
            width: parent.width
            visible: (module.entry.reference ?? "") !== ""
            text: "Ref. " + (module.entry.reference ?? "")
            color: Theme.mutedInk
            horizontalAlignment: Text.AlignRight
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: Math.max(8, 3.2 * module.unit)
        }
    }
}
