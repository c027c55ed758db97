import QtQuick
import Kavor.Ui

// A number of the summary, which is a quick filter's button.
Tappable {
    id: button

    property string number: ""
    property string numberName: "" // objectName of the number
    property string caption: ""
    property bool active: false

    accessibleName: caption + ": " + number
    Accessible.checkable: true
    Accessible.checked: active
    implicitWidth: 112
    implicitHeight: 64

    background: Rectangle {
        radius: Theme.radius
        color: button.down ? Theme.sunken : button.active ? Theme.amberTint : Theme.surface
        border.width: button.active ? 2 : 1
        border.color: button.active ? Theme.amber : button.hot ? Theme.mutedInk : Theme.hairline

        FocusRing { shown: button.visualFocus }
    }

    contentItem: Item {
        Column {
            anchors.centerIn: parent
            width: parent.width - Theme.spaceS

            Text {
                objectName: button.numberName
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: button.number
                color: Theme.bottle
                elide: Text.ElideRight
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontTitle
                font.weight: Font.Bold
            }
            Text {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: button.caption
                color: button.active ? Theme.ink : Theme.mutedInk
                elide: Text.ElideRight
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontSmall
                font.weight: button.active ? Font.Medium : Font.Normal
            }
        }
    }
}
