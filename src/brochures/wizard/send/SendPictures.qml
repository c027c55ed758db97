import QtQuick
import Kavor.Ui
import Kavor.Screens

// The chosen styles and the three logos of the cover.
Card {
    id: card

    required property BrochureSendViewController controller
    readonly property bool both: controller.styleImageVisible && controller.styleDigitalImageVisible

    SectionTitle { width: parent.width; text: card.controller.brochureWord; icon: "brochure" }

    Row {
        id: row

        width: parent.width
        spacing: Theme.spaceL

        SendStylePicture {
            objectName: "styleImage"
            width: card.both ? (row.width - row.spacing) / 2 : Math.min(row.width, 280)
            visible: card.controller.styleImageVisible
            source: card.controller.styleImage
            caption: card.controller.styleName !== "" ? card.controller.styleName : "Sin estilo"
            kind: "Impresa"
        }
        SendStylePicture {
            objectName: "styleDigitalImage"
            width: card.both ? (row.width - row.spacing) / 2 : Math.min(row.width, 280)
            visible: card.controller.styleDigitalImageVisible
            source: card.controller.styleDigitalImage
            caption: card.controller.styleDigitalName !== "" ? card.controller.styleDigitalName : "Sin estilo"
            kind: "Online"
        }
    }
    HelpText {
        width: parent.width
        visible: !card.controller.styleImageVisible && !card.controller.styleDigitalImageVisible
        text: "No se ha solicitado ningún formato."
        tone: "danger"
    }
    Row {
        spacing: Theme.spaceM
        visible: card.controller.brandImages.length > 0

        Repeater {
            model: card.controller.brandImages

            ResourceImage {
                required property int index
                required property string modelData

                objectName: "brandImage" + index
                width: 72
                height: 72
                source: modelData
                fillMode: Image.PreserveAspectFit
                placeholderIcon: "beer"
                text: "Logotipo " + (index + 1)
            }
        }
    }
}
