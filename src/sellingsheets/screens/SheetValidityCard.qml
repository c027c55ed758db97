import QtQuick
import QtQuick.Layouts
import Kavor.Kit
import Kavor.Screens
import Kavor.Ui

// When a sheet holds, and what stands on it beside its modules.
Card {
    id: card

    required property DataViewController controller

    SectionTitle { width: parent.width; text: "Vigencia y opciones"; icon: "calendar" }

    GridLayout {
        width: parent.width
        columns: width < 420 ? 1 : 2
        columnSpacing: Theme.spaceM
        rowSpacing: Theme.spaceM

        DateRow {
            objectName: "startingDate"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.alignment: Qt.AlignTop
            label: "Fecha de inicio"
            placeholder: card.controller.startingDate
            text: card.controller.startingDay
            shown: card.controller.startingDate
            today: card.controller.today
            onDone: (date) => card.controller.chooseDate(DataViewController.Starting, date)
        }
        DateRow {
            objectName: "endingDate"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.alignment: Qt.AlignTop
            label: "Fecha de fin"
            placeholder: card.controller.endingDate
            text: card.controller.endingDay
            shown: card.controller.endingDate
            error: card.controller.datesError
            today: card.controller.today
            onDone: (date) => card.controller.chooseDate(DataViewController.Ending, date)
        }
    }
    SwitchRow {
        objectName: "logotypeSwitch"
        width: parent.width
        label: "Logotipo del programa"
        checked: card.controller.logotypeSwitch
        onToggled: (on) => card.controller.toggle(DataViewController.Logotype, on)
    }
    SwitchRow {
        objectName: "taxesIncludedWarningSwitch"
        width: parent.width
        label: "Impuestos incluidos"
        checked: card.controller.taxesIncludedWarningSwitch
        onToggled: (on) => card.controller.toggle(DataViewController.TaxesIncluded, on)
    }
    SwitchRow {
        objectName: "modulePerPage"
        width: parent.width
        label: "Un módulo por página"
        checked: card.controller.modulePerPage
        onToggled: (on) => card.controller.toggle(DataViewController.ModulePerPage, on)
    }
}
