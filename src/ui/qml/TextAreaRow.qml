import QtQuick
import QtQuick.Templates as T

// The same as TextRow for several lines.
FocusScope {
    id: row

    property string label: ""
    property alias text: area.text
    property alias placeholder: area.placeholderText
    property int maximumLength: 0
    property string error: ""
    property int lines: 3
    readonly property alias field: area

    signal edited(string text)
    signal finished(string text)

    implicitWidth: 280
    implicitHeight: column.implicitHeight

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

                text: row.label
                color: row.error !== "" ? Theme.dangerDark : area.activeFocus ? Theme.bottle : Theme.mutedInk
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontSmall
                font.weight: Font.Medium
            }
            Text {
                anchors.right: parent.right
                visible: row.maximumLength > 0 && area.length >= row.maximumLength * 0.7
                text: area.length + "/" + row.maximumLength
                color: area.length >= row.maximumLength ? Theme.dangerDark : Theme.mutedInk
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontSmall
            }
        }

        T.TextArea {
            id: area

            property string lastText: ""

            width: parent.width
            height: Math.max(row.lines * 22 + 26, contentHeight + 26)
            focus: true
            padding: Theme.spaceM + 1
            wrapMode: TextEdit.Wrap
            color: Theme.ink
            placeholderTextColor: Theme.mutedInk
            selectionColor: Theme.amber
            selectedTextColor: Theme.ink
            selectByMouse: true
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
            textFormat: TextEdit.PlainText
            KeyNavigation.priority: KeyNavigation.BeforeItem
            KeyNavigation.tab: row.nextItemInFocusChain(true)

            Accessible.role: Accessible.EditableText
            Accessible.name: row.label
            Accessible.multiLine: true

            onTextChanged: {
                if (row.maximumLength > 0 && length > row.maximumLength) {
                    remove(row.maximumLength, length);
                    return;
                }
                if (activeFocus && text !== lastText)
                    row.edited(text);
                lastText = text;
            }
            onActiveFocusChanged: {
                if (!activeFocus)
                    row.finished(text);
            }

            background: FieldFrame { active: area.activeFocus; wrong: row.error !== "" }

            Text {
                anchors.fill: parent
                anchors.margins: area.padding
                visible: area.length === 0 && area.preeditText === ""
                text: area.placeholderText
                color: area.placeholderTextColor
                font: area.font
                wrapMode: Text.Wrap
            }
        }

        HelpText { width: parent.width; text: row.error; tone: "danger" }
    }
}
