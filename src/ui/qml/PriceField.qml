import QtQuick
import QtQuick.Templates as T
import Kavor.Ui

// Edits one price. Shows `displayText` (with its currency) at rest and `editText` while it has the focus.
// Comma and point of the keypad both write the decimal comma. `entered` when the focus comes, `edited` on each
// change, `finished(text)` with what was typed when it goes; Escape gives back what stood there. Enter goes on to
// the next item, or, where the field stands in a column of its owner, to where the owner goes on `returned`.
FocusScope {
    id: price

    property string label: ""
    property string displayText: ""
    property string editText: ""
    property string placeholder: "0,00 €"
    property string error: ""
    property bool readOnly: false
    property string accessibleName: label !== "" ? label : "Precio"
    property bool emphasised: false
    property bool signed: false // takes a leading minus
    property bool inColumn: false // Enter is the owner's
    property bool lastInColumn: false
    readonly property alias field: field

    signal entered()
    signal edited(string text)
    signal finished(string text)
    signal returned()

    // Hands over what was typed and stays, with the whole text selected.
    function commit(): void {
        field.end();
        if (field.activeFocus)
            field.begin();
        field.handedOver = true;
    }

    implicitWidth: 120
    implicitHeight: (label !== "" ? caption.implicitHeight + 6 : 0) + field.height + (error !== "" ? 22 : 0)

    MouseArea {
        anchors.fill: parent
        onClicked: field.forceActiveFocus(Qt.MouseFocusReason)
    }

    Text {
        id: caption

        width: parent.width
        visible: price.label !== ""
        text: price.label
        color: price.error !== "" ? Theme.dangerDark : Theme.mutedInk
        elide: Text.ElideRight
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontSmall
        font.weight: Font.Medium
    }

    T.TextField {
        id: field

        property bool editing: false
        property bool handedOver: false // nothing was typed since
        property string before: "" // the text before the last key

        function begin(): void {
            editing = true;
            handedOver = false;
            price.entered();
            text = before = price.editText;
            selectAll();
            InputMethod.show();
        }
        function end(): void {
            if (!editing)
                return;
            editing = false;
            if (!handedOver)
                price.finished(text);
            text = Qt.binding(() => price.displayText);
            deselect();
        }
        function goOn(): void {
            if (price.inColumn)
                price.returned();
            else
                nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason);
        }

        y: price.label !== "" ? caption.implicitHeight + 6 : 0
        width: parent.width
        height: Theme.touch
        focus: true
        text: price.displayText
        readOnly: price.readOnly
        leftPadding: Theme.spaceM
        rightPadding: Theme.spaceM
        horizontalAlignment: TextInput.AlignRight
        verticalAlignment: TextInput.AlignVCenter
        color: enabled ? Theme.ink : Theme.mutedInk
        selectionColor: Theme.amber
        selectedTextColor: Theme.ink
        selectByMouse: true
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontLarge
        font.weight: price.emphasised ? Font.Bold : Font.Normal
        inputMethodHints: Qt.ImhFormattedNumbersOnly

        Accessible.role: Accessible.EditableText
        Accessible.name: price.accessibleName
        Accessible.description: price.error

        onActiveFocusChanged: {
            if (activeFocus && !readOnly)
                begin();
            else
                end();
        }
        onTextEdited: {
            const wanted = PriceInput.typed(before, text, cursorPosition, price.signed);
            if (wanted !== text) {
                const fromEnd = text.length - cursorPosition;
                text = wanted;
                cursorPosition = Math.max(0, wanted.length - fromEnd);
            }
            before = text;
            handedOver = false;
            price.edited(text);
        }
        Keys.onEscapePressed: {
            text = before = price.editText;
            price.edited(text);
            selectAll();
            price.edited(text);
        }
        // Enter goes on to the next field, as one types a column of prices.
        Keys.onReturnPressed: goOn()
        Keys.onEnterPressed: goOn()
        EnterKey.type: price.lastInColumn ? Qt.EnterKeyDone : Qt.EnterKeyNext

        background: FieldFrame {
            active: field.activeFocus
            wrong: price.error !== ""
            usable: field.enabled && !field.readOnly
        }

        Text {
            anchors.fill: parent
            anchors.rightMargin: field.rightPadding
            horizontalAlignment: Text.AlignRight
            verticalAlignment: Text.AlignVCenter
            visible: field.length === 0 && field.preeditText === ""
            text: price.placeholder
            color: Theme.mutedInk
            opacity: 0.6
            font: field.font
        }
    }

    HelpText {
        anchors.top: field.bottom
        anchors.topMargin: 4
        width: parent.width
        text: price.error
        tone: "danger"
    }
}
