import QtQuick
import Kavor.Ui
import Kavor.Screens

// A board as it is designed, scaled as a whole to the width: pictures to tap, turned about their middles, and
// the badges beside them. A control can be touched on 48 px at least.
Item {
    id: board

    required property ActivationBoardModel model
    property string name: "boardControl" // objectName of a control, before its number
    readonly property real unit: model.size.width > 0 ? width / model.size.width : 1

    signal tapped(var identifier)

    implicitHeight: model.size.height * unit

    Repeater {
        model: board.model

        Item {
            id: control

            required property var identifier
            required property string name
            required property string source
            required property rect place
            required property int rotate
            required property bool selected
            required property rect badgePlace
            required property int badgeFontSize
            required property string badgeText
            required property bool badgeOn

            anchors.fill: parent

            Tappable {
                id: touch

                objectName: board.name + control.identifier
                x: (control.place.x + control.place.width / 2) * board.unit - width / 2
                y: (control.place.y + control.place.height / 2) * board.unit - height / 2
                width: Math.max(Theme.touch, control.place.width * board.unit)
                height: Math.max(Theme.touch, control.place.height * board.unit)
                rotation: control.rotate
                padding: 0
                scale: down ? 0.97 : 1
                accessibleName: control.name + (control.badgeText !== "" ? ", " + control.badgeText : "")
                Accessible.selected: control.selected
                onClicked: board.tapped(control.identifier)

                background: Item {
                    Rectangle {
                        anchors.centerIn: parent
                        width: picture.width + 8
                        height: picture.height + 8
                        radius: Theme.radius + 4
                        visible: control.selected || touch.visualFocus
                        color: control.selected ? Theme.amberTint : "transparent"
                        border.width: 3
                        border.color: Theme.amber
                    }
                }
                contentItem: Item {
                    ResourceImage {
                        id: picture

                        anchors.centerIn: parent
                        width: control.place.width * board.unit
                        height: control.place.height * board.unit
                        source: control.source
                        text: control.name
                        mat: "transparent"
                        radius: 0
                        placeholderIcon: "party"
                        fillMode: Image.PreserveAspectFit
                    }
                }

                Behavior on scale { NumberAnimation { duration: Theme.fast } }
            }
            Rectangle { // the badge: a full circle while there is room
                objectName: "quotaBadge" + control.identifier
                x: control.badgePlace.x * board.unit
                y: control.badgePlace.y * board.unit
                width: control.badgePlace.width * board.unit
                height: control.badgePlace.height * board.unit
                visible: control.badgeText !== ""
                radius: Math.min(width, height) / 2
                color: control.badgeOn ? Theme.bottle : Theme.surface
                border.width: Math.max(2, width * 0.06)
                border.color: control.badgeOn ? Theme.amber : Theme.danger

                Text {
                    anchors.centerIn: parent
                    rotation: control.rotate
                    text: control.badgeText
                    color: control.badgeOn ? Theme.inverseInk : Theme.dangerDark
                    font.family: Theme.fontFamily
                    font.weight: Font.Bold
                    font.pixelSize: Math.max(1, control.badgeFontSize * board.unit)
                }
            }
        }
    }
}
