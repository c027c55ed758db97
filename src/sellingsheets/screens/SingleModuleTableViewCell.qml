import QtQuick
import QtQuick.Layouts
import Kavor.Ui

// A module in the list; a tap opens its form.
Tappable {
    id: cell

    required property int index
    required property string description // all of it, as one reads it out
    required property string products
    required property string secondProducts
    required property string price
    required property string bottle
    required property string programme
    required property string reference
    required property string image
    required property string secondImage
    required property bool gone
    property bool last: false

    signal editTapped()
    signal duplicateTapped()
    signal moveTapped(int by)
    signal removeTapped()

    objectName: "singleModule" + index
    accessibleName: "Módulo " + (index + 1)
    Accessible.description: description
    implicitHeight: column.implicitHeight + 2 * Theme.spaceM
    onClicked: editTapped()

    component Small: Text {
        Layout.fillWidth: true
        visible: text !== ""
        color: Theme.mutedInk
        wrapMode: Text.Wrap
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontSmall
    }

    background: Rectangle {
        radius: Theme.radius
        color: cell.down ? Theme.sunken : Theme.surface
        border.width: 1
        border.color: cell.gone ? Theme.danger : cell.hot ? Theme.mutedInk : Theme.hairline

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
                spacing: Theme.spaceS

                ResourceImage {
                    Layout.preferredWidth: 64
                    Layout.preferredHeight: 64
                    source: cell.image
                    radius: 8
                    placeholderIcon: "package"
                    fillMode: Image.PreserveAspectFit
                }
                ResourceImage {
                    Layout.preferredWidth: 64
                    Layout.preferredHeight: 64
                    visible: cell.secondProducts !== ""
                    source: cell.secondImage
                    radius: 8
                    placeholderIcon: "package"
                    fillMode: Image.PreserveAspectFit
                }
                ColumnLayout {
                    Layout.fillWidth: true
                    Layout.leftMargin: Theme.spaceS
                    spacing: 2

                    Text {
                        Layout.fillWidth: true
                        text: cell.products + (cell.secondProducts !== "" ? "\n" + cell.secondProducts : "")
                        color: Theme.ink
                        wrapMode: Text.Wrap
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontBody
                        font.weight: Font.Medium
                    }
                    Small { text: cell.reference !== "" ? "Ref. " + cell.reference : "" }
                    Small {
                        text: cell.gone ? "Un producto ya no está en el catálogo." : ""
                        color: Theme.dangerDark
                    }
                }
            }
            RowLayout {
                Layout.fillWidth: true
                spacing: Theme.spaceS

                Text {
                    text: cell.price
                    color: Theme.bottle
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontTitle
                    font.weight: Font.Bold
                }
                ColumnLayout {
                    Layout.fillWidth: true
                    spacing: 0

                    Small { color: Theme.ink; text: cell.bottle }
                    Small { text: cell.programme }
                }
            }
            RowLayout {
                Layout.alignment: Qt.AlignRight
                spacing: 0

                IconButton {
                    objectName: "removeModule"
                    icon: "trash"
                    colour: Theme.dangerDark
                    text: "Eliminar el módulo"
                    onClicked: cell.removeTapped()
                }
                IconButton {
                    objectName: "moveModuleUp"
                    enabled: cell.index > 0
                    icon: "chevron-up"
                    text: "Subir el módulo"
                    onClicked: cell.moveTapped(-1)
                }
                IconButton {
                    objectName: "moveModuleDown"
                    enabled: !cell.last
                    icon: "chevron-down"
                    text: "Bajar el módulo"
                    onClicked: cell.moveTapped(1)
                }
                IconButton {
                    objectName: "duplicateModule"
                    icon: "copy"
                    text: "Duplicar el módulo"
                    onClicked: cell.duplicateTapped()
                }
                IconButton {
                    objectName: "editModule"
                    icon: "edit"
                    text: "Editar el módulo"
                    onClicked: cell.editTapped()
                }
            }
        }
    }
}
