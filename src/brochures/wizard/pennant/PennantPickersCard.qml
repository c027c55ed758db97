import QtQuick
import Kavor.Ui
import Kavor.Screens

// The eight places of the string, each with a product of the menu or empty.
Card {
    id: card

    required property BrochureOrderPennantViewController controller
    readonly property bool hasProducts: controller.products.length > 1

    SectionTitle { width: parent.width; icon: "products"; text: "Productos de los banderines" }
    HelpText {
        objectName: "noPennantProducts"
        width: parent.width
        visible: !card.hasProducts
        text: "Ningún producto elegido en la carta se ofrece en banderines."
    }
    AppButton {
        objectName: "fillPennants"
        width: parent.width
        visible: card.hasProducts
        kind: "secondary"
        icon: "check"
        text: "Rellenar con los primeros ocho"
        onClicked: card.controller.fill()
    }
    Repeater {
        model: 8

        PickerRow {
            required property int index

            objectName: "product0" + (index + 1) + "Picker"
            width: card.availableWidth
            visible: card.hasProducts
            label: "Banderín " + (index + 1)
            model: card.controller.products
            currentIndex: card.controller.pickers[index]
            onActivated: (row) => card.controller.choose(index, row)
        }
    }
}
