import QtQuick
import QtQuick.Layouts
import Kavor.Screens
import Kavor.Ui

// The three numbers of the summary, each the button of a quick filter.
RowLayout {
    id: numbers

    required property AllOrdersManagementViewController controller

    signal tapped()

    spacing: Theme.spaceS

    OrderNumberButton {
        objectName: "withoutConfirmButton"
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        numberName: "withoutConfirmNumberLabel"
        number: numbers.controller.withoutConfirmNumberLabel
        caption: "Sin confirmar"
        active: numbers.controller.quickFilter === AllOrdersManagementViewController.QuickFilter.WithoutConfirm
        onClicked: {
            numbers.tapped();
            numbers.controller.withoutConfirmAction();
        }
    }
    OrderNumberButton {
        objectName: "withoutCompleteButton"
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        numberName: "withoutCobrixCodeLabel"
        number: numbers.controller.withoutCobrixCodeLabel
        caption: "Sin código"
        active: numbers.controller.quickFilter === AllOrdersManagementViewController.QuickFilter.WithoutComplete
        onClicked: {
            numbers.tapped();
            numbers.controller.withoutCompleteAction();
        }
    }
    OrderNumberButton {
        objectName: "withoutFilterButton"
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        numberName: "realizedNumberLabel"
        number: numbers.controller.realizedNumberLabel
        caption: "Este año"
        active: numbers.controller.quickFilter === AllOrdersManagementViewController.QuickFilter.CurrentYear
        onClicked: {
            numbers.tapped();
            numbers.controller.withoutFilterAction();
        }
    }
}
