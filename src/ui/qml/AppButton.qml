import QtQuick
import Kavor.Ui

// A button with a word and, where it helps, a drawing. kind: "primary", "secondary", "danger" or "plain".
// A busy button shows a turning ring and takes no tap.
Tappable {
    id: button

    property string text: ""
    property string icon: ""
    property string kind: "primary"
    property bool busy: false

    readonly property bool filledKind: kind === "primary" || kind === "danger"
    readonly property color tone: kind === "danger" ? Theme.danger : Theme.bottle
    readonly property color labelColour: filledKind ? Theme.inverseInk : tone
    readonly property real beside: icon !== "" || busy ? 20 + (text !== "" ? Theme.spaceS : 0) : 0

    function trigger(): void {
        if (enabled && !busy)
            clicked();
    }

    accessibleName: text
    leftPadding: kind === "plain" ? Theme.spaceM : Theme.spaceXL - 4
    rightPadding: leftPadding
    font.weight: Font.Medium
    opacity: enabled ? 1 : 0.45

    background: Rectangle {
        radius: Theme.radius
        color: {
            if (button.filledKind)
                return button.down ? Qt.darker(button.tone, 1.25) : button.hot ? Qt.lighter(button.tone, 1.12) : button.tone;
            if (button.kind === "plain")
                return button.down ? Theme.hairline : button.hot ? Theme.sunken : "transparent";
            return button.down ? Theme.hairline : button.hot ? Theme.sunken : Theme.surface;
        }
        border.width: button.kind === "secondary" ? 1 : 0
        border.color: Qt.tint(Theme.hairline, Qt.rgba(button.tone.r, button.tone.g, button.tone.b, 0.35))

        FocusRing { shown: button.visualFocus }
    }

    contentItem: Item {
        implicitWidth: label.implicitWidth + button.beside
        implicitHeight: Math.max(24, label.implicitHeight)

        Row {
            id: row

            anchors.centerIn: parent
            spacing: Theme.spaceS

            Spinner {
                anchors.verticalCenter: parent.verticalCenter
                width: 20
                height: 20
                visible: button.busy
                colour: button.labelColour
            }
            Icon {
                anchors.verticalCenter: parent.verticalCenter
                visible: button.icon !== "" && !button.busy
                name: button.icon
                size: 20
                weight: 2
                colour: button.labelColour
            }
            Text {
                id: label

                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, Math.max(0, button.availableWidth - button.beside))
                visible: button.text !== ""
                text: button.text
                font: button.font
                color: button.labelColour
                elide: Text.ElideRight
            }
        }
    }
}
