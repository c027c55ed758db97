import QtQuick
import Kavor.Ui
import Kavor.Screens

// What this activation asks for besides.
Card {
    id: card

    required property ActivationAttributeModel attributes

    SectionTitle { width: parent.width; icon: "edit"; text: "Datos de la activación" }

    Repeater {
        model: card.attributes

        TextRow {
            required property int index
            required property var model

            objectName: "attribute" + index
            width: parent.width
            label: model.label
            help: model.help
            text: model.value
            inputMethodHints: model.hints
            onEdited: (typed) => card.attributes.type(index, typed)
            onFinished: (typed) => card.attributes.finish(index, typed)
        }
    }
}
