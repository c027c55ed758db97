import QtQuick

// A panel with a hairline. Its children stand in a column; give a child width: parent.width.
// With `tappable` the whole card is a button.
Tappable {
    id: card

    default property alias content: column.data
    property bool tappable: false
    property bool selected: false
    property color ground: selected ? Theme.amberTint : Theme.surface

    spacing: Theme.spaceM
    padding: Theme.spaceL
    implicitWidth: Math.max(120, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    activeFocusOnTab: tappable
    focusPolicy: tappable ? Qt.StrongFocus : Qt.NoFocus
    acceptsTaps: tappable

    Accessible.role: tappable ? Accessible.Button : Accessible.Grouping

    background: Rectangle {
        radius: Theme.radius
        color: card.tappable && card.down ? Theme.sunken : card.ground
        border.width: card.selected ? 2 : 1
        border.color: card.selected ? Theme.amber : card.tappable && card.hot ? Theme.mutedInk : Theme.hairline

        FocusRing { shown: card.visualFocus }
    }

    contentItem: Column {
        id: column

        spacing: card.spacing
    }
}
