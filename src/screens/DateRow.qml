import QtQuick
import Kavor.Ui
import Kavor.Kit

// A date, "dd-MM-yy", chosen in a calendar. It asks with `done(date)`, empty to take the date away, or says
// `cancelled`, and shows what `text` says afterwards.
FocusScope {
    id: row

    property string label: ""
    property string text: ""
    property string shown: text // where the form shows the date in another way than the calendar
    property string placeholder: "Sin fecha"
    property string error: ""
    property string today: ""
    property string minimum: ""

    signal done(string date)
    signal cancelled()

    implicitWidth: 280
    implicitHeight: column.implicitHeight

    Column {
        id: column

        width: parent.width
        spacing: 6

        Text {
            width: parent.width
            visible: row.label !== ""
            text: row.label
            color: row.error !== "" ? Theme.dangerDark : Theme.mutedInk
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
            font.weight: Font.Medium
        }
        Tappable {
            id: button

            width: parent.width
            height: Theme.touch + 2
            focus: true
            leftPadding: Theme.spaceM
            rightPadding: Theme.spaceM
            accessibleName: row.label
            Accessible.description: (row.text !== "" ? row.shown : row.placeholder) + (row.error !== "" ? ". " + row.error : "")
            onClicked: calendar.active = true
            Keys.onDownPressed: calendar.active = true

            background: FieldFrame {
                active: calendar.active
                wrong: row.error !== ""
                FocusRing { shown: button.visualFocus }
            }
            contentItem: Item {
                Icon {
                    id: drawing

                    anchors.verticalCenter: parent.verticalCenter
                    name: "calendar"
                    size: 20
                    colour: Theme.mutedInk
                }
                Text {
                    anchors.left: drawing.right
                    anchors.leftMargin: Theme.spaceM
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    text: row.text !== "" ? row.shown : row.placeholder
                    color: row.text !== "" ? Theme.ink : Theme.mutedInk
                    elide: Text.ElideRight
                    font: button.font
                }
            }
        }
        HelpText { width: parent.width; text: row.error; tone: "danger" }
    }

    Loader {
        id: calendar

        active: false
        onActiveChanged: {
            if (!active)
                button.forceActiveFocus(Qt.PopupFocusReason);
        }
        sourceComponent: DatePickerSheet {
            name: row.objectName + "Sheet"
            title: row.label
            date: row.text
            today: row.today
            minimum: row.minimum
            onDone: (date) => {
                row.done(date);
                calendar.active = false;
            }
            onDismissed: {
                row.cancelled();
                calendar.active = false;
            }
        }
    }
}
