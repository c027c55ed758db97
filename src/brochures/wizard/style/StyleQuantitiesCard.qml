import QtQuick
import Kavor.Ui
import Kavor.Screens

// How many brochures, for each price column: by picker or by hand, as the kind says.
Card {
    id: card

    required property BrochureQuantityForm form
    readonly property bool byPicker: form.quantities.length > 0

    SectionTitle { width: parent.width; icon: "copy"; text: "Cantidad" }

    PickerRow {
        objectName: "selectorQuantity1Picker"
        width: parent.width
        visible: card.byPicker
        label: card.form.numberOfBrochuresLabel
        model: card.form.quantities
        currentIndex: card.form.selectorQuantity1Picker
        error: card.form.numberBrochuresError
        onActivated: (index) => card.form.choose(0, index)
    }
    TextRow {
        objectName: "numberBrochuresTextField"
        width: parent.width
        visible: !card.byPicker
        label: card.form.numberOfBrochuresLabel
        placeholder: "0"
        inputMethodHints: Qt.ImhDigitsOnly
        validator: RegularExpressionValidator { regularExpression: /[0-9]{0,6}/ }
        text: card.form.numberBrochuresTextField
        error: card.form.numberBrochuresError
        onEdited: (text) => card.form.type(0, text)
        onFinished: card.form.leave(0)
    }
    HelpText {
        objectName: "minimumAndMaximumNumberOfBrochureLabel"
        width: parent.width
        text: card.form.minimumAndMaximumNumberOfBrochureLabel
    }
    PickerRow {
        objectName: "selectorQuantity2Picker"
        width: parent.width
        visible: card.form.secondVisible && card.byPicker
        label: card.form.numberOfBrochuresSecondLabel
        model: card.form.quantities
        currentIndex: card.form.selectorQuantity2Picker
        error: card.form.secondPriceNumberBrochuresError
        onActivated: (index) => card.form.choose(1, index)
    }
    TextRow {
        objectName: "secondPriceNumberBrochuresTextField"
        width: parent.width
        visible: card.form.secondVisible && !card.byPicker
        label: card.form.numberOfBrochuresSecondLabel
        placeholder: "0"
        inputMethodHints: Qt.ImhDigitsOnly
        validator: RegularExpressionValidator { regularExpression: /[0-9]{0,6}/ }
        text: card.form.secondPriceNumberBrochuresTextField
        error: card.form.secondPriceNumberBrochuresError
        onEdited: (text) => card.form.type(1, text)
        onFinished: card.form.leave(1)
    }
    HelpText {
        width: parent.width
        visible: card.form.secondVisible
        text: card.form.minimumAndMaximumNumberOfBrochureLabel
    }
}
