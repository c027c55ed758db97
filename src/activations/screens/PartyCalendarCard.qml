import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Screens

// The month in which the day is chosen: today with a ring, the days of notice hatched, days out of season dim.
Card {
    id: card

    required property PartyCalendar calendar

    SectionTitle {
        width: parent.width
        icon: "calendar"
        text: "Día"
        detail: card.calendar.partyDateText
    }
    HelpText {
        objectName: "firstDayText"
        width: parent.width
        font.pixelSize: Theme.fontBody
        tone: "bottle"
        text: card.calendar.blocked ? "La fecha es la del pedido al que se asocia." : card.calendar.firstDayText
    }
    RowLayout {
        width: parent.width

        IconButton {
            objectName: "formerMonth"
            enabled: card.calendar.former
            icon: "chevron-left"
            text: "Mes anterior"
            onClicked: card.calendar.moveMonths(-1)
        }
        Text {
            objectName: "monthTitle"
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            text: card.calendar.title
            color: Theme.ink
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontLarge
            font.weight: Font.Bold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        IconButton {
            objectName: "nextMonth"
            enabled: !card.calendar.blocked
            icon: "chevron-right"
            text: "Mes siguiente"
            onClicked: card.calendar.moveMonths(1)
        }
    }
    FocusScope {
        id: month

        objectName: "partyMonth"
        width: parent.width
        height: days.implicitHeight + 8
        enabled: !card.calendar.blocked
        opacity: enabled ? 1 : 0.6
        activeFocusOnTab: true

        Accessible.role: Accessible.Table
        Accessible.name: card.calendar.title

        Keys.onPressed: (event) => {
            const steps = { [Qt.Key_Left]: -1, [Qt.Key_Right]: 1, [Qt.Key_Up]: -7, [Qt.Key_Down]: 7 };
            const months = { [Qt.Key_PageUp]: -1, [Qt.Key_PageDown]: 1 };
            event.accepted = true;
            if (event.key in steps)
                card.calendar.moveDays(steps[event.key]);
            else if (event.key in months)
                card.calendar.moveMonths(months[event.key]);
            else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_Space)
                card.calendar.tapCurrent();
            else
                event.accepted = false;
        }

        FocusRing { shown: month.activeFocus; anchors.margins: 1 }
        Grid {
            id: days

            readonly property real side: width / 7

            y: 4
            width: parent.width
            columns: 7

            Repeater {
                model: ["L", "M", "X", "J", "V", "S", "D"]

                Text {
                    required property string modelData

                    width: days.side
                    height: 28
                    horizontalAlignment: Text.AlignHCenter
                    text: modelData
                    color: Theme.mutedInk
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontSmall
                    font.weight: Font.Medium
                }
            }
            Repeater {
                model: 42

                PartyDay {
                    required property int index

                    width: days.side
                    entry: card.calendar.days[index]
                    cursorShown: month.activeFocus
                    onClicked: {
                        month.forceActiveFocus(Qt.MouseFocusReason);
                        card.calendar.tap(entry.date);
                    }
                }
            }
        }
    }
    Flow {
        width: parent.width
        spacing: Theme.spaceL

        Repeater {
            model: [["today", "Hoy"], ["notice", "Días de antelación"], ["outside", "Fuera de campaña"]]

            Row {
                id: legend

                required property var modelData

                visible: modelData[0] !== "outside" || card.calendar.availabilityText !== ""
                spacing: 6

                PartyDayGround {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 20
                    height: 20
                    isToday: legend.modelData[0] === "today"
                    hatched: legend.modelData[0] === "notice"
                    dim: legend.modelData[0] === "outside"
                }
                HelpText { anchors.verticalCenter: parent.verticalCenter; text: legend.modelData[1] }
            }
        }
    }
    HelpText {
        width: parent.width
        text: card.calendar.availabilityText !== "" ? "Disponible: " + card.calendar.availabilityText.toLowerCase() : ""
    }
}
