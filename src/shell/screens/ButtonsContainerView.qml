import QtQuick
import Kavor.Screens
import Kavor.Ui

// The sections in a grid; the columns follow the number of buttons and the orientation of the window.
Grid {
    id: container

    required property WelcomeViewController controller
    readonly property int total: controller.welcomeButtons.length
    readonly property real cell: Math.floor((width - (columns - 1) * columnSpacing) / columns)

    objectName: "buttonsContainer"
    columns: controller.columns(total, !Theme.portrait)
    columnSpacing: Theme.compact ? Theme.spaceS : Theme.spaceL
    rowSpacing: columnSpacing

    Repeater {
        model: container.controller.welcomeButtons

        WelcomeButton {
            required property var modelData

            objectName: "welcomeButton" + modelData.identifier
            width: container.cell
            label: modelData.label
            image: modelData.image
            onClicked: container.controller.openSection(modelData.identifier)
        }
    }
}
