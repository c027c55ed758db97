import QtQuick
import Kavor.Ui
import Kavor.Screens

// What is produced: paper, digital, QR material, and how the menu is laid out.
Card {
    id: card

    required property BrochureFormatsForm form
    readonly property bool anything: form.paperVisible || form.digitalVisible || form.includeQrVisible
        || form.menuFormatVisible || form.wineFormatVisible

    visible: anything
    spacing: Theme.spaceS

    SectionTitle { width: parent.width; text: "Formato"; icon: "brochure" }

    SwitchRow {
        objectName: "paperBrochureSwitch"
        width: parent.width
        visible: card.form.paperVisible
        label: card.form.papeBrochureLabel
        checked: card.form.paperOn
        onToggled: (on) => card.form.switchPaperBrochure(on)
    }
    Column {
        width: parent.width
        spacing: Theme.spaceM
        bottomPadding: visible ? Theme.spaceS : 0
        visible: card.form.menuFormatVisible || card.form.wineFormatVisible
        enabled: card.form.formatRowsEnabled
        opacity: enabled ? 1 : 0.7

        PickerRow {
            objectName: "menuFormatVisualizePicker"
            width: parent.width
            visible: card.form.menuFormatVisible
            label: "Formato de la carta"
            model: card.form.menuFormats
            currentIndex: card.form.menuFormat
            onActivated: (index) => card.form.chooseMenuFormat(index)
        }
        PickerRow {
            objectName: "menuWineFormatVisualizePicker"
            width: parent.width
            visible: card.form.wineFormatVisible
            label: "Formato de la carta de vinos"
            model: card.form.wineFormats
            currentIndex: card.form.wineFormat
            onActivated: (index) => card.form.chooseWineFormat(index)
        }
    }
    SwitchRow {
        objectName: "digitalBrochureSwitch"
        width: parent.width
        visible: card.form.digitalVisible
        label: "Solicitar Carta Digital"
        checked: card.form.digitalOn
        onToggled: (on) => card.form.switchDigitalBrochure(on)
    }
    SwitchRow {
        objectName: "digitalBrochureDemandSwitch"
        width: parent.width
        visible: card.form.digitalVisible
        enabled: card.form.digitalOn
        label: "Solicitar impresión de Carta y QRs"
        checked: card.form.demandOn
        onToggled: (on) => card.form.switchDigitalBrochureDemand(on)
    }
    SwitchRow {
        objectName: "includeQrSwitch"
        width: parent.width
        visible: card.form.includeQrVisible
        label: "Incluir el código QR en la carta"
        help: card.form.messageQrSupportLabel
        checked: card.form.includeQrOn
        onToggled: (on) => card.form.switchIncludeQr(on)
    }
}
