import QtQuick
import Kavor.Ui
import Kavor.Screens

// The addresses that receive the result.
Card {
    id: card

    required property EmailListModel emails

    objectName: "emailsStackView"

    SectionTitle { width: parent.width; text: "Enviar el resultado por correo"; icon: "mail" }

    Repeater {
        id: fields

        model: card.emails

        Item {
            id: entry

            required property int index
            required property var model

            width: parent.width
            implicitHeight: field.implicitHeight

            TextRow {
                id: field

                objectName: "emailTextField" + entry.index
                width: parent.width - (removal.visible ? removal.width + Theme.spaceS : 0)
                placeholder: "nombre@correo.es"
                inputMethodHints: Qt.ImhEmailCharactersOnly | Qt.ImhNoAutoUppercase
                text: entry.model.text
                error: field.activeFocus ? "" : entry.model.error
                onEdited: (typed) => card.emails.edit(entry.index, typed)
                onAccepted: card.emails.add()
            }
            IconButton {
                id: removal

                objectName: "removeEmail" + entry.index
                anchors.right: parent.right
                visible: card.emails.count > 1 || entry.model.text !== ""
                icon: "trash"
                colour: Theme.danger
                text: "Quitar este correo"
                onClicked: card.emails.remove(entry.index)
            }
        }
    }
    AppButton {
        objectName: "addEmail"
        kind: "plain"
        icon: "plus"
        text: "Añadir otro correo"
        onClicked: {
            card.emails.add();
            fields.itemAt(fields.count - 1).children[0].forceActiveFocus(Qt.OtherFocusReason);
        }
    }
}
