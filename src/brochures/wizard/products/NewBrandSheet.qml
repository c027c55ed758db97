import QtQuick
import Kavor.Kit
import Kavor.Ui
import Kavor.Screens

// The form for a brand of the customer's own.
StepSheet {
    id: sheet

    required property BrochureProductListViewController controller
    readonly property NewBrandForm form: controller.formAddNewBrandView

    name: "formAddNewBrandView"
    title: "Añadir una marca"
    onDismissed: controller.closeFormNewBrandBtn()

    TextRow {
        objectName: "newBrandName"
        width: parent.width
        label: "Nombre *"
        maximumLength: sheet.form?.maximumNameLength ?? 0
        text: sheet.form?.name ?? ""
        onEdited: (text) => sheet.form.name = text
    }
    PickerRow {
        objectName: "newBrandTypology"
        width: parent.width
        label: "Tipología *"
        model: sheet.form?.brandTypologyList ?? []
        currentIndex: sheet.form?.typology ?? 0
        onActivated: (index) => sheet.form.typology = index
    }
    PickerRow {
        objectName: "newBrandTaste"
        width: parent.width
        label: "Sabor *"
        model: sheet.form?.brandTasteList ?? []
        currentIndex: sheet.form?.taste ?? 0
        onActivated: (index) => sheet.form.taste = index
    }
    PickerRow {
        objectName: "newBrandSegment"
        width: parent.width
        label: "Segmento *"
        model: sheet.form?.brandSegmentList ?? []
        currentIndex: sheet.form?.segment ?? 0
        onActivated: (index) => sheet.form.segment = index
    }
    PickerRow {
        objectName: "newBrandSubTypology"
        width: parent.width
        visible: count > 1
        label: "Subtipología"
        model: sheet.form?.brandSubTypologyList ?? []
        currentIndex: sheet.form?.subTypology ?? 0
        onActivated: (index) => sheet.form.subTypology = index
    }
    PickerRow {
        objectName: "newBrandAge"
        width: parent.width
        visible: count > 1
        label: "Crianza"
        model: sheet.form?.brandAgeList ?? []
        currentIndex: sheet.form?.age ?? 0
        onActivated: (index) => sheet.form.age = index
    }
    TextAreaRow {
        objectName: "newBrandDescription"
        width: parent.width
        label: "Descripción"
        maximumLength: sheet.form?.maximumDescriptionLength ?? 0
        text: sheet.form?.description ?? ""
        onEdited: (text) => sheet.form.description = text
    }

    actions: [
        AppButton {
            objectName: "closeFormNewBrandBtn"
            text: "Cancelar"
            kind: "secondary"
            onClicked: sheet.controller.closeFormNewBrandBtn()
        },
        AppButton {
            objectName: "createNewBrandBtn"
            text: "Añadir"
            icon: "check"
            onClicked: sheet.controller.createNewBrandBtn()
        }
    ]
}
