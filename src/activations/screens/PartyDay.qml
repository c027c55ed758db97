import QtQuick
import Kavor.Ui

// A day of the calendar of a party. Every one of the month can be tapped; the form says why one cannot be.
Tappable {
    id: day

    required property var entry
    property bool cursorShown: false

    objectName: entry.inMonth ? "partyDay" + entry.day : ""
    implicitHeight: 44
    padding: 0
    enabled: entry.inMonth
    focusPolicy: Qt.NoFocus
    activeFocusOnTab: false
    accessibleName: entry.name + (entry.notice ? ", dentro de la antelación" : "") + (entry.outside ? ", fuera de campaña" : "")
    Accessible.selected: entry.selected

    background: Item {
        PartyDayGround {
            anchors.centerIn: parent
            width: day.entry.notice ? parent.width - 2 : 40
            height: 40
            isToday: day.entry.isToday
            hatched: day.entry.notice && day.entry.inMonth
            dim: day.entry.outside && day.entry.inMonth
            selected: day.entry.selected
            pressed: day.down
            hovered: day.hot && day.enabled
        }
        Rectangle { // the keyboard's cursor
            anchors.centerIn: parent
            width: 42
            height: 42
            radius: 21
            visible: day.cursorShown && day.entry.current
            color: "transparent"
            border.width: 1
            border.color: Theme.bottle
        }
    }
    contentItem: Text {
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        text: day.entry.day
        color: day.entry.selected ? Theme.inverseInk : Theme.ink
        opacity: day.entry.selected ? 1 : !day.entry.inMonth ? 0.2 : day.entry.past ? 0.35 : day.entry.outside ? 0.4
               : day.entry.notice ? 0.6 : 1
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontBody
        font.weight: day.entry.selected || day.entry.isToday ? Font.Bold : Font.Normal
    }
}
