import QtQuick
import QtQuick.Templates as T
import Kavor.Ui

// A small form over a step: a panel in the middle of a tablet, a sheet from below on a phone. It stays above the
// on-screen keyboard; `dismissed` when the user closes it.
T.Popup {
    id: sheet

    property string title: ""
    property string name: "" // objectName of the parts
    property real maximumWidth: 560
    default property alias content: column.data
    property alias actions: actionRow.data
    readonly property bool fromBelow: Theme.compact
    readonly property real keyboard: InputMethod.visible ? InputMethod.keyboardRectangle.height : 0
    readonly property real areaHeight: (parent ? parent.height : 600) - keyboard
    readonly property Item focused: Window.activeFocusItem

    signal dismissed()

    function keepInView(): void {
        if (!focused || !sheet.opened)
            return;
        let inside = false;
        for (let it = focused; it; it = it.parent)
            inside = inside || it === column;
        if (!inside)
            return;
        const top = focused.mapToItem(column, 0, 0).y;
        const last = Math.max(0, body.contentHeight - body.height);
        if (top < body.contentY)
            body.contentY = Math.max(0, top - Theme.spaceL);
        else if (top + focused.height > body.contentY + body.height)
            body.contentY = Math.min(last, top + focused.height - body.height + Theme.spaceL);
    }

    onFocusedChanged: keepInView()
    parent: T.Overlay.overlay
    modal: true
    focus: true
    visible: true
    padding: fromBelow ? Theme.spaceL : Theme.spaceXL
    width: fromBelow ? (parent ? parent.width : 320) : Math.min((parent ? parent.width : 600) - 48, maximumWidth)
    height: Math.min(areaHeight - (fromBelow ? 32 : 48), frame.implicitHeight + 2 * padding)
    x: ((parent ? parent.width : width) - width) / 2
    y: fromBelow ? areaHeight - height : (areaHeight - height) / 2
    closePolicy: T.Popup.CloseOnEscape
    onClosed: dismissed()

    T.Overlay.modal: Rectangle { color: Theme.scrim }

    background: Rectangle {
        radius: 20
        color: Theme.surface
        border.width: 1
        border.color: Theme.hairline

        Rectangle { // square lower corners of a sheet
            visible: sheet.fromBelow
            anchors.bottom: parent.bottom
            width: parent.width
            height: 20
            color: Theme.surface
        }
    }

    contentItem: Item {
        id: frame

        implicitHeight: heading.height + column.implicitHeight + actionRow.height + 2 * Theme.spaceL

        SectionTitle {
            id: heading

            width: parent.width - closing.width
            height: Theme.touch
            text: sheet.title
        }
        IconButton {
            id: closing

            objectName: sheet.name + "Close"
            anchors.right: parent.right
            icon: "close"
            text: "Cerrar"
            onClicked: sheet.dismissed()
        }
        Flickable {
            id: body

            anchors.top: heading.bottom
            anchors.topMargin: Theme.spaceS
            anchors.bottom: actionRow.top
            anchors.bottomMargin: Theme.spaceL
            width: parent.width
            contentHeight: column.implicitHeight
            clip: true
            boundsBehavior: Flickable.StopAtBounds

            Column {
                id: column

                width: parent.width
                spacing: Theme.spaceL
            }
        }
        Row {
            id: actionRow

            anchors.bottom: parent.bottom
            anchors.right: parent.right
            spacing: Theme.spaceM
        }
    }
}
