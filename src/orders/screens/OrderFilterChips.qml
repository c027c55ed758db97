import QtQuick
import Kavor.Screens
import Kavor.Ui

// What the lists are limited to; a tap takes one limit away.
Flow {
    id: chips

    required property AllOrdersManagementViewController controller

    spacing: Theme.spaceS

    Repeater {
        model: chips.controller.filters

        Chip {
            required property var modelData

            objectName: "filter" + modelData.id
            width: Math.min(implicitWidth, chips.width)
            tappable: true
            tone: "amber"
            icon: "close"
            text: modelData.text
            accessibleName: "Quitar el filtro: " + text
            onClicked: chips.controller.removeFilter(modelData.id)
        }
    }
}
