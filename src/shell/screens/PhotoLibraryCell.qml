import QtQuick
import Kavor.Ui

// A folder, or a picture in small.
Tappable {
    id: cell

    required property int index
    required property string fileName
    required property url fileUrl
    required property bool fileIsDir
    required property double fileSize
    property double largestFile: 0 // beyond it there is no small picture
    property bool marked: false

    objectName: "photoEntry" + index
    accessibleName: fileName
    activeFocusOnTab: false
    Accessible.role: Accessible.ListItem
    Accessible.description: fileIsDir ? "Carpeta" : "Imagen"

    contentItem: Item {
        Rectangle {
            id: frame

            anchors.horizontalCenter: parent.horizontalCenter
            y: 4
            width: 108
            height: 108
            radius: Theme.radius
            color: cell.down || cell.hot ? Theme.sunken : Theme.surface
            border.width: 1
            border.color: Theme.hairline

            Icon {
                anchors.centerIn: parent
                visible: cell.fileIsDir || picture.status !== Image.Ready
                name: cell.fileIsDir ? "folder" : picture.status === Image.Error ? "image-off" : "poster"
                size: 44
                colour: cell.fileIsDir ? Theme.amberDark : Theme.mutedInk
            }
            Image {
                id: picture

                anchors.fill: parent
                anchors.margins: 6
                source: cell.fileIsDir || cell.fileSize > cell.largestFile ? "" : cell.fileUrl
                asynchronous: true
                autoTransform: true
                cache: false
                fillMode: Image.PreserveAspectFit
                sourceSize.width: 192
                sourceSize.height: 192
            }
            FocusRing { shown: cell.marked }
        }
        Text {
            anchors.top: frame.bottom
            anchors.topMargin: 4
            width: parent.width
            leftPadding: 4
            rightPadding: 4
            horizontalAlignment: Text.AlignHCenter
            text: cell.fileName
            textFormat: Text.PlainText
            color: Theme.ink
            elide: Text.ElideMiddle
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
        }
    }
}
