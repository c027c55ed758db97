import QtQuick
import Kavor.Ui
import Kavor.Kit

// A card with the text fields of a block of the form.
Card {
    id: card

    required property PointOfSaleForm form
    required property var fields
    property string title: ""
    property string icon: ""
    property string note: ""

    SectionTitle {
        width: parent.width
        visible: text !== ""
        text: card.title
        icon: card.icon
    }
    HelpText { width: parent.width; text: card.note }

    Repeater {
        model: card.fields

        TextRow {
            required property var model

            objectName: model.name
            width: parent.width
            label: model.label
            text: model.text
            error: model.error
            icon: model.icon
            inputMethodHints: model.hints
            onEdited: (typed) => card.form.editText(model.name, typed)
            onFinished: (typed) => card.form.finishText(model.name, typed)
        }
    }
}
