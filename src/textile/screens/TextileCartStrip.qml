import QtQuick
import QtQuick.Layouts
import Kavor.Screens
import Kavor.Ui

// The cart at the foot of the step: its total, the button that adds, and its lines.
Rectangle {
    id: strip

    required property TextileProductsViewController controller
    readonly property TextileCart cart: controller.cart

    implicitHeight: column.implicitHeight + 2 * Theme.spaceM
    color: Theme.surface

    Rectangle { width: parent.width; height: 1; color: Theme.hairline }

    ColumnLayout {
        id: column

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: Theme.pageMargin
        anchors.rightMargin: Theme.pageMargin
        spacing: Theme.spaceS

        GridLayout {
            Layout.fillWidth: true
            columns: strip.width < 520 ? 1 : 2
            columnSpacing: Theme.spaceL
            rowSpacing: Theme.spaceS

            RowLayout {
                Layout.fillWidth: true
                spacing: Theme.spaceS

                TextileMinimumBar {
                    Layout.fillWidth: true
                    cart: strip.cart
                }
                IconButton {
                    objectName: "cartHelp"
                    visible: list.count > 0
                    icon: "help"
                    text: "Cómo quitar una línea"
                    onClicked: strip.cart.helpAction()
                }
            }
            AppButton {
                objectName: "addToCart"
                Layout.fillWidth: strip.width < 520
                text: strip.controller.addTitle
                icon: "plus"
                onClicked: strip.controller.addToCartAction()
            }
        }
        ListView {
            id: list

            objectName: "shoppingCartViews"
            Layout.fillWidth: true
            Layout.preferredHeight: 96
            visible: count > 0
            model: strip.cart.lines
            orientation: ListView.Horizontal
            spacing: Theme.spaceS
            boundsBehavior: Flickable.StopAtBounds

            FocusFollower { view: list }

            delegate: TextileCartCard {
                required property int index

                name: "cartLine" + index
                onChosen: strip.controller.selectCartLine(model.key)
                onRemoved: strip.cart.askToDelete(model.key)
            }
        }
    }
}
