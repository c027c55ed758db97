import QtQuick
import Kavor.Ui

// The cover of a style, or a drawing ("ImagenSinEstilo") while none is chosen.
Column {
    id: picture

    property string source: ""
    property string caption: ""
    property string kind: ""

    spacing: Theme.spaceS

    ResourceImage {
        width: parent.width
        height: Math.min(width * 1.3, 300)
        visible: picture.source !== ""
        source: picture.source
        fillMode: Image.PreserveAspectFit
        placeholderIcon: "style"
        text: picture.caption
    }
    Rectangle {
        objectName: "ImagenSinEstilo"
        width: parent.width
        height: Math.min(width * 1.3, 300)
        visible: picture.source === ""
        radius: Theme.radius
        color: Theme.dangerTint

        Icon {
            anchors.centerIn: parent
            name: "image-off"
            size: 48
            colour: Theme.danger
        }
    }
    Text {
        width: parent.width
        text: picture.caption
        color: picture.source !== "" ? Theme.ink : Theme.dangerDark
        elide: Text.ElideRight
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontBody
        font.weight: Font.Medium
    }
    HelpText { width: parent.width; text: picture.kind }
}
