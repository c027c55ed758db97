import QtQuick
import QtQuick.Templates as T

// Base of everything that is tapped: mouse, touch, Enter and space, accessible press, focus by keyboard.
T.Control {
    id: control

    property string accessibleName: ""
    readonly property bool down: area.pressed && area.containsMouse || keyDown
    readonly property bool hot: area.containsMouse
    property bool keyDown: false
    property bool acceptsTaps: true

    signal clicked()
    signal longPressed()

    function trigger(): void {
        if (enabled)
            clicked();
    }

    implicitWidth: Math.max(Theme.touch, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(Theme.touch, implicitContentHeight + topPadding + bottomPadding)
    font.family: Theme.fontFamily
    font.pixelSize: Theme.fontBody
    focusPolicy: Qt.StrongFocus
    activeFocusOnTab: enabled
    hoverEnabled: true

    Accessible.role: Accessible.Button
    Accessible.name: accessibleName
    Accessible.focusable: true
    Accessible.onPressAction: trigger()

    Keys.onPressed: (event) => {
        if (!acceptsTaps)
            return;
        if (event.key === Qt.Key_Space || event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
            keyDown = true;
            event.accepted = true;
        }
    }
    Keys.onReleased: (event) => {
        if (keyDown && !event.isAutoRepeat) {
            keyDown = false;
            event.accepted = true;
            trigger();
        }
    }
    onActiveFocusChanged: {
        if (!activeFocus)
            keyDown = false;
    }

    MouseArea {
        id: area

        anchors.fill: parent
        z: -1
        enabled: control.acceptsTaps
        hoverEnabled: true
        cursorShape: control.enabled ? Qt.PointingHandCursor : Qt.ArrowCursor
        // Takes the focus from a field first, so that what was typed is handed over before the tap acts.
        onPressed: control.forceActiveFocus(Qt.MouseFocusReason)
        onClicked: control.trigger()
        onPressAndHold: control.longPressed()
    }
}
