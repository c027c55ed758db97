import QtQuick
import Kavor.Kit
import Kavor.Screens
import Kavor.Ui

// An hour, chosen by two taps: the hour of the day and its minutes.
StepSheet {
    id: sheet

    required property PartyHours hours

    name: "hourSheet"
    title: hours.title
    maximumWidth: 460
    onDismissed: hours.cancel()

    actions: [
        AppButton {
            objectName: "hourSheetCancel"
            kind: "secondary"
            text: "Cancelar"
            onClicked: sheet.hours.cancel()
        },
        AppButton {
            objectName: "hourSheetSelect"
            text: "Seleccionar"
            onClicked: sheet.hours.select()
        }
    ]

    Text {
        objectName: "hourSheetText"
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        text: String(sheet.hours.hour).padStart(2, "0") + ":" + String(sheet.hours.minute).padStart(2, "0")
        color: Theme.bottle
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontDisplay
        font.weight: Font.Bold
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    Repeater {
        model: [["Hora", 24, 1], ["Minutos", 12, 5]]

        Column {
            id: part

            required property int index
            required property var modelData

            width: parent.width
            spacing: Theme.spaceS

            HelpText { text: part.modelData[0] }
            Grid {
                id: grid

                width: parent.width
                columns: 6

                Repeater {
                    model: part.modelData[1]

                    Tappable {
                        id: entry

                        required property int index
                        readonly property int value: index * part.modelData[2]
                        readonly property bool on: value === (part.index === 0 ? sheet.hours.hour : sheet.hours.minute)

                        objectName: (part.index === 0 ? "hour" : "minute") + value
                        width: grid.width / 6
                        height: 48
                        padding: 0
                        accessibleName: part.modelData[0] + " " + value
                        Accessible.selected: on
                        onClicked: part.index === 0 ? sheet.hours.pickHour(value) : sheet.hours.pickMinute(value)

                        background: Item {
                            Rectangle {
                                anchors.fill: parent
                                anchors.margins: 3
                                radius: Theme.radius
                                color: entry.on ? Theme.bottle : entry.down ? Theme.hairline
                                     : entry.hot ? Theme.sunken : Theme.paper

                                FocusRing { shown: entry.visualFocus }
                            }
                        }
                        contentItem: Text {
                            horizontalAlignment: Text.AlignHCenter
                            verticalAlignment: Text.AlignVCenter
                            text: String(entry.value).padStart(2, "0")
                            color: entry.on ? Theme.inverseInk : Theme.ink
                            font.family: Theme.fontFamily
                            font.pixelSize: Theme.fontBody
                            font.weight: entry.on ? Font.Bold : Font.Normal
                        }
                    }
                }
            }
        }
    }
}
