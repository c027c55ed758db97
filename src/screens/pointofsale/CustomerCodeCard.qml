import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Kit

// The customer code and its lookup.
Card {
    id: card

    required property PointOfSaleForm form

    SectionTitle { width: parent.width; text: "Punto de venta"; icon: "store" }

    RowLayout {
        width: parent.width
        spacing: Theme.spaceM

        TextRow {
            objectName: "tevoTextField"
            Layout.fillWidth: true
            label: card.form.tevoLabel
            text: card.form.tevo
            icon: "tag"
            inputMethodHints: Qt.ImhNoPredictiveText
            onEdited: (typed) => card.form.editText("tevoTextField", typed)
            onFinished: (typed) => card.form.finishText("tevoTextField", typed)
            onAccepted: {
                if (card.form.tevo !== "" || card.form.tellsMissingCode)
                    card.form.searchTEVOCodeAction();
            }
        }
        AppButton {
            objectName: "searchTEVOCode"
            Layout.alignment: Qt.AlignBottom
            text: "Buscar"
            icon: "search"
            kind: "secondary"
            enabled: card.form.tevo !== "" || card.form.tellsMissingCode
            onClicked: card.form.searchTEVOCodeAction()
        }
    }
    HelpText {
        objectName: "tevoAviseLabel"
        width: parent.width
        text: card.form.tevoAviseLabel
        tone: card.form.customerCodeRequired ? "danger" : "neutral"
    }
}
