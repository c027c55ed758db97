import QtQuick
import Kavor.Ui
import Kavor.Screens

// Languages and second price list.
Card {
    id: card

    required property LanguagesForm form
    required property SecondPriceForm secondPrice

    SectionTitle { width: parent.width; text: "Idiomas"; icon: "language" }

    PickerRow {
        objectName: "firstLanguagePicker"
        width: parent.width
        label: "Idioma principal*"
        model: card.form.languages
        currentIndex: card.form.mainLanguage
        onActivated: (index) => card.form.chooseMainLanguage(index)
    }
    PickerRow {
        objectName: "secondLanguagePicker"
        width: parent.width
        visible: card.form.secondLanguageVisible
        enabled: card.form.mainLanguage >= 0
        label: "Segundo idioma"
        model: card.form.secondaryLanguages
        currentIndex: card.form.secondaryLanguage
        onActivated: (index) => card.form.chooseSecondaryLanguage(index)
    }
    SwitchRow {
        objectName: "secondPriceTextIsSelectedSwitch"
        width: parent.width
        visible: card.secondPrice.secondPriceVisible
        label: "Segundo precio"
        help: "Añade otra columna de precios, por ejemplo para la terraza."
        checked: card.secondPrice.secondPriceAllowed
        onToggled: (on) => card.secondPrice.chooseSecondPrice(on)
    }
    PickerRow {
        objectName: "priceTypePicker"
        width: parent.width
        visible: card.secondPrice.secondPriceVisible && card.secondPrice.secondPriceAllowed
        label: "Tarifa del segundo precio"
        icon: "price"
        model: card.secondPrice.priceTypes
        currentIndex: card.secondPrice.priceType
        onActivated: (index) => card.secondPrice.choosePriceType(index)
    }
}
