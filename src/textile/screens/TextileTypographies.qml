import QtQuick
import Kavor.Screens
import Kavor.Ui

// The text to print, and the typographies to choose from, each writing it.
Card {
    id: card

    required property TextileConfigurationViewController controller

    SectionTitle { width: parent.width; text: "Texto en la prenda"; icon: "tshirt" }
    TextRow {
        objectName: "customTextTextField"
        width: parent.width
        label: "Texto a mostrar*"
        text: card.controller.customText
        placeholder: "El nombre del bar, por ejemplo"
        help: card.controller.customTextHelp
        error: card.controller.customTextError
        icon: "edit"
        onEdited: (typed) => card.controller.editCustomText(typed)
        onFinished: (typed) => card.controller.editCustomText(typed)
    }
    Text {
        width: parent.width
        text: "Tipografía*"
        color: Theme.mutedInk
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontSmall
        font.weight: Font.Medium
    }
    Grid {
        id: grid

        width: parent.width
        columns: width >= 380 ? 2 : 1
        spacing: Theme.spaceS

        Repeater {
            model: card.controller.typographies

            Card {
                id: choice

                required property int index
                required property var model

                objectName: "typography" + index
                accessibleName: model.title
                width: (grid.width - (grid.columns - 1) * grid.spacing) / grid.columns
                tappable: true
                selected: model.chosen
                padding: Theme.spaceM
                spacing: Theme.spaceXS
                onClicked: card.controller.selectTypography(model.key)

                Lettering {
                    width: parent.width
                    height: 40
                    largest: 26
                    horizontalAlignment: Text.AlignLeft
                    lettering: choice.model.lettering
                }
                Text {
                    width: parent.width
                    text: choice.model.title
                    textFormat: Text.PlainText
                    color: Theme.mutedInk
                    elide: Text.ElideRight
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontSmall
                }
            }
        }
    }
}
