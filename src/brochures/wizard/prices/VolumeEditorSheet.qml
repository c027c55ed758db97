import QtQuick
import Kavor.Kit
import Kavor.Ui
import Kavor.Screens

// Chooses the volume of one format.
StepSheet {
    id: sheet

    required property VolumeEditorViewController controller

    name: "volumeEditor"
    title: "Volumen"
    maximumWidth: 440
    onDismissed: controller?.close()

    Text {
        objectName: "formatLabel"
        width: parent.width
        text: sheet.controller?.formatLabel ?? ""
        color: Theme.ink
        wrapMode: Text.Wrap
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontLarge
        font.weight: Font.Bold
    }
    HelpText {
        objectName: "quantityRangeLabel"
        width: parent.width
        text: sheet.controller?.quantityRangeLabel ?? ""
    }
    PickerRow {
        objectName: "volumePicker"
        width: parent.width
        label: "Volumen de la ración"
        model: sheet.controller?.volumePicker ?? []
        currentIndex: sheet.controller?.selectedRow ?? 0
        onActivated: (index) => sheet.controller.selectedRow = index
    }

    actions: [
        AppButton {
            objectName: "volumeCancel"
            text: "Cancelar"
            kind: "secondary"
            onClicked: sheet.controller.close()
        },
        AppButton {
            objectName: "volumeConfirm"
            text: "Aceptar"
            icon: "check"
            onClicked: sheet.controller.confirm()
        }
    ]
}
