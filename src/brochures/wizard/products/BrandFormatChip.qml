import QtQuick
import Kavor.Ui

// One format of a brand: in or out by one tap of a thumb.
Tappable {
    id: chip

    property string text: ""
    property string image: ""
    property bool selected: false
    property bool narrow: false // two fit beside each other on a phone

    accessibleName: text
    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: selected
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Theme.touch
    leftPadding: narrow ? Theme.spaceXS : Theme.spaceS
    rightPadding: narrow ? Theme.spaceS : Theme.spaceM

    background: Rectangle {
        radius: Theme.radius
        color: chip.selected ? (chip.down ? Theme.bottleDark : Theme.bottle)
             : chip.down ? Theme.hairline : chip.hot ? Theme.sunken : Theme.paper
        border.width: 1
        border.color: chip.selected ? Theme.bottle : Theme.hairline

        FocusRing { shown: chip.visualFocus }
    }

    contentItem: Item {
        implicitWidth: row.implicitWidth
        implicitHeight: 32

        Row {
            id: row

            anchors.verticalCenter: parent.verticalCenter
            spacing: chip.narrow ? Theme.spaceXS : Theme.spaceS

            ResourceImage {
                width: chip.narrow ? 28 : 32
                height: 32
                radius: 8
                visible: chip.image !== ""
                source: chip.image
                ground: chip.selected ? Theme.bottle : Theme.paper
                mat: "transparent"
                placeholderIcon: "bottle"
                fillMode: Image.PreserveAspectFit
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: chip.text
                color: chip.selected ? Theme.inverseInk : Theme.ink
                font: chip.font
            }
            Icon {
                anchors.verticalCenter: parent.verticalCenter
                name: chip.selected ? "check" : "plus"
                size: 18
                weight: 2
                colour: chip.selected ? Theme.amber : Theme.mutedInk
            }
        }
    }
}
