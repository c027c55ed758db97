import QtQuick
import Kavor.Ui

// The entries of a wizard or of the client: a rail at the side of a wide window, a strip to swipe on a phone.
// model: a list of {id, text, icon, selected, visible, badge, done, enabled}; all but id and text may be absent.
// Entries are named "menuEntry" + id.
FocusScope {
    id: menu

    property var model: []
    property bool vertical: !Theme.compact
    property color ground: Theme.surface

    signal tapped(var id)

    implicitWidth: vertical ? 216 : 320
    implicitHeight: vertical ? 400 : 76

    // Brings the chosen entry into view.
    function follow(item: Item): void {
        const at = vertical ? item.y : item.x;
        const size = vertical ? item.height : item.width;
        const room = vertical ? flick.height : flick.width;
        const position = vertical ? flick.contentY : flick.contentX;
        const last = Math.max(0, (vertical ? flick.contentHeight : flick.contentWidth) - room);
        let wanted = position;
        if (at + size + 24 > position + room)
            wanted = at + size + 24 - room;
        if (at - 24 < wanted)
            wanted = at - 24;
        wanted = Math.max(0, Math.min(wanted, last));
        if (vertical)
            flick.contentY = wanted;
        else
            flick.contentX = wanted;
    }

    Accessible.role: Accessible.PageTabList
    Accessible.name: "Pasos"

    Rectangle {
        anchors.fill: parent
        color: menu.ground

        Rectangle {
            x: menu.vertical ? parent.width - 1 : 0
            y: menu.vertical ? 0 : parent.height - 1
            width: menu.vertical ? 1 : parent.width
            height: menu.vertical ? parent.height : 1
            color: Theme.hairline
        }
    }

    Flickable {
        id: flick

        anchors.fill: parent
        contentWidth: menu.vertical ? width : grid.implicitWidth
        contentHeight: menu.vertical ? grid.implicitHeight : height
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        FocusFollower { view: flick }
        Grid {
            id: grid

            padding: menu.vertical ? Theme.spaceS : Theme.spaceXS
            columns: menu.vertical ? 1 : Math.max(1, repeater.count)
            spacing: 2

            Repeater {
                id: repeater

                model: menu.model ? menu.model.length : 0

                StepMenuEntry {
                    id: entryItem

                    required property int index
                    readonly property var entry: menu.model[index] ?? ({})

                    objectName: "menuEntry" + (entry.id ?? "")
                    visible: entry.visible ?? true
                    enabled: entry.enabled ?? true
                    vertical: menu.vertical
                    width: menu.vertical ? menu.width - 2 * grid.padding : implicitWidth
                    height: menu.vertical ? 52 : menu.height - 2 * grid.padding
                    text: entry.text ?? ""
                    icon: entry.icon ?? ""
                    selected: entry.selected ?? false
                    done: entry.done ?? false
                    badge: entry.badge ? String(entry.badge) : ""
                    onClicked: menu.tapped(entry.id)
                    onSelectedChanged: {
                        if (selected)
                            Qt.callLater(menu.follow, this); // qmllint disable
                    }
                    onActiveFocusChanged: {
                        if (activeFocus)
                            menu.follow(this);
                    }

                    Connections {
                        target: flick

                        // A turned or resized window shows another part of the strip.
                        function onWidthChanged(): void {
                            if (entryItem.selected)
                                Qt.callLater(menu.follow, entryItem); // qmllint disable
                        }
                    }
                    Keys.onPressed: (event) => {
                        const forward = menu.vertical ? Qt.Key_Down : Qt.Key_Right;
                        const backward = menu.vertical ? Qt.Key_Up : Qt.Key_Left;
                        if (event.key === forward || event.key === backward) {
                            nextItemInFocusChain(event.key === forward).forceActiveFocus(Qt.TabFocusReason);
                            event.accepted = true;
                        }
                    }
                }
            }
        }
    }
}
