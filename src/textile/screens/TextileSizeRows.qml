import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Kavor.Screens
import Kavor.Ui

// The units of each size of the selection: by its field, or one more and one less.
Card {
    id: card

    required property TextileProductsViewController controller
    readonly property bool narrow: width < 420

    spacing: Theme.spaceXS

    SectionTitle {
        width: parent.width
        text: "Tallas"
        detail: card.controller.sizes.count > 0 ? card.controller.sizesTotal : "Elige antes el color"
    }
    Text {
        width: parent.width
        visible: card.controller.sizes.count > 0
        text: "Unidades"
        horizontalAlignment: Text.AlignRight
        color: Theme.mutedInk
        rightPadding: 58
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontSmall
    }
    Repeater {
        model: card.controller.sizes

        RowLayout {
            id: row

            required property var model

            objectName: "sizeRow" + model.code
            width: parent.width
            spacing: Theme.spaceM

            Rectangle {
                Layout.preferredWidth: 48
                Layout.preferredHeight: 40
                radius: Theme.radius
                color: row.model.positive ? Theme.bottle : Theme.sunken

                Text {
                    anchors.centerIn: parent
                    width: parent.width - 6
                    text: row.model.code
                    horizontalAlignment: Text.AlignHCenter
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: 9
                    color: row.model.positive ? Theme.inverseInk : Theme.ink
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontBody
                    font.weight: Font.Bold
                }
            }
            Text {
                Layout.fillWidth: true
                text: row.model.name
                textFormat: Text.PlainText
                color: Theme.ink
                elide: Text.ElideRight
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
            }
            FieldFrame {
                Layout.preferredWidth: card.narrow ? 158 : 176
                Layout.preferredHeight: Theme.touch + 2
                active: field.activeFocus

                IconButton {
                    objectName: "sizeMinus" + row.model.code
                    anchors.left: parent.left
                    anchors.verticalCenter: parent.verticalCenter
                    icon: "minus"
                    iconSize: 20
                    text: "Menos"
                    enabled: row.model.positive
                    onClicked: card.controller.stepUnits(row.model.size, -1)
                }
                T.TextField {
                    id: field

                    objectName: "sizeField" + row.model.code
                    anchors.fill: parent
                    anchors.leftMargin: Theme.touch
                    anchors.rightMargin: Theme.touch
                    text: row.model.units
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

                    Accessible.role: Accessible.EditableText
                    Accessible.name: "Unidades de la talla " + row.model.name

                    onTextEdited: card.controller.editUnits(row.model.size, text)
                    onEditingFinished: {
                        card.controller.finishUnits(row.model.size, text);
                        text = Qt.binding(() => row.model.units); // what was read of it
                    }
                    onActiveFocusChanged: {
                        if (activeFocus)
                            selectAll();
                    }
                    Keys.onUpPressed: card.controller.stepUnits(row.model.size, 1)
                    Keys.onDownPressed: card.controller.stepUnits(row.model.size, -1)
                }
                IconButton {
                    objectName: "sizePlus" + row.model.code
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    icon: "plus"
                    iconSize: 20
                    text: "Más"
                    onClicked: card.controller.stepUnits(row.model.size, 1)
                }
            }
        }
    }
}
