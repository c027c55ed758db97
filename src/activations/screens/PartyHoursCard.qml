import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Screens

// The two hours of the party, each chosen in a sheet.
Card {
    id: card

    required property PartyHours hours

    SectionTitle {
        width: parent.width
        icon: "clock"
        text: "Horas"
        detail: card.hours.durationText
    }
    RowLayout {
        width: parent.width
        spacing: Theme.spaceM

        Repeater {
            model: [["startTimeButton", "Inicio"], ["endTimeButton", "Fin"]]

            Tappable {
                id: button

                required property int index
                required property var modelData
                readonly property string hour: index === 0 ? card.hours.startTimeButton : card.hours.endTimeButton

                objectName: modelData[0]
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                implicitHeight: 68
                accessibleName: "Hora de " + modelData[1].toLowerCase() + ": " + hour
                onClicked: index === 0 ? card.hours.openStart() : card.hours.openEnd()

                background: FieldFrame {
                    color: button.down ? Theme.sunken : Theme.surface
                    FocusRing { shown: button.visualFocus }
                }
                contentItem: Column {
                    topPadding: 10

                    Text {
                        width: parent.width
                        horizontalAlignment: Text.AlignHCenter
                        text: button.modelData[1]
                        color: Theme.mutedInk
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontSmall
                        font.weight: Font.Medium
                    }
                    Text {
                        objectName: button.modelData[0] + "Text"
                        width: parent.width
                        horizontalAlignment: Text.AlignHCenter
                        text: button.hour
                        color: Theme.ink
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontTitle
                        font.weight: Font.Bold
                    }
                }
            }
        }
    }
}
