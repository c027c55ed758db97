import QtQuick
import Kavor.Ui

// A round button that is only a drawing; `text` is its accessible name and, on a wide pointer, its hint.
Tappable {
    id: button

    property string icon: ""
    property string text: ""
    property color colour: inverse ? Theme.inverseInk : Theme.bottle
    property bool inverse: false
    property bool checked: false
    property bool filled: false // draws the icon solid, as a chosen star
    property bool framed: false // a hairline around it
    property int iconSize: 24
    property int badge: 0

    accessibleName: text
    implicitWidth: Theme.touch
    implicitHeight: Theme.touch
    opacity: enabled ? 1 : 0.4

    background: Rectangle {
        radius: Theme.radius
        color: {
            if (button.inverse)
                return button.down ? Theme.bottleDark : button.hot || button.checked ? Theme.bottleLight : "transparent";
            return button.down ? Theme.hairline : button.checked ? Theme.amberTint : button.hot ? Theme.sunken
                 : button.framed ? Theme.surface : "transparent";
        }
        border.width: button.framed ? 1 : 0
        border.color: button.checked ? Theme.amber : Theme.hairline

        FocusRing { shown: button.visualFocus }
    }

    contentItem: Item {
        Icon {
            anchors.centerIn: parent
            name: button.icon
            size: button.iconSize
            colour: button.colour
            filled: button.filled
        }
        Badge {
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.horizontalCenterOffset: 12
            anchors.verticalCenter: parent.verticalCenter
            anchors.verticalCenterOffset: -12
            count: button.badge
        }
    }
}
