import QtQuick
import QtQuick.Layouts
import Kavor.Ui

// A sheet in the list. A tap opens a draft, and shows a sheet that was sent.
Tappable {
    id: cell

    required property string key
    required property string name
    required property string title
    required property string stateText
    required property string details
    required property string description
    required property string date
    required property string image
    property bool draft: false

    signal opened()
    signal previewed()
    signal sendTapped()
    signal copyTapped()
    signal deleteTapped()

    objectName: "sheet" + key
    accessibleName: name
    Accessible.description: description
    implicitHeight: column.implicitHeight + 2 * Theme.spaceM
    onClicked: opened()

    background: Rectangle {
        radius: Theme.radius
        color: cell.down ? Theme.sunken : Theme.surface
        border.width: 1
        border.color: cell.hot ? Theme.mutedInk : Theme.hairline

        FocusRing { shown: cell.visualFocus }
    }
    contentItem: Item {
        ColumnLayout {
            id: column

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            anchors.margins: Theme.spaceM
            spacing: Theme.spaceXS

            RowLayout {
                Layout.fillWidth: true
                spacing: Theme.spaceM

                ResourceImage {
                    Layout.preferredWidth: 60
                    Layout.preferredHeight: 84
                    Layout.alignment: Qt.AlignTop
                    radius: 6
                    source: cell.image
                    placeholderIcon: "sellingsheet"
                    fillMode: Image.PreserveAspectCrop
                }
                ColumnLayout {
                    Layout.fillWidth: true
                    Layout.alignment: Qt.AlignTop
                    spacing: 2

                    Text {
                        objectName: "nameLabel"
                        Layout.fillWidth: true
                        text: cell.name
                        color: Theme.ink
                        elide: Text.ElideRight
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontLarge
                        font.weight: Font.Bold
                    }
                    Text {
                        Layout.fillWidth: true
                        visible: text !== ""
                        text: cell.title
                        color: Theme.ink
                        elide: Text.ElideRight
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontBody
                    }
                    Text {
                        Layout.fillWidth: true
                        text: cell.details
                        color: Theme.mutedInk
                        wrapMode: Text.Wrap
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontSmall
                    }
                    Chip {
                        objectName: "stateChip"
                        visible: cell.stateText !== ""
                        text: cell.stateText
                        icon: cell.stateText === "caducada" ? "clock" : "circle-check"
                        tone: cell.stateText === "caducada" ? "danger" : "success"
                    }
                }
            }
            RowLayout {
                Layout.fillWidth: true
                spacing: 0

                Text {
                    Layout.fillWidth: true
                    text: Theme.compact && cell.draft ? "" : cell.date // no room beside all buttons
                    color: Theme.mutedInk
                    elide: Text.ElideRight
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontSmall
                }
                IconButton {
                    objectName: "deleteSheet"
                    icon: "trash"
                    colour: Theme.dangerDark
                    text: "Borrar"
                    onClicked: cell.deleteTapped()
                }
                IconButton {
                    objectName: "copySheet"
                    icon: "copy"
                    text: "Copiar"
                    onClicked: cell.copyTapped()
                }
                IconButton {
                    objectName: "previewSheet"
                    icon: "preview"
                    text: "Vista previa"
                    onClicked: cell.previewed()
                }
                AppButton {
                    objectName: "sendSheet"
                    visible: cell.draft
                    icon: "send"
                    text: "Enviar"
                    onClicked: cell.sendTapped()
                }
            }
        }
    }
}
