import QtQuick
import Kavor.Ui

// One section of the list of sheets. What is tapped of a row is told by the row's key.
FocusScope {
    id: pane

    property string title: ""
    property var rows: null
    property var empty: ({})
    property bool draft: false

    signal emptyTriggered()
    signal opened(string key)
    signal previewed(string key)
    signal sendTapped(string key)
    signal copyTapped(string key)
    signal deleteTapped(string key)

    SectionTitle {
        id: head

        x: Theme.pageMargin
        y: visible ? Theme.spaceM : 0
        width: parent.width - 2 * x
        height: visible ? implicitHeight : 0
        visible: pane.title !== ""
        text: pane.title
        icon: pane.draft ? "edit" : "send"
    }
    ListView {
        id: list

        objectName: pane.objectName + "List"
        anchors.top: head.bottom
        anchors.topMargin: Theme.spaceM
        anchors.bottom: parent.bottom
        x: Theme.pageMargin
        width: parent.width - 2 * x
        clip: true
        focus: true
        spacing: Theme.spaceM
        bottomMargin: Theme.pageMargin
        boundsBehavior: Flickable.DragOverBounds
        model: pane.rows

        Accessible.role: Accessible.List
        Accessible.name: pane.title
        ScrollMark { view: list }
        FocusFollower { view: list }

        delegate: SheetListCell {
            width: list.width
            draft: pane.draft
            onOpened: pane.opened(key)
            onPreviewed: pane.previewed(key)
            onSendTapped: pane.sendTapped(key)
            onCopyTapped: pane.copyTapped(key)
            onDeleteTapped: pane.deleteTapped(key)
        }
    }
    EmptyState {
        objectName: pane.objectName + "Empty"
        anchors.fill: list
        visible: list.count === 0
        icon: pane.empty.icon ?? "info"
        title: pane.empty.title ?? ""
        text: pane.empty.text ?? ""
        actionText: pane.empty.action ?? ""
        onTriggered: pane.emptyTriggered()
    }
}
