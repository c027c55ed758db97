import QtQuick
import Kavor.Ui

// One of the two lists: its rows, or why there are none. Pulling it down beyond its beginning asks to load anew.
// A row has focusFirst(), by which the arrows reach it.
FocusScope {
    id: pane

    property string name: "" // objectName of the list
    property alias model: list.model
    property alias delegate: list.delegate
    property bool rowsShown: true
    property var emptiness: ({}) // icon, title, text, action
    property real footRoom: 0    // is covered by what stands over the foot
    readonly property alias count: list.count

    signal refreshAsked()

    function focusRow(row: int): void {
        if (row < 0 || row >= list.count || !rowsShown)
            return;
        if (!list.itemAtIndex(row)) {
            list.positionViewAtIndex(row, ListView.Contain);
            list.forceLayout();
        }
        list.itemAtIndex(row)?.focusFirst();
    }
    // The keyboard comes from the other list.
    function focusShownRow(): void {
        focusRow(Math.max(0, list.indexAt(list.width / 2, list.contentY + Theme.spaceL)));
    }

    ListView {
        id: list

        property bool pinned: true // stands at its beginning, also when rows come before it
        readonly property real pulled: Math.max(0, -verticalOvershoot)
        // A list that fits follows the finger half as far as one that scrolls.
        readonly property bool ready: pulled > (contentHeight + bottomMargin > height ? 64 : 32)

        objectName: pane.name
        anchors.fill: parent
        anchors.rightMargin: -Theme.spaceS // the mark of its place stands beside the rows
        clip: true
        reuseItems: true
        cacheBuffer: 400
        spacing: Theme.spaceS
        bottomMargin: Theme.spaceXL + pane.footRoom
        boundsBehavior: Flickable.DragOverBounds
        keyNavigationEnabled: false
        contentItem.visible: pane.rowsShown
        onDragEnded: {
            if (ready)
                pane.refreshAsked();
        }
        onMovementEnded: pinned = atYBeginning
        onContentYChanged: { // the keyboard scrolls too
            if (activeFocus && !moving)
                pinned = atYBeginning;
        }
        onOriginYChanged: {
            if (pinned && !moving)
                Qt.callLater(positionViewAtBeginning); // qmllint disable
        }
        onCountChanged: {
            if (pinned && !moving)
                Qt.callLater(positionViewAtBeginning); // qmllint disable
        }

        FocusFollower { view: list }
        ScrollMark {
            view: list
            visible: pane.rowsShown && list.contentHeight > list.height + 1
        }
    }

    Column { // what pulling does
        anchors.horizontalCenter: parent.horizontalCenter
        y: Math.min(list.pulled, 96) - height - Theme.spaceS
        visible: list.pulled > 0
        spacing: Theme.spaceXS

        Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            name: list.ready ? "refresh" : "chevron-down"
            size: 24
            colour: list.ready ? Theme.amberDark : Theme.mutedInk
        }
        HelpText {
            objectName: pane.name + "PullHint"
            text: list.ready ? "Suelta para actualizar" : "Tira para actualizar"
        }
    }
    EmptyState {
        objectName: pane.name + "Empty"
        y: Math.max(0, (pane.height - height) / 3) + list.pulled
        width: parent.width
        visible: (list.count === 0 || !pane.rowsShown) && title !== ""
        icon: pane.emptiness.icon ?? "orders"
        title: pane.emptiness.title ?? ""
        text: pane.emptiness.text ?? ""
        actionText: pane.emptiness.action ?? ""
        actionIcon: "refresh"
        onTriggered: pane.refreshAsked()
    }
}
