import QtQuick
import Kavor.Kit
import Kavor.Ui

// The text of a form for a message, with how full it is.
FocusScope {
    id: message

    required property MessageFormController form
    property alias label: area.label
    property alias placeholder: area.placeholder
    property alias error: area.error
    property alias lines: area.lines
    property string name: "" // objectName of the parts

    implicitWidth: 280
    implicitHeight: column.implicitHeight

    Column {
        id: column

        width: parent.width
        spacing: Theme.spaceS

        TextAreaRow {
            id: area

            objectName: message.name
            width: parent.width
            focus: true
            lines: 8
            onEdited: (text) => {
                const kept = message.form.editText(text);
                if (kept !== text)
                    area.text = kept;
            }
            Component.onCompleted: area.text = message.form.text
        }
        HelpText {
            objectName: message.name + "Counter"
            width: parent.width
            horizontalAlignment: Text.AlignRight
            text: message.form.counter
        }
    }
    Connections {
        target: message.form

        function onEmptied(): void {
            area.text = "";
        }
    }
}
