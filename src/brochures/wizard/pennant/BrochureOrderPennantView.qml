import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Kit
import Kavor.Screens

// Whether a string of pennants goes along, in which style and with which products.
FormPage {
    id: page

    required property BrochureOrderPennantViewController controller
    readonly property bool on: controller.withPennantSwitch

    objectName: "brochureOrderPennant"

    Card {
        Layout.fillWidth: true
        Layout.columnSpan: page.columns

        SectionTitle { width: parent.width; icon: "pennant"; text: "Banderines"; detail: page.on ? page.controller.takenLabel : "" }
        SwitchRow {
            objectName: "withPennantSwitch"
            width: parent.width
            label: "Pedir banderines con la carta"
            checked: page.on
            onToggled: (checked) => page.controller.actionwithPennantClick(checked)
        }
        HelpText {
            objectName: "infoPennantLabel"
            width: parent.width
            text: page.controller.infoPennantLabel
        }
        PennantString {
            width: parent.width
            opacity: page.on ? 1 : 0.5
            pennants: page.controller.pennants
        }
        SwitchRow { // withoutPriceStack
            objectName: "withoutPricePennantSwitch"
            width: parent.width
            enabled: page.on && page.controller.withoutPriceOffered
            label: "Banderines sin precios"
            help: page.controller.withoutPriceOffered ? "" : "La carta va sin precios, así que los banderines también"
            checked: page.controller.withoutPricePennantSwitch
            onToggled: (checked) => page.controller.actionWithoutPriceClick(checked)
        }
    }

    Column { // styleOptionStack
        Layout.fillWidth: true
        spacing: Theme.spaceL
        enabled: page.on
        opacity: page.on ? 1 : 0.5

        EmptyState {
            objectName: "noPennantStyles"
            width: parent.width
            visible: page.controller.emptyMessage !== ""
            icon: "style"
            title: "Sin estilos"
            text: page.controller.emptyMessage
        }
        CoverCarousel {
            width: parent.width
            visible: page.controller.emptyMessage === ""
            text: "Estilos de banderín"
            gallery: page.controller.detailedCarousel
            coverHeight: Math.max(220, Math.min(360, page.height * 0.45))
        }
    }

    PennantPickersCard {
        Layout.fillWidth: true
        enabled: page.on
        opacity: page.on ? 1 : 0.5
        controller: page.controller
    }
}
