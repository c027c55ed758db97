import QtQuick
import Kavor.Ui
import Kavor.Screens

// The way through the lists where one is shown at a time: categories, a category, a product.
Flickable {
    id: crumbs

    required property BrochureDrinkListViewController controller

    implicitHeight: Theme.touch
    contentWidth: way.width
    contentX: Math.max(0, contentWidth - width) // its end is where one is
    clip: true
    boundsBehavior: Flickable.StopAtBounds

    FocusFollower { view: crumbs }
    Row {
        id: way

        height: parent.height

        Repeater {
            model: crumbs.controller.breadcrumb

            Row {
                id: step

                required property int index
                required property var modelData

                height: way.height

                Icon {
                    anchors.verticalCenter: parent.verticalCenter
                    visible: step.index > 0
                    name: "chevron-right"
                    size: 18
                    colour: Theme.mutedInk
                }
                Chip {
                    objectName: "drinkCrumb" + step.index
                    anchors.verticalCenter: parent.verticalCenter
                    text: step.index === 0 && crumbs.controller.breadcrumb.length > 2 ? "" : step.modelData.text
                    icon: step.index === 0 ? "list" : ""
                    accessibleName: step.modelData.text
                    tappable: true
                    selected: step.modelData.page === crumbs.controller.page
                    onClicked: crumbs.controller.showPage(step.modelData.page)
                }
            }
        }
    }
}
