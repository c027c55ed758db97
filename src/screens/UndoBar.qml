import QtQuick
import QtQuick.Layouts
import Kavor.Ui

// What was deleted, and the way to have it back, at the foot of the screen while it lasts.
Rectangle {
    id: bar

    property string text: ""

    signal undone()

    implicitHeight: row.implicitHeight + 2 * Theme.spaceXS
    radius: Theme.radius * 2
    color: Theme.ink
    visible: text !== ""

    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    MouseArea { anchors.fill: parent } // the rows below are not meant

    RowLayout {
        id: row

        anchors.verticalCenter: parent.verticalCenter
        x: Theme.spaceL
        width: parent.width - x - Theme.spaceS
        spacing: Theme.spaceM

        Text {
            objectName: "undoText"
            Layout.fillWidth: true
            text: bar.text
            color: Theme.inverseInk
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
        }
        Tappable {
            id: undo

            objectName: "undoDelete"
            accessibleName: "Deshacer"
            leftPadding: Theme.spaceM
            rightPadding: Theme.spaceM
            font.weight: Font.Bold
            onClicked: bar.undone()

            background: Rectangle {
                radius: Theme.radius
                color: undo.down || undo.hot ? Qt.lighter(Theme.ink, 1.5) : "transparent"

                FocusRing { shown: undo.visualFocus; anchors.margins: 2 }
            }
            contentItem: Item {
                implicitWidth: words.implicitWidth + 26
                implicitHeight: words.implicitHeight

                Icon {
                    anchors.verticalCenter: parent.verticalCenter
                    name: "undo"
                    size: 18
                    weight: 2
                    colour: Theme.amber
                }
                Text {
                    id: words

                    x: 26
                    anchors.verticalCenter: parent.verticalCenter
                    text: "Deshacer"
                    color: Theme.amber
                    font: undo.font
                }
            }
        }
    }
}
