import QtQuick
import Kavor.Ui

// A small word with a drawing. tone: "neutral", "bottle", "amber", "danger", "success"; `dot` shows a given
// colour before the word instead. It is only a sign unless `tappable` makes it a choice.
Tappable {
    id: chip

    property string text: ""
    property string icon: ""
    property string tone: "neutral"
    property color dot: "transparent"
    property bool tappable: false
    property bool selected: false
    property bool inverse: false

    readonly property real beside: (icon !== "" ? (tappable ? 18 : 16) + (text !== "" ? 6 : 0) : 0) + (dot.a > 0 ? 16 : 0)
    readonly property color labelColour: selected ? Theme.inverseInk : inverse ? Theme.inverseInk : Theme.toneInk(tone)

    accessibleName: text
    acceptsTaps: tappable
    activeFocusOnTab: tappable
    focusPolicy: tappable ? Qt.StrongFocus : Qt.NoFocus
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: tappable ? Theme.touch : 28
    leftPadding: Theme.spaceM
    rightPadding: Theme.spaceM
    font.pixelSize: tappable ? Theme.fontBody : Theme.fontSmall
    font.weight: Font.Medium

    Accessible.role: tappable ? Accessible.Button : Accessible.StaticText
    Accessible.checked: selected

    background: Item {
        Rectangle {
            width: parent.width
            height: chip.tappable ? 36 : parent.height
            anchors.verticalCenter: parent.verticalCenter
            radius: height / 2
            color: {
                if (chip.selected)
                    return Theme.bottle;
                if (chip.inverse)
                    return Theme.bottleLight;
                const ground = Theme.toneGround(chip.tone);
                return chip.down ? Qt.darker(ground, 1.08) : ground;
            }
            border.width: chip.tappable && !chip.selected ? 1 : 0
            border.color: chip.hot ? Theme.mutedInk : Theme.hairline

            FocusRing { shown: chip.visualFocus; corner: parent.radius }
        }
    }

    contentItem: Item {
        implicitWidth: label.implicitWidth + chip.beside
        implicitHeight: label.implicitHeight

        Row {
            id: row

            anchors.centerIn: parent
            spacing: 6

            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: 10
                height: 10
                radius: 5
                visible: chip.dot.a > 0
                color: chip.dot
                border.width: 1
                border.color: Qt.darker(chip.dot, 1.2)
            }
            Icon {
                anchors.verticalCenter: parent.verticalCenter
                visible: chip.icon !== ""
                name: chip.icon
                size: chip.tappable ? 18 : 16
                weight: 2
                colour: chip.labelColour
            }
            Text {
                id: label

                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, Math.max(0, chip.availableWidth - chip.beside))
                visible: text !== ""
                text: chip.text
                font: chip.font
                color: chip.labelColour
                elide: Text.ElideRight
            }
        }
    }
}
