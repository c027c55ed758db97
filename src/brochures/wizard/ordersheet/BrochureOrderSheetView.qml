import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Screens

// The order sheet that goes along with the menu.
FormPage {
    id: page

    required property BrochureOrderSheetViewController controller

    objectName: "brochureOrderSheet"

    OrderSheetCarousel {
        Layout.fillWidth: true
        Layout.columnSpan: page.columns
        controller: page.controller
        sheetHeight: Math.max(220, Math.min(440, page.height * 0.52))
    }

    Card {
        objectName: "orderSheetCard"
        Layout.fillWidth: true
        Layout.columnSpan: page.columns
        visible: page.controller.currentIndex > 0

        Text {
            objectName: "numberOrderBrochuresToSend"
            width: parent.width
            text: page.controller.numberOrderBrochuresToSend
            color: Theme.ink
            wrapMode: Text.Wrap
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontLarge
            font.weight: Font.Bold
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        HelpText {
            width: parent.width
            visible: page.controller.brandLogosCollection.length > 0
            text: "Marcas de la carta que aparecen en él"
        }
        Flow {
            objectName: "brandLogosCollection"
            width: parent.width
            visible: page.controller.brandLogosCollection.length > 0
            spacing: Theme.spaceM

            Repeater {
                model: page.controller.brandLogosCollection

                Column {
                    id: brand

                    required property int index
                    required property var modelData

                    width: 96
                    spacing: Theme.spaceXS

                    ResourceImage {
                        objectName: "brandLogo" + brand.index
                        width: parent.width
                        height: 72
                        source: brand.modelData.source
                        text: brand.modelData.text
                        placeholderIcon: "bottle"
                        mat: Theme.paper
                        fillMode: Image.PreserveAspectFit
                    }
                    HelpText {
                        width: parent.width
                        horizontalAlignment: Text.AlignHCenter
                        text: brand.modelData.text
                    }
                }
            }
        }
        Text {
            objectName: "noBrandAvailableLabel"
            width: parent.width
            visible: text !== ""
            text: page.controller.noBrandAvailableLabel
            color: "#FF4A4A"
            wrapMode: Text.Wrap
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
            font.weight: Font.Medium
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
