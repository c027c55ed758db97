import QtQuick
import QtQuick.Templates as T

// A whole number with minus and plus. It asks with `edited(value)` and shows what `value` says afterwards. A number
// typed out of range is marked with the range, and becomes the nearest one when the field is left.
FocusScope {
    id: quantity

    property string label: ""
    property int value: 0
    property int minimum: 0
    property int maximum: 9999
    property int step: 1
    property string error: ""
    property bool adjusted: false // what was typed was out of range
    readonly property bool outOfRange: adjusted || field.activeFocus && parseInt(field.text) > maximum
    readonly property string mark: error !== "" ? error : outOfRange ? "De " + minimum + " a " + maximum + "." : ""
    readonly property alias field: field

    signal edited(int value)

    function ask(wanted: int): void {
        adjusted = false;
        const bounded = Math.max(minimum, Math.min(maximum, wanted));
        if (bounded !== value)
            edited(bounded);
    }

    implicitWidth: 176
    implicitHeight: column.implicitHeight

    Column {
        id: column

        width: parent.width
        spacing: 6

        Text {
            width: parent.width
            visible: quantity.label !== ""
            text: quantity.label
            color: quantity.mark !== "" ? Theme.dangerDark : Theme.mutedInk
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
            font.weight: Font.Medium
        }

        FieldFrame {
            width: Math.min(parent.width, 176)
            height: Theme.touch + 2
            active: field.activeFocus
            wrong: quantity.mark !== ""

            IconButton {
                objectName: quantity.objectName + "Minus"
                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                icon: "minus"
                iconSize: 20
                text: "Menos"
                enabled: quantity.enabled && quantity.value > quantity.minimum
                onClicked: quantity.ask(quantity.value - quantity.step)
            }
            T.TextField {
                id: field

                function settle(): void {
                    const wanted = parseInt(text);
                    if (!isNaN(wanted)) {
                        quantity.ask(wanted);
                        quantity.adjusted = wanted < quantity.minimum || wanted > quantity.maximum;
                    }
                    text = Qt.binding(() => String(quantity.value));
                }

                anchors.fill: parent
                anchors.leftMargin: Theme.touch
                anchors.rightMargin: Theme.touch
                focus: true
                text: String(quantity.value)
                horizontalAlignment: TextInput.AlignHCenter
                verticalAlignment: TextInput.AlignVCenter
                color: Theme.ink
                selectionColor: Theme.amber
                selectedTextColor: Theme.ink
                selectByMouse: true
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontLarge
                font.weight: Font.Medium
                inputMethodHints: Qt.ImhDigitsOnly
                validator: RegularExpressionValidator { regularExpression: /[0-9]{0,6}/ }

                Accessible.role: Accessible.SpinBox
                Accessible.name: quantity.label !== "" ? quantity.label : "Cantidad"

                Accessible.description: quantity.mark
                onTextEdited: quantity.adjusted = false
                onEditingFinished: settle()
                onActiveFocusChanged: {
                    if (activeFocus)
                        selectAll();
                }
                Keys.onUpPressed: quantity.ask(quantity.value + quantity.step)
                Keys.onDownPressed: quantity.ask(quantity.value - quantity.step)
            }
            IconButton {
                objectName: quantity.objectName + "Plus"
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                icon: "plus"
                iconSize: 20
                text: "Más"
                enabled: quantity.enabled && quantity.value < quantity.maximum
                onClicked: quantity.ask(quantity.value + quantity.step)
            }
        }

        HelpText { width: parent.width; text: quantity.mark; tone: "danger" }
    }
}
