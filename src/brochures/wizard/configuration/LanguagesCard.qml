import QtQuick
import Kavor.Ui
import Kavor.Screens

// Languages and second price list.
Card {
    id: card

    required property BrochureConfigurationViewController controller

    SectionTitle { width: parent.width; text: "Idiomas"; icon: "language" }

    PickerRow {
        objectName: "firstLanguagePicker"
        width: parent.width
        label: "Idioma principal*"
        model: card.controller.languages
        currentIndex: card.controller.mainLanguage
        onActivated: (index) => card.controller.chooseMainLanguage(index)
    }
    PickerRow {
        objectName: "secondLanguagePicker"
        width: parent.width
        visible: card.controller.secondLanguageVisible
        enabled: card.controller.mainLanguage >= 0
        label: "Segundo idioma"
        model: card.controller.secondaryLanguages
        currentIndex: card.controller.secondaryLanguage
        onActivated: (index) => card.controller.chooseSecondaryLanguage(index)
    }
    SwitchRow {
        objectName: "secondPriceTextIsSelectedSwitch"
        width: parent.width
        visible: card.controller.secondPriceVisible
        label: "Segundo precio"
        help: "Añade otra columna de precios, por ejemplo para la terraza."
        checked: card.controller.secondPriceAllowed
        onToggled: (on) => card.controller.chooseSecondPrice(on)
    }
    PickerRow {
        objectName: "priceTypePicker"
        width: parent.width
        visible: card.controller.secondPriceVisible && card.controller.secondPriceAllowed
        label: "Tarifa del segundo precio"
        icon: "price"
        model: card.controller.priceTypes
        currentIndex: card.controller.priceType
        onActivated: (index) => card.controller.choosePriceType(index)
    }
}
