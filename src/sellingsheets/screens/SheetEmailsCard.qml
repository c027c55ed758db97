import QtQuick
import Kavor.Screens
import Kavor.Ui

// Up to three addresses that receive the sheet, with those of earlier sheets at hand.
Card {
    id: card

    required property DataViewController controller

    SectionTitle { width: parent.width; text: "Enviar la hoja por correo"; icon: "mail" }

    TextRow {
        objectName: "emailTextField1"
        width: parent.width
        placeholder: "nombre@correo.es"
        inputMethodHints: Qt.ImhEmailCharactersOnly | Qt.ImhNoAutoUppercase
        text: card.controller.emailTextField1
        onEdited: (typed) => card.controller.edit(DataViewController.Email1, typed)
    }
    TextRow {
        objectName: "emailTextField2"
        width: parent.width
        placeholder: "Otro correo"
        inputMethodHints: Qt.ImhEmailCharactersOnly | Qt.ImhNoAutoUppercase
        text: card.controller.emailTextField2
        onEdited: (typed) => card.controller.edit(DataViewController.Email2, typed)
    }
    TextRow {
        objectName: "emailTextField3"
        width: parent.width
        placeholder: "Otro correo"
        inputMethodHints: Qt.ImhEmailCharactersOnly | Qt.ImhNoAutoUppercase
        text: card.controller.emailTextField3
        onEdited: (typed) => card.controller.edit(DataViewController.Email3, typed)
    }
    Flow {
        width: parent.width
        visible: card.controller.rememberedEmails.length > 0
        spacing: Theme.spaceS

        Repeater {
            model: card.controller.rememberedEmails

            Chip {
                required property int index
                required property string modelData

                objectName: "rememberedEmail" + index
                tappable: true
                icon: "plus"
                text: modelData
                onClicked: card.controller.takeEmail(modelData)
            }
        }
    }
}
