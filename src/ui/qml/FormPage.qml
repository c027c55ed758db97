import QtQuick
import QtQuick.Layouts

// A scrolling form: children stand in a grid of two columns where there is room, one on a phone. A child that
// needs the whole width sets Layout.columnSpan: page.columns. The field being typed into stays in view above
// the on-screen keyboard.
Flickable {
    id: page

    default property alias content: grid.data
    property real maximumWidth: Theme.maximumContentWidth
    property bool twoColumns: width >= 700
    readonly property int columns: twoColumns ? 2 : 1
    property real margin: Theme.pageMargin
    property real keyboardHeight: InputMethod.visible ? InputMethod.keyboardRectangle.height : 0
    readonly property Item focused: Window.activeFocusItem
    // How much of this page the keyboard covers.
    readonly property real covered: {
        if (keyboardHeight <= 0 || !Window.window)
            return 0;
        const bottom = mapToItem(null, 0, height).y;
        return Math.max(0, bottom - (Window.height - keyboardHeight));
    }

    function holds(item: Item): bool {
        for (let it = item; it; it = it.parent) {
            if (it === grid)
                return true;
        }
        return false;
    }
    // Gives every filling child the width of its columns, so that both columns are equal, and aligns rows at the top.
    function alignChildren(): void {
        for (let i = 0; i < grid.children.length; ++i) {
            const child = grid.children[i];
            if (!child.Layout.fillWidth)
                continue;
            child.Layout.preferredWidth = Qt.binding(() => child.Layout.columnSpan > 1 ? grid.width : grid.columnWidth);
            if (child.Layout.alignment === 0)
                child.Layout.alignment = Qt.AlignTop;
        }
    }
    function keepInView(): void {
        if (!focused || !holds(focused))
            return;
        // What is being pressed must not move away from under the finger, or the tap is lost.
        if (focused.acceptsTaps && focused.focusReason === Qt.MouseFocusReason) // qmllint disable
            return;
        const top = focused.mapToItem(contentItem, 0, 0).y - Theme.spaceXL;
        const bottom = top + focused.height + 2 * Theme.spaceXL;
        const room = height - covered;
        let wanted = contentY;
        if (bottom > wanted + room)
            wanted = bottom - room;
        if (top < wanted)
            wanted = top;
        const last = Math.max(0, contentHeight + bottomMargin - height);
        contentY = Math.max(0, Math.min(wanted, last));
    }

    contentWidth: width
    contentHeight: grid.implicitHeight + 2 * margin
    bottomMargin: covered
    clip: true
    boundsBehavior: Flickable.DragOverBounds
    flickableDirection: Flickable.VerticalFlick
    Component.onCompleted: alignChildren()
    onFocusedChanged: keepInView()
    onCoveredChanged: Qt.callLater(keepInView) // qmllint disable
    onHeightChanged: Qt.callLater(keepInView) // qmllint disable

    ScrollMark { view: page }
    GridLayout {
        id: grid

        readonly property real columnWidth: columns < 2 ? width : (width - columnSpacing) / 2

        x: Math.max(page.margin, (page.width - width) / 2)
        y: page.margin
        width: Math.min(page.maximumWidth, page.width - 2 * page.margin)
        columns: page.columns
        columnSpacing: Theme.spaceXL
        rowSpacing: Theme.spaceL
        onChildrenChanged: Qt.callLater(page.alignChildren) // qmllint disable
    }
}
