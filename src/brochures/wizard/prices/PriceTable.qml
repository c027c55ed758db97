import QtQuick
import Kavor.Ui
import Kavor.Screens

// A list of rows with price fields in columns, which are typed one below the other. A cell answers
// priceField(column); a column that is not on show is none of `shownColumns`.
ListView {
    id: list

    property var shownColumns: [0] // their numbers, ascending
    property real roomBelow: 0 // what stands below the list, which the keyboard covers first
    property bool pinned: true // stands at its beginning, also when the window turns
    readonly property real keyboard: Math.max(0, (InputMethod.visible ? InputMethod.keyboardRectangle.height : 0) - roomBelow)
    readonly property Item focused: Window.activeFocusItem

    // The field being typed into stays above the keyboard, also when Enter goes on to the next one.
    function keepInView(): void {
        let inside = false;
        for (let it = focused; it; it = it.parent)
            inside = inside || it === contentItem;
        if (!inside || moving)
            return;
        const top = focused.mapToItem(contentItem, 0, 0).y;
        if (top - Theme.spaceXXL < contentY)
            contentY = Math.max(originY, top - Theme.spaceXXL);
        else if (top + focused.height + Theme.spaceL > contentY + height)
            contentY = top + focused.height + Theme.spaceL - height;
        pinned = atYBeginning;
    }

    // Enter in a price: on to the price below it, from the foot of a column to the head of the next one. The last
    // price of all is taken and stays; the on-screen keyboard goes.
    function goOn(row: int, column: int): void {
        const foot = row + 1 === count;
        const next = shownColumns.find((shown) => shown > column);
        if (foot)
            priceAt(row, column).commit(); // the list may let go of its foot as it turns to its head
        if (foot && next === undefined)
            InputMethod.hide();
        else
            priceAt(foot ? 0 : row + 1, foot ? next : column).forceActiveFocus(Qt.TabFocusReason);
    }
    // The price field of a row, whose cell is made where the list hasn't got it yet.
    function priceAt(row: int, column: int): PriceField {
        if (!itemAtIndex(row)) {
            positionViewAtIndex(row, ListView.Contain);
            forceLayout();
        }
        return (itemAtIndex(row) as PriceCell).priceField(column);
    }

    onFocusedChanged: keepInView()
    onHeightChanged: Qt.callLater(keepInView) // qmllint disable
    cacheBuffer: 4000 // a field that is being typed into stays when it is scrolled away
    boundsBehavior: Flickable.DragOverBounds
    bottomMargin: Theme.spaceXL
    onMovementEnded: pinned = atYBeginning
    onOriginYChanged: {
        if (pinned && !moving)
            Qt.callLater(positionViewAtBeginning); // qmllint disable
    }

    FocusFollower { view: list }
}
