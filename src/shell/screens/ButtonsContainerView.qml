import QtQuick
import Kavor.Screens
import Kavor.Ui

// The sections in a grid; the columns follow the number of buttons and the orientation of the window.
Grid {
    id: container

    required property WelcomeViewController controller
    readonly property int total: controller.welcomeButtons.length
    readonly property real cell: Math.floor((width - (columns - 1) * columnSpacing) / columns)

    // Arrows and Home/End go from tile to tile; false when the key leads nowhere.
    function step(key: int): bool {
        const at = tiles.focused;
        const next = controller.tileAfter(at, key, columns);
        if (next < 0)
            return false;
        tiles.itemAt(next).forceActiveFocus(Qt.TabFocusReason);
        return true;
    }

    objectName: "buttonsContainer"
    columns: controller.columns(total, !Theme.portrait)
    columnSpacing: Theme.compact ? Theme.spaceS : Theme.spaceL
    rowSpacing: columnSpacing

    Repeater {
        id: tiles

        property int focused: -1

        model: container.controller.welcomeButtons

        WelcomeButton {
            required property int index
            required property var modelData

            onActiveFocusChanged: tiles.focused = activeFocus ? index : -1
            objectName: "welcomeButton" + modelData.identifier
            width: container.cell
            label: modelData.label
            image: modelData.image
            onClicked: container.controller.openSection(modelData.identifier)
        }
    }
}
