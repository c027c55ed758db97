import QtQuick
import Kavor.Ui

// Heads a group of rows; `detail` stands small at the right.
Item {
    id: title

    property string text: ""
    property string detail: ""
    property string icon: ""

    implicitWidth: 200
    implicitHeight: Math.max(32, label.implicitHeight)

    Accessible.role: Accessible.Heading
    Accessible.name: text

    Icon {
        id: drawing

        anchors.verticalCenter: parent.verticalCenter
        visible: title.icon !== ""
        name: title.icon
        size: 22
        colour: Theme.bottle
    }
    Text {
        id: label

        anchors.left: parent.left
        anchors.leftMargin: drawing.visible ? 30 : 0
        anchors.right: extra.left
        anchors.rightMargin: Theme.spaceS
        anchors.verticalCenter: parent.verticalCenter
        text: title.text
        color: Theme.bottle
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontLarge
        font.weight: Font.Bold
        wrapMode: Text.Wrap
    }
    Text {
        id: extra

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: title.detail
        color: Theme.mutedInk
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontSmall
    }
}
