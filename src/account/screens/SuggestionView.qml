import QtQuick
import QtQuick.Layouts
import Kavor.Kit
import Kavor.Screens
import Kavor.Ui

// The suggestion mailbox.
FocusScope {
    id: view

    required property SuggestionViewController controller

    objectName: "suggestionView"
    Keys.onEscapePressed: controller.closeSceneAction()

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }
    AppBar {
        id: bar

        width: parent.width
        title: "Buzón de sugerencias"
        backVisible: true
        offline: view.controller.offline
        onBackTapped: view.controller.closeSceneAction()
    }
    FormPage {
        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        maximumWidth: 720
        twoColumns: false

        Card {
            Layout.fillWidth: true
            spacing: Theme.spaceL

            SectionTitle {
                width: parent.width
                icon: "mailbox"
                text: "¿Qué podemos mejorar?"
            }
            HelpText {
                width: parent.width
                text: "Tu sugerencia llega al equipo del programa."
            }
            PickerRow {
                objectName: "suggestionCategory"
                width: parent.width
                focus: true
                label: "Categoría"
                placeholder: "Elige una categoría"
                model: view.controller.categories
                currentIndex: view.controller.category
                error: view.controller.categoryError
                onActivated: (index) => view.controller.chooseCategory(index)
            }
            MessageField {
                width: parent.width
                name: "suggestionBody"
                form: view.controller
                label: "Sugerencia"
                placeholder: "Escribe aquí tu idea, un problema que has visto o lo que echas en falta."
                error: view.controller.bodyError
            }
            AppButton {
                objectName: "sendSuggestion"
                anchors.right: parent.right
                width: Theme.compact ? parent.width : implicitWidth
                icon: "send"
                text: "Enviar sugerencia"
                busy: view.controller.sending
                onClicked: view.controller.sendAction()
            }
        }
    }
    Veil {
        shown: view.controller.sending
        text: "Enviando la sugerencia…"
        leavable: true
        onAbandoned: view.controller.leaveVeil()
    }
}
