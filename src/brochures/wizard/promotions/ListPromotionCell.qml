import QtQuick
import QtQuick.Layouts
import Kavor.Ui

// A promotion of the menu with what can be done with it.
Card {
    id: cell

    property int number: 0
    property string brand: ""
    property string name: ""
    property string values: ""
    property string image: ""
    property bool known: true
    property int row: 0

    signal edited()
    signal deleted()

    RowLayout {
        width: parent.width
        spacing: Theme.spaceM

        ResourceImage {
            Layout.preferredWidth: 66
            Layout.preferredHeight: 88
            Layout.alignment: Qt.AlignTop
            radius: 8
            source: cell.image
            mat: Theme.sunken
            fillMode: Image.PreserveAspectFit
        }
        Column {
            Layout.fillWidth: true
            spacing: 2

            HelpText {
                objectName: "brandLabel" + cell.row
                width: parent.width
                text: cell.number + ". " + cell.brand
                elide: Text.ElideRight
                maximumLineCount: 1
            }
            Text {
                objectName: "nameLabel" + cell.row
                width: parent.width
                text: cell.name
                color: Theme.ink
                wrapMode: Text.Wrap
                maximumLineCount: 2
                elide: Text.ElideRight
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontLarge
                font.weight: Font.Bold
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            HelpText {
                objectName: "dataLabel" + cell.row
                width: parent.width
                text: cell.values
                font.pixelSize: Theme.fontBody
                maximumLineCount: 3
                elide: Text.ElideRight
            }
            HelpText {
                objectName: "goneLabel" + cell.row
                width: parent.width
                tone: "danger"
                text: cell.known ? "" : "Ya no está en el catálogo: solo se puede borrar."
            }
        }
        Row {
            Layout.alignment: Qt.AlignVCenter

            IconButton {
                objectName: "editButton" + cell.row
                visible: cell.known
                icon: "edit"
                text: "Editar " + cell.name
                onClicked: cell.edited()
            }
            IconButton {
                objectName: "deleteButton" + cell.row
                icon: "trash"
                colour: Theme.danger
                text: "Borrar " + cell.name
                onClicked: cell.deleted()
            }
        }
    }
}
