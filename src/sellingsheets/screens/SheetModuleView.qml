import QtQuick
import QtQuick.Layouts
import Kavor.Screens
import Kavor.Ui

// The form of a module: one or two products in boxes, and their price.
FocusScope {
    id: view

    required property ModifySingleModuleViewController controller

    objectName: "sheetModuleView"
    Keys.onEscapePressed: controller.closeSceneAction()
    Keys.onBackPressed: controller.closeSceneAction()

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }
    AppBar {
        id: bar

        width: parent.width
        title: view.controller.title
        backVisible: true
        onBackTapped: view.controller.closeSceneAction()
    }
    FormPage {
        id: page

        objectName: "sheetModulePage"
        focus: true
        anchors.top: bar.bottom
        anchors.bottom: foot.top
        width: parent.width

        HelpText {
            objectName: "moduleNotice"
            Layout.fillWidth: true
            Layout.columnSpan: page.columns
            visible: text !== ""
            tone: "danger"
            text: view.controller.notice
        }
        SheetProductCard {
            objectName: "primaryProduct"
            Layout.fillWidth: true
            title: "Producto principal"
            chooser: view.controller.primary
            boxes: view.controller.primaryBoxes
            onBoxesEdited: (typed) => view.controller.edit(ModifySingleModuleViewController.PrimaryBoxes, typed)
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: Theme.spaceS

            Card {
                Layout.fillWidth: true

                SwitchRow {
                    objectName: "secondaryBottleSwitch"
                    width: parent.width
                    label: "Añadir un segundo producto"
                    checked: view.controller.secondaryBottleSwitch
                    onToggled: (on) => view.controller.switchSecondaryBottle(on)
                }
            }
            SheetProductCard {
                objectName: "secondaryProduct"
                Layout.fillWidth: true
                enabled: view.controller.secondaryBottleSwitch
                opacity: enabled ? 1 : 0.6
                visible: enabled || page.columns > 1
                title: "Segundo producto"
                chooser: view.controller.secondary
                boxes: view.controller.secondaryBoxes
                onBoxesEdited: (typed) => view.controller.edit(ModifySingleModuleViewController.SecondaryBoxes, typed)
            }
        }
        Card {
            Layout.fillWidth: true
            Layout.columnSpan: page.columns

            SectionTitle { width: parent.width; icon: "price"; text: "Precio" }
            GridLayout {
                width: parent.width
                columns: width < 520 ? 1 : 3
                columnSpacing: Theme.spaceL
                rowSpacing: Theme.spaceM

                PriceField {
                    objectName: "modulePrice"
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    Layout.alignment: Qt.AlignTop
                    label: "Precio del módulo"
                    displayText: view.controller.modulePriceShown
                    editText: view.controller.modulePrice
                    onEdited: (typed) => view.controller.edit(ModifySingleModuleViewController.Price, typed)
                    onFinished: (typed) => view.controller.edit(ModifySingleModuleViewController.Price, typed)
                }
                TextRow {
                    objectName: "moduleReferenceTextField"
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    Layout.alignment: Qt.AlignTop
                    label: "Referencia"
                    text: view.controller.moduleReferenceTextField
                    onEdited: (typed) => view.controller.edit(ModifySingleModuleViewController.Reference, typed)
                }
                Column {
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    spacing: 2

                    Text {
                        text: "Precio por botella"
                        color: Theme.mutedInk
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontSmall
                        font.weight: Font.Medium
                    }
                    Text {
                        objectName: "pricePerBottleTextField"
                        text: view.controller.pricePerBottleTextField
                        color: Theme.bottle
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontDisplay
                        font.weight: Font.Bold
                        Accessible.role: Accessible.StaticText
                        Accessible.name: "Precio por botella: " + text
                    }
                    HelpText {
                        objectName: "programmePrice"
                        width: parent.width
                        visible: text !== ""
                        text: view.controller.programmePrice
                    }
                }
            }
        }
    }
    Rectangle {
        id: foot

        anchors.bottom: parent.bottom
        width: parent.width
        height: save.implicitHeight + 2 * Theme.spaceM
        color: Theme.surface

        Rectangle { width: parent.width; height: 1; color: Theme.hairline }
        AppButton {
            id: save

            objectName: "saveModule"
            anchors.centerIn: parent
            width: Math.min(parent.width - 2 * Theme.pageMargin, 420)
            icon: "check"
            text: "Guardar el módulo"
            onClicked: view.controller.saveAction()
        }
    }
}
