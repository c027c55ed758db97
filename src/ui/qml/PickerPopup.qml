import QtQuick
import QtQuick.Templates as T
import Kavor.Ui

// The list of PickerRow; also usable by itself with open(). Options are named optionName + "Option" + index.
T.Popup {
    id: popup

    property Item anchor: null // the list drops below this item when the window is wide
    property string title: ""
    property string optionName: ""
    property var texts: []
    property int currentIndex: -1
    readonly property bool sheet: Theme.compact || anchor === null
    readonly property bool searchable: texts.length > 12
    readonly property real areaWidth: parent ? parent.width : 0
    readonly property real areaHeight: parent ? parent.height : 0
    property point anchorAt: Qt.point(0, 0)
    readonly property real wantedHeight: (sheet ? 56 : 0) + (searchable ? 66 : 0) + list.contentHeight + 2 * padding
    property Item returnTo: null // had the focus before
    property string filter: ""
    // Indexes into texts that pass the search.
    readonly property var passing: {
        const wanted = folded(filter), found = [];
        for (let i = 0; i < texts.length; ++i) {
            if (wanted === "" || folded(texts[i]).indexOf(wanted) >= 0)
                found.push(i);
        }
        return found;
    }

    signal chosen(int index)

    function folded(text: string): string {
        return text.normalize("NFD").replace(/[\u0300-\u036f]/g, "").toLowerCase();
    }
    function choose(index: int): void {
        close();
        chosen(index);
    }

    parent: T.Overlay.overlay
    modal: true
    dim: true
    focus: true
    padding: sheet ? 0 : 6
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    width: sheet ? areaWidth : Math.min(areaWidth - 32, Math.max(anchor.width, 280))
    height: Math.min(wantedHeight + (sheet ? Theme.spaceL : 0), sheet ? areaHeight * 0.75 : Math.min(420, areaHeight - 32))
    x: sheet ? 0 : Math.max(16, Math.min(anchorAt.x, areaWidth - width - 16))
    y: {
        if (sheet)
            return areaHeight - height;
        const below = anchorAt.y + anchor.height + 4;
        return below + height + 16 <= areaHeight ? below : Math.max(16, Math.min(anchorAt.y - height - 4, areaHeight - height - 16));
    }

    onAboutToShow: {
        returnTo = parent.Window.activeFocusItem;
        filter = "";
        if (!sheet)
            anchorAt = anchor.mapToItem(parent, 0, 0);
    }
    onOpened: {
        list.currentIndex = Math.max(0, passing.indexOf(currentIndex));
        list.positionViewAtIndex(list.currentIndex, ListView.Center);
        list.forceActiveFocus(Qt.PopupFocusReason);
    }

    onClosed: returnTo?.forceActiveFocus(Qt.PopupFocusReason)

    T.Overlay.modal: Rectangle { color: popup.sheet ? Theme.scrim : "transparent" }

    background: Rectangle {
        radius: popup.sheet ? 20 : Theme.radius
        color: Theme.surface
        border.width: 1
        border.color: Theme.hairline

        Rectangle { // square lower corners of the sheet
            visible: popup.sheet
            anchors.bottom: parent.bottom
            width: parent.width
            height: 20
            color: Theme.surface
        }
        Rectangle {
            visible: popup.sheet
            anchors.horizontalCenter: parent.horizontalCenter
            y: 8
            width: 40
            height: 4
            radius: 2
            color: Theme.hairline
        }
    }

    contentItem: Item {
        Text {
            id: heading

            visible: popup.sheet
            x: Theme.spaceL
            y: 16
            width: parent.width - 2 * x
            height: visible ? 40 : 0
            verticalAlignment: Text.AlignVCenter
            text: popup.title
            color: Theme.bottle
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontLarge
            font.weight: Font.Bold
        }
        SearchField {
            id: search

            objectName: popup.optionName + "Search"
            visible: popup.searchable
            x: popup.sheet ? Theme.spaceL : 4
            y: popup.sheet ? 56 : 4
            width: parent.width - 2 * x
            onEdited: (text) => popup.filter = text
            Keys.onDownPressed: list.forceActiveFocus(Qt.TabFocusReason)
        }
        ListView {
            id: list

            anchors.fill: parent
            anchors.topMargin: (popup.sheet ? 56 : 0) + (popup.searchable ? 62 : 0)
            anchors.bottomMargin: popup.sheet ? Theme.spaceM : 0
            clip: true
            model: popup.passing
            boundsBehavior: Flickable.StopAtBounds
            keyNavigationEnabled: true
            activeFocusOnTab: true
            Keys.onReturnPressed: popup.choose(popup.passing[currentIndex])
            Keys.onEnterPressed: popup.choose(popup.passing[currentIndex])
            Keys.onSpacePressed: popup.choose(popup.passing[currentIndex])

            delegate: ListRow {
                id: option

                required property int modelData
                required property int index

                objectName: popup.optionName + "Option" + modelData
                width: ListView.view.width
                implicitHeight: 48
                text: popup.texts[modelData] ?? ""
                selected: modelData === popup.currentIndex
                separator: index < list.count - 1
                activeFocusOnTab: false
                Accessible.role: Accessible.ListItem
                onClicked: popup.choose(modelData)
                trailing: Icon { visible: option.selected; name: "check"; size: visible ? 20 : 0; colour: Theme.bottle }

                FocusRing {
                    shown: list.activeFocus && option.ListView.isCurrentItem
                    anchors.margins: 2
                    corner: 6
                }
            }
        }
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.fast }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.fast }
    }
}
