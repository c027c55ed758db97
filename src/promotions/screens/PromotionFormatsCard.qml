import QtQuick
import Kavor.Ui
import Kavor.Screens

// What is printed, and in which language.
Card {
    id: card

    required property PromotionViewController controller

    Column {
        objectName: "formatsStackView"
        width: parent.width
        spacing: Theme.spaceXS

        SectionTitle { width: parent.width; text: "Formatos"; icon: "print" }

        Repeater {
            model: card.controller.formatTable

            SwitchRow {
                required property int index
                required property var model

                objectName: "formatCell" + index
                width: parent.width
                label: model.name
                help: model.description
                checked: model.on
                onToggled: (on) => card.controller.formatTable.switchFormat(index, on)
            }
        }
        HelpText {
            width: parent.width
            text: card.controller.formatTable.count === 0 ? "Esta promoción no tiene formatos." : ""
        }
    }
    PickerRow {
        objectName: "languagePickerView"
        width: parent.width
        label: "Idioma"
        icon: "language"
        model: card.controller.languages
        currentIndex: card.controller.language
        onActivated: (index) => card.controller.chooseLanguage(index)
    }
}
