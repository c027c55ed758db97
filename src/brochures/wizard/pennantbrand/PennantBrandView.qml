import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Kit
import Kavor.Screens

// The pennant of a brand of the menu.
FormPage {
    id: page

    required property PennantBrandViewController controller

    objectName: "pennantBrand"

    EmptyState {
        objectName: "without_pennant"
        Layout.fillWidth: true
        Layout.columnSpan: page.columns
        visible: page.controller.withoutPennant
        icon: "pennantbrand"
        title: "Sin banderín de marca"
        text: "Ninguna de las marcas elegidas en la carta tiene banderín."
    }
    CoverCarousel {
        Layout.fillWidth: true
        visible: !page.controller.withoutPennant
        text: "Banderines de marca"
        gallery: page.controller.detailedCarousel
        coverHeight: Math.max(260, Math.min(440, page.height * 0.56))
    }
    Card {
        objectName: "pennantBrandCard"
        Layout.fillWidth: true
        visible: !page.controller.withoutPennant

        SectionTitle { width: parent.width; icon: "pennantbrand"; text: page.controller.infoPennantBrandLabel }
        HelpText {
            objectName: "helpTextPennantLabel"
            width: parent.width
            visible: text !== ""
            text: page.controller.helpTextPennantLabel
        }
        ResourceImage {
            width: parent.width
            height: 120
            mat: Theme.paper
            source: page.controller.imageBrand
            text: page.controller.infoPennantBrandLabel
            placeholderIcon: "bottle"
            fillMode: Image.PreserveAspectFit
        }
        HelpText { width: parent.width; text: "Marcas del banderín" }
        Repeater {
            model: page.controller.brandLogosCollection

            Row {
                id: brand

                required property var modelData
                readonly property color colour: modelData.available ? Theme.ink : "#FF4A4A"

                spacing: Theme.spaceS

                Icon {
                    anchors.verticalCenter: parent.verticalCenter
                    name: brand.modelData.available ? "check" : "close"
                    size: 18
                    colour: brand.modelData.available ? Theme.success : brand.colour
                }
                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    text: brand.modelData.available ? brand.modelData.text : brand.modelData.text + " (no está en la carta)"
                    color: brand.colour
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontBody
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
            }
        }
    }
}
