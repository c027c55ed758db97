import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Kit

// A calendar of one month to choose a day from: by touch, or with the arrow keys, Page Up, Page Down and Enter.
StepSheet {
    id: sheet

    property string date: ""
    property string today: ""
    property string minimum: ""

    signal done(string date)

    maximumWidth: 420
    onOpened: month.forceActiveFocus(Qt.PopupFocusReason)

    DateGrid {
        id: grid

        date: sheet.date
        today: sheet.today
        minimum: sheet.minimum
    }

    actions: [
        AppButton {
            objectName: sheet.name + "Clear"
            visible: sheet.date !== ""
            kind: "plain"
            text: "Quitar"
            onClicked: sheet.done("")
        },
        AppButton {
            objectName: sheet.name + "Cancel"
            kind: "secondary"
            text: "Cancelar"
            onClicked: sheet.dismissed()
        },
        AppButton {
            objectName: sheet.name + "Done"
            text: "Aceptar"
            onClicked: sheet.done(grid.date)
        }
    ]

    RowLayout {
        width: parent.width

        IconButton {
            objectName: sheet.name + "Former"
            enabled: grid.former
            icon: "chevron-left"
            text: "Mes anterior"
            onClicked: grid.moveMonths(-1)
        }
        Text {
            objectName: sheet.name + "Title"
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            text: grid.title
            color: Theme.ink
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontLarge
            font.weight: Font.Bold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        IconButton {
            objectName: sheet.name + "Next"
            icon: "chevron-right"
            text: "Mes siguiente"
            onClicked: grid.moveMonths(1)
        }
    }
    FocusScope {
        id: month

        objectName: sheet.name + "Month"
        width: parent.width
        height: days.implicitHeight + 8
        activeFocusOnTab: true

        Accessible.role: Accessible.Table
        Accessible.name: grid.title

        Keys.onPressed: (event) => {
            const steps = { [Qt.Key_Left]: -1, [Qt.Key_Right]: 1, [Qt.Key_Up]: -7, [Qt.Key_Down]: 7 };
            const months = { [Qt.Key_PageUp]: -1, [Qt.Key_PageDown]: 1 };
            event.accepted = true;
            if (event.key in steps)
                grid.moveDays(steps[event.key]);
            else if (event.key in months)
                grid.moveMonths(months[event.key]);
            else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
                sheet.done(grid.date);
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

                Tappable {
                    id: day

                    required property int index
                    readonly property var entry: grid.days[index]

                    objectName: entry.inMonth ? sheet.name + "Day" + entry.day : ""
                    width: days.side
                    height: 44
                    enabled: entry.offered
                    focusPolicy: Qt.NoFocus
                    activeFocusOnTab: false
                    accessibleName: entry.name
                    Accessible.selected: entry.current
                    onClicked: {
                        month.forceActiveFocus(Qt.MouseFocusReason);
                        grid.date = entry.date;
                    }

                    background: Item {
                        Rectangle {
                            anchors.centerIn: parent
                            width: 40
                            height: 40
                            radius: 20
                            color: day.entry.current ? Theme.bottle : day.down ? Theme.hairline
                                 : day.hot && day.enabled ? Theme.sunken : "transparent"
                            border.width: day.entry.isToday && !day.entry.current ? 2 : 0
                            border.color: Theme.amber
                        }
                    }
                    contentItem: Text {
                        horizontalAlignment: Text.AlignHCenter
                        verticalAlignment: Text.AlignVCenter
                        text: day.entry.day
                        color: day.entry.current ? Theme.inverseInk : Theme.ink
                        opacity: !day.entry.offered ? 0.25 : day.entry.inMonth || day.entry.current ? 1 : 0.5
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontBody
                        font.weight: day.entry.current || day.entry.isToday ? Font.Bold : Font.Normal
                    }
                }
            }
        }
    }
}
