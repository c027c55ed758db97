import QtQuick
import Kavor.Ui
import Kavor.Screens

// The orientation and the type of a chalkboard.
Card {
    id: card

    required property ChalkboardForm form

    SectionTitle { width: parent.width; text: "Formato de la pizarra"; icon: "chalkboard" }

    Grid {
        id: grid

        width: parent.width
        columns: width >= 560 ? 3 : 2
        spacing: Theme.spaceM

        Repeater {
            model: card.form.orientationElements

            Card {
                id: element

                required property var model

                objectName: "orientationElement" + model.identifier
                width: (grid.width - (grid.columns - 1) * grid.spacing) / grid.columns
                tappable: true
                selected: model.selected
                padding: Theme.spaceM
                spacing: Theme.spaceXS
                accessibleName: model.name + ", " + model.description
                Accessible.checked: selected
                onClicked: card.form.formatSelected(model.identifier)

                ResourceImage {
                    width: parent.width
                    height: 96
                    source: element.model.image
                    fillMode: Image.PreserveAspectFit
                    placeholderIcon: "chalkboard"
                    ground: element.ground
                    mat: "transparent"
                }
                Text {
                    width: parent.width
                    text: element.model.name
                    color: Theme.ink
                    wrapMode: Text.Wrap
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontBody
                    font.weight: Font.Medium
                }
                HelpText { width: parent.width; text: element.model.description }
            }
        }
    }
    PickerRow {
        objectName: "blackboardTypePicker"
        width: parent.width
        label: "Tipo de pizarra"
        model: card.form.blackboardTypes
        currentIndex: card.form.blackboardType
        onActivated: (index) => card.form.chooseBlackboardType(index)
    }
}
