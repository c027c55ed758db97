import QtQuick
import Kavor.Ui

// Says why a page is empty and what to do about it; `triggered` is its button.
Item {
    id: empty

    property string icon: "info"
    property string title: ""
    property string text: ""
    property string actionText: ""
    property string actionIcon: ""
    property string tone: "bottle"

    signal triggered()

    implicitWidth: 320
    implicitHeight: column.implicitHeight + 2 * Theme.spaceXL

    Column {
        id: column

        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.spaceL, 420)
        spacing: Theme.spaceM

        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 88
            height: 88
            radius: 44
            color: Theme.toneGround(empty.tone)

            Icon {
                anchors.centerIn: parent
                name: empty.icon
                size: 40
                weight: 1.5
                colour: Theme.toneInk(empty.tone)
            }
        }
        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            visible: text !== ""
            text: empty.title
            color: Theme.ink
            wrapMode: Text.Wrap
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontTitle
            font.weight: Font.Bold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        HelpText {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: Theme.fontBody
            text: empty.text
        }
        Item { width: 1; height: Theme.spaceXS; visible: empty.actionText !== "" }
        AppButton {
            objectName: empty.objectName + "Action"
            anchors.horizontalCenter: parent.horizontalCenter
            visible: empty.actionText !== ""
            text: empty.actionText
            icon: empty.actionIcon
            onClicked: empty.triggered()
        }
    }
}
