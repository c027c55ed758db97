import QtQuick
import Kavor.Ui

// Chooses one of a list of texts: a popup under the row on a tablet, a sheet from below on a phone.
// It asks with `activated(index)` and shows what `currentIndex` says afterwards. Long lists get a search line.
// `textRole` names the member when the model's entries are objects.
FocusScope {
    id: picker

    property string label: ""
    property var model: []
    property string textRole: ""
    property int currentIndex: -1
    property string placeholder: "Seleccionar"
    property string error: ""
    property string icon: ""
    readonly property int count: model ? (model.length ?? 0) : 0
    readonly property string currentText: textAt(currentIndex)
    readonly property alias opened: popup.opened

    signal activated(int index)

    function textAt(index: int): string {
        if (index < 0 || index >= count)
            return "";
        return String(textRole === "" ? model[index] : model[index][textRole]);
    }
    function open(): void {
        popup.open();
    }

    implicitWidth: 280
    onVisibleChanged: {
        if (!visible)
            popup.close();
    }
    implicitHeight: column.implicitHeight

    Column {
        id: column

        width: parent.width
        spacing: 6

        Text {
            width: parent.width
            visible: picker.label !== ""
            text: picker.label
            color: picker.error !== "" ? Theme.dangerDark : Theme.mutedInk
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
            leftPadding: Theme.spaceM + 2
            rightPadding: Theme.spaceM
            accessibleName: picker.label !== "" ? picker.label : picker.placeholder
            Accessible.role: Accessible.ComboBox
            Accessible.description: picker.currentText + (picker.error !== "" ? ". " + picker.error : "")
            onClicked: picker.open()
            Keys.onDownPressed: picker.open()

            background: FieldFrame {
                active: popup.visible
                wrong: picker.error !== ""
                usable: picker.enabled
                FocusRing { shown: button.visualFocus }
            }
            contentItem: Item {
                Icon {
                    id: drawing

                    anchors.verticalCenter: parent.verticalCenter
                    visible: picker.icon !== ""
                    name: picker.icon
                    size: 20
                    colour: Theme.mutedInk
                }
                Text {
                    anchors.fill: parent
                    anchors.leftMargin: drawing.visible ? 28 : 0
                    anchors.rightMargin: 24
                    verticalAlignment: Text.AlignVCenter
                    text: picker.currentText !== "" ? picker.currentText : picker.placeholder
                    color: picker.currentText !== "" && picker.enabled ? Theme.ink : Theme.mutedInk
                    elide: Text.ElideRight
                    font: button.font
                }
                Icon {
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    name: "chevron-down"
                    size: 20
                    colour: Theme.mutedInk
                }
            }
        }

        HelpText { width: parent.width; text: picker.error; tone: "danger" }
    }

    PickerPopup {
        id: popup

        anchor: button
        title: picker.label !== "" ? picker.label : picker.placeholder
        optionName: picker.objectName
        texts: {
            const all = [];
            for (let i = 0; i < picker.count; ++i)
                all.push(picker.textAt(i));
            return all;
        }
        currentIndex: picker.currentIndex
        onChosen: (index) => picker.activated(index)
    }
}
