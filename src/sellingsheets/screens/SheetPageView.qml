import QtQuick
import Kavor.Kit
import Kavor.Screens
import Kavor.Ui

// The sheet as a small page of paper that grows with each module.
Item {
    id: paper

    required property SheetPage page
    readonly property real unit: width / 100
    property real maximumHeight: Infinity

    objectName: "sheetPage"
    implicitHeight: Math.min(maximumHeight, Math.max(width * 1.2, column.implicitHeight + 6 * unit))
    height: implicitHeight

    Accessible.role: Accessible.Graphic
    Accessible.name: "La hoja: " + page.text

    Rectangle {
        anchors.fill: parent
        radius: 4
        color: "white"
        border.width: 1
        border.color: Theme.hairline
    }
    Flickable {
        anchors.fill: parent
        anchors.margins: 1
        clip: true
        interactive: contentHeight > height
        contentHeight: column.implicitHeight + 4 * paper.unit
        boundsBehavior: Flickable.StopAtBounds

        Column {
            id: column

            width: parent.width
            spacing: 2 * paper.unit

            SheetPageHead {
                width: parent.width
                page: paper.page
                unit: paper.unit
            }
            Text {
                objectName: "pageEmpty"
                width: parent.width
                topPadding: 8 * paper.unit
                bottomPadding: 8 * paper.unit
                visible: paper.page.modules.length === 0
                text: "Sin módulos"
                color: Theme.mutedInk
                horizontalAlignment: Text.AlignHCenter
                font.family: Theme.fontFamily
                font.pixelSize: Math.max(9, 4.5 * paper.unit)
            }
            Repeater {
                model: paper.page.modules

                SheetPageModule {
                    required property int index
                    required property var modelData

                    objectName: "pageModule" + index
                    x: 4 * paper.unit
                    width: column.width - 2 * x
                    unit: paper.unit
                    entry: modelData
                }
            }
            Text {
                x: 5 * paper.unit
                width: parent.width - 2 * x
                visible: text !== ""
                text: paper.page.freeText
                color: Theme.ink
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                font.family: Theme.fontFamily
                font.pixelSize: Math.max(8, 3.6 * paper.unit)
            }
            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                height: visible ? 14 * paper.unit : 0
                visible: paper.page.programmeLogo || paper.page.logo !== ""
                spacing: 6 * paper.unit

                Rectangle {
                    width: 26 * paper.unit
                    height: parent.height
                    visible: paper.page.programmeLogo
                    radius: 2 * paper.unit
                    color: Theme.bottleTint

                    Text {
                        anchors.centerIn: parent
                        text: "Kavor"
                        color: Theme.bottle
                        font.family: Theme.fontFamily
                        font.pixelSize: Math.max(9, 5 * paper.unit)
                        font.weight: Font.Bold
                    }
                }
                Image {
                    objectName: "pageLogo"
                    width: 26 * paper.unit
                    height: parent.height
                    visible: paper.page.logo !== ""
                    source: paper.page.logo
                    fillMode: Image.PreserveAspectFit
                    sourceSize.width: 256
                    asynchronous: true
                }
            }
            Text {
                width: parent.width
                text: paper.page.foot
                color: Theme.mutedInk
                horizontalAlignment: Text.AlignHCenter
                font.family: Theme.fontFamily
                font.pixelSize: Math.max(8, 3.2 * paper.unit)
            }
        }
    }
}
