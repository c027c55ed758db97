import QtQuick
import Kavor.Ui
import Kavor.Screens

// The three logos of the cover.
Card {
    id: card

    required property StyleLogosForm form

    SectionTitle { width: parent.width; icon: "tag"; text: "Logotipos de la portada" }

    Row {
        spacing: Theme.spaceS

        Repeater {
            model: card.form.chosenImages

            ResourceImage {
                required property string modelData

                width: 72
                height: 72
                radius: 10
                mat: Theme.paper
                source: modelData
                placeholderIcon: "tag"
                fillMode: Image.PreserveAspectFit
            }
        }
    }
    PickerRow {
        objectName: "firstBrandPicker"
        width: parent.width
        label: "Primer logotipo"
        model: card.form.logos
        currentIndex: card.form.firstBrandPicker
        onActivated: (index) => card.form.choose(0, index)
    }
    PickerRow {
        objectName: "secondBrandPicker"
        width: parent.width
        label: "Segundo logotipo"
        model: card.form.logos
        currentIndex: card.form.secondBrandPicker
        onActivated: (index) => card.form.choose(1, index)
    }
    PickerRow {
        objectName: "thirdBrandPicker"
        width: parent.width
        label: "Tercer logotipo"
        model: card.form.logos
        currentIndex: card.form.thirdBrandPicker
        onActivated: (index) => card.form.choose(2, index)
    }
}
