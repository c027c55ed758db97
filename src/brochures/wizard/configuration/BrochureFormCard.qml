import QtQuick
import Kavor.Ui
import Kavor.Screens

// What is produced: paper, digital, QR material, and how the menu is laid out.
Card {
    id: card

    required property BrochureConfigurationViewController controller
    readonly property bool anything: controller.paperVisible || controller.digitalVisible || controller.includeQrVisible
        || controller.menuFormatVisible || controller.wineFormatVisible

    visible: anything
    spacing: Theme.spaceS

    SectionTitle { width: parent.width; text: "Formato"; icon: "brochure" }

    SwitchRow {
        objectName: "paperBrochureSwitch"
        width: parent.width
        visible: card.controller.paperVisible
        label: card.controller.papeBrochureLabel
        checked: card.controller.paperOn
        onToggled: (on) => card.controller.switchPaperBrochure(on)
    }
    Column {
        width: parent.width
        spacing: Theme.spaceM
        bottomPadding: visible ? Theme.spaceS : 0
        visible: card.controller.menuFormatVisible || card.controller.wineFormatVisible
        enabled: card.controller.formatRowsEnabled
        opacity: enabled ? 1 : 0.7

        PickerRow {
            objectName: "menuFormatVisualizePicker"
            width: parent.width
            visible: card.controller.menuFormatVisible
            label: "Formato de la carta"
            model: card.controller.menuFormats
            currentIndex: card.controller.menuFormat
            onActivated: (index) => card.controller.chooseMenuFormat(index)
        }
        PickerRow {
            objectName: "menuWineFormatVisualizePicker"
            width: parent.width
            visible: card.controller.wineFormatVisible
            label: "Formato de la carta de vinos"
            model: card.controller.wineFormats
            currentIndex: card.controller.wineFormat
            onActivated: (index) => card.controller.chooseWineFormat(index)
        }
    }
    SwitchRow {
        objectName: "digitalBrochureSwitch"
        width: parent.width
        visible: card.controller.digitalVisible
        label: "Solicitar Carta Digital"
        checked: card.controller.digitalOn
        onToggled: (on) => card.controller.switchDigitalBrochure(on)
    }
    SwitchRow {
        objectName: "digitalBrochureDemandSwitch"
        width: parent.width
        visible: card.controller.digitalVisible
        enabled: card.controller.digitalOn
        label: "Solicitar impresión de Carta y QRs"
        checked: card.controller.demandOn
        onToggled: (on) => card.controller.switchDigitalBrochureDemand(on)
    }
    SwitchRow {
        objectName: "includeQrSwitch"
        width: parent.width
        visible: card.controller.includeQrVisible
        label: "Incluir el código QR en la carta"
        help: card.controller.messageQrSupportLabel
        checked: card.controller.includeQrOn
        onToggled: (on) => card.controller.switchIncludeQr(on)
    }
}
