import QtQuick

// Whether any part of an item shows in the Flickable around it. The software renderer takes a clip that misses the
// clip around it for none at all, so what scrolls out of sight must not clip.
QtObject {
    id: inView

    property Item item: null
    property Flickable scroller: null
    readonly property bool value: {
        if (!scroller || !item)
            return true;
        // Read for the binding: a place moves with the content.
        const moved = scroller.contentX + scroller.contentY + scroller.contentHeight;
        const place = item.mapToItem(scroller, 0, 0);
        return moved === moved && place.y < scroller.height && place.y + item.height > 0
            && place.x < scroller.width && place.x + item.width > 0;
    }

    Component.onCompleted: {
        let up = item ? item.parent : null;
        while (up && !(up instanceof Flickable))
            up = up.parent;
        scroller = up;
    }
}
