import QtQuick
import Kavor.Ui
import Kavor.Kit

// The rows of an AttributeTableModel: typed texts and prices, choices and pictures.
Column {
    id: table

    required property AttributeTableModel attributeTable

    spacing: Theme.spaceM

    Repeater {
        model: table.attributeTable

        Loader {
            id: row

            required property int index
            required property string kind
            required property string label
            required property int maximumLength
            required property bool numeric
            required property string value
            required property string error
            required property var choices
            required property int choice
            required property bool switchOn
            required property string image

            width: parent ? parent.width : 0
            sourceComponent: kind === "pickerAttributeCell" ? pickerCell
                           : kind === "imageAttributeCell" ? imageCell : textCell

            Component {
                id: textCell

                TextRow {
                    objectName: "attributeCell" + row.index
                    label: row.label
                    maximumLength: row.maximumLength
                    inputMethodHints: row.numeric ? Qt.ImhFormattedNumbersOnly : Qt.ImhNone
                    text: row.value
                    error: field.activeFocus ? "" : row.error
                    onEdited: (text) => table.attributeTable.type(row.index, text)
                }
            }
            Component {
                id: pickerCell

                PickerRow {
                    objectName: "pickerAttributeCell" + row.index
                    label: row.label
                    model: row.choices
                    currentIndex: row.choice
                    onActivated: (index) => table.attributeTable.choose(row.index, index)
                }
            }
            Component {
                id: imageCell

                Column {
                    spacing: Theme.spaceS

                    SwitchRow {
                        objectName: "imageAttributeCell" + row.index
                        width: parent.width
                        label: row.label
                        help: "Usa el logotipo del local o elige una imagen"
                        checked: row.switchOn
                        onToggled: (checked) => table.attributeTable.switchImage(row.index, checked)
                    }
                    ResourceImage {
                        visible: row.switchOn
                        width: 96
                        height: 96
                        source: row.image
                        mat: Theme.paper
                        fillMode: Image.PreserveAspectFit
                    }
                }
            }
        }
    }
}
