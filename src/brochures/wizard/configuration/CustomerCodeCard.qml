import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Screens

// The customer code and its lookup.
Card {
    id: card

    required property BrochureConfigurationViewController controller

    SectionTitle { width: parent.width; text: "Punto de venta"; icon: "store" }

    RowLayout {
        width: parent.width
        spacing: Theme.spaceM

        TextRow {
            objectName: "tevoTextField"
            Layout.fillWidth: true
            label: card.controller.tevoLabel
            text: card.controller.tevo
            icon: "tag"
            inputMethodHints: Qt.ImhNoPredictiveText
            onEdited: (typed) => card.controller.editText("tevoTextField", typed)
            onFinished: (typed) => card.controller.finishText("tevoTextField", typed)
            onAccepted: {
                if (card.controller.tevo !== "")
                    card.controller.searchTEVOCodeAction();
            }
        }
        AppButton {
            objectName: "searchTEVOCode"
            Layout.alignment: Qt.AlignBottom
            text: "Buscar"
            icon: "search"
            kind: "secondary"
            enabled: card.controller.tevo !== ""
            onClicked: card.controller.searchTEVOCodeAction()
        }
    }
    HelpText {
        objectName: "tevoAviseLabel"
        width: parent.width
        text: card.controller.tevoAviseLabel
        tone: card.controller.customerCodeRequired ? "danger" : "neutral"
    }
}
