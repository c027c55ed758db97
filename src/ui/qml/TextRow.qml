import QtQuick
import QtQuick.Templates as T
import Kavor.Ui

// A labelled line of text. `edited` on each change by the user, `finished` when the field is left or Enter is
// pressed. The counter appears near maximumLength, which counts what the user sees as characters; `error` stands
// under the field in red.
FocusScope {
    id: row

    property string label: ""
    property alias text: field.text
    property alias placeholder: field.placeholderText
    property alias inputMethodHints: field.inputMethodHints
    property alias readOnly: field.readOnly
    property alias validator: field.validator
    property int maximumLength: 0 // 0 for no limit
    property string error: ""
    property string help: ""
    property string icon: ""
    property bool secret: false
    property bool revealed: false
    property alias horizontalAlignment: field.horizontalAlignment
    readonly property alias field: field

    signal edited(string text)
    signal finished(string text)
    signal accepted()

    implicitWidth: 280
    implicitHeight: column.implicitHeight

    // The frame, not the label, is what a tap anywhere on the row means.
    MouseArea {
        anchors.fill: parent
        onClicked: field.forceActiveFocus(Qt.MouseFocusReason)
    }

    Column {
        id: column

        width: parent.width
        spacing: 6

        Item {
            width: parent.width
            height: caption.implicitHeight
            visible: row.label !== ""

            Text {
                id: caption

                anchors.left: parent.left
                anchors.right: counter.left
                anchors.rightMargin: Theme.spaceS
                text: row.label
                color: row.error !== "" ? Theme.dangerDark : field.activeFocus ? Theme.bottle : Theme.mutedInk
                elide: Text.ElideRight
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontSmall
                font.weight: Font.Medium
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            Text {
                id: counter

                readonly property int length: row.maximumLength > 0 ? TextLimit.length(field.text) : 0

                anchors.right: parent.right
                visible: row.maximumLength > 0 && length >= row.maximumLength * 0.7
                text: length + "/" + row.maximumLength
                color: length >= row.maximumLength ? Theme.dangerDark : Theme.mutedInk
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontSmall
            }
        }

        T.TextField {
            id: field

            property string shown: ""
            property string before: "" // the text before the last change

            // Drops what was just typed beyond the limit; a binding of the text stays.
            function keepToLimit(): void {
                const previous = shown !== text ? shown : before;
                const wanted = TextLimit.typed(previous, text, cursorPosition, row.maximumLength);
                if (wanted.length < text.length)
                    remove(cursorPosition - (text.length - wanted.length), cursorPosition);
            }

            width: parent.width
            height: Theme.touch + 2
            focus: true
            leftPadding: row.icon !== "" ? 44 : Theme.spaceM + 2
            rightPadding: row.secret ? Theme.touch : Theme.spaceM + 2
            verticalAlignment: TextInput.AlignVCenter
            color: enabled ? Theme.ink : Theme.mutedInk
            placeholderTextColor: Qt.rgba(Theme.mutedInk.r, Theme.mutedInk.g, Theme.mutedInk.b, 0.75)
            selectionColor: Theme.amber
            selectedTextColor: Theme.ink
            selectByMouse: true
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
            echoMode: row.secret && !row.revealed ? TextInput.Password : TextInput.Normal

            Accessible.role: Accessible.EditableText
            Accessible.name: row.label !== "" ? row.label : row.placeholder
            Accessible.description: row.error
            Accessible.passwordEdit: row.secret

            onTextChanged: {
                before = shown;
                shown = text;
            }
            onTextEdited: {
                if (row.maximumLength > 0)
                    keepToLimit();
                row.edited(text);
            }
            onAccepted: row.accepted()
            onEditingFinished: row.finished(text)
            onActiveFocusChanged: {
                if (activeFocus && !readOnly)
                    InputMethod.show();
            }

            background: FieldFrame {
                active: field.activeFocus
                wrong: row.error !== ""
                usable: field.enabled && !field.readOnly
            }

            Text {
                anchors.fill: parent
                anchors.leftMargin: field.leftPadding
                anchors.rightMargin: field.rightPadding
                verticalAlignment: Text.AlignVCenter
                horizontalAlignment: field.horizontalAlignment
                visible: field.length === 0 && field.preeditText === ""
                text: field.placeholderText
                color: field.placeholderTextColor
                font: field.font
                elide: Text.ElideRight
            }
            Icon {
                x: Theme.spaceM
                anchors.verticalCenter: parent.verticalCenter
                visible: row.icon !== ""
                name: row.icon
                size: 20
                colour: Theme.mutedInk
            }
            IconButton {
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                objectName: row.objectName + "Reveal"
                visible: row.secret
                icon: "eye"
                iconSize: 20
                colour: row.revealed ? Theme.amberDark : Theme.mutedInk
                text: row.revealed ? "Ocultar" : "Mostrar"
                onClicked: row.revealed = !row.revealed
            }
        }

        HelpText {
            width: parent.width
            text: row.error !== "" ? row.error : row.help
            tone: row.error !== "" ? "danger" : "neutral"
        }
    }
}
