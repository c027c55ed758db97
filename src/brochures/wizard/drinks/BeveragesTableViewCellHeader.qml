import QtQuick
import Kavor.Ui
import Kavor.Screens

// Heads the drinks of a category: its name, its description and the way out of the menu.
Item {
    id: header

    required property BrochureDrinkListViewController controller
    required property int index
    required property string beverageName
    required property string beverageDescription
    readonly property bool stacked: width < 560

    implicitHeight: description.y + description.height + Theme.spaceM

    Accessible.role: Accessible.Heading
    Accessible.name: beverageName + beverageDescription

    Text {
        id: title

        objectName: "beverageHeader" + header.index
        y: Theme.spaceM
        width: header.stacked ? remove.x - Theme.spaceS
                              : Math.min(implicitWidth, header.width * 0.4)
        height: Theme.touch
        verticalAlignment: Text.AlignVCenter
        text: header.beverageName
        color: Theme.bottle
        elide: Text.ElideRight
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontLarge
        font.weight: Font.Bold
    }
    TextRow {
        id: description

        objectName: "categoryDescription" + header.index
        x: header.stacked ? 0 : title.width + Theme.spaceM
        y: header.stacked ? title.y + title.height : Theme.spaceM
        width: (header.stacked ? header.width : remove.x - Theme.spaceS) - x
        placeholder: "Descripción de la categoría"
        maximumLength: header.controller.categoryDescriptionLength
        text: header.beverageDescription
        onEdited: (text) => header.controller.selectedDrinks.categoryDescriptionModified(header.index, text)
    }
    IconButton {
        id: remove

        objectName: "categoryDelete" + header.index
        y: Theme.spaceM
        anchors.right: parent.right
        icon: "trash"
        colour: Theme.danger
        text: "Quitar la categoría " + header.beverageName
        onClicked: header.controller.selectedDrinks.categoryDeleteButtonDelegateMethod(header.index)
    }
}
