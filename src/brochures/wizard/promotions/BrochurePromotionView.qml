import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Screens

// The promotions in the menu.
FocusScope {
    id: view

    required property BrochurePromotionViewController controller
    readonly property bool nothing: controller.listPromotionsTable.count === 0

    objectName: "brochurePromotions"

    EmptyState {
        objectName: "DraftEmptyCellIdentifier"
        anchors.fill: parent
        visible: view.nothing
        focus: visible
        icon: "promotions"
        title: "Todavía no hay promociones en la carta"
        text: "Elige una del catálogo y personalízala para este local."
        actionText: "Añadir promoción"
        actionIcon: "plus"
        onTriggered: view.controller.createButton()
    }
    FormPage {
        objectName: "listPromotionsTable"
        anchors.fill: parent
        visible: !view.nothing
        focus: visible
        maximumWidth: 720
        twoColumns: false

        Column {
            Layout.fillWidth: true
            spacing: Theme.spaceM

            Repeater {
                model: view.controller.listPromotionsTable

                ListPromotionCell {
                    required property int index
                    required property var model

                    objectName: "DraftNormalCellIdentifier" + index
                    width: parent.width
                    row: index
                    number: model.number
                    brand: model.brand
                    name: model.name
                    values: model.values
                    image: model.image
                    known: model.known
                    onEdited: view.controller.editButton(index)
                    onDeleted: view.controller.deleteButton(index)
                }
            }
        }
        AppButton {
            objectName: "createButton"
            Layout.fillWidth: true
            icon: "plus"
            text: "Añadir promoción"
            onClicked: view.controller.createButton()
        }
    }
}
