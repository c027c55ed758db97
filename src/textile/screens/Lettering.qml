import QtQuick
import Kavor.Ui

// A text as a typography writes it: in the font of the window, or as a picture where the window does not have it.
Item {
    id: item

    property var lettering: ({ text: "", family: "", picture: "", ink: "#20262B" })
    property int largest: 40
    property int lines: 1
    property int horizontalAlignment: Text.AlignHCenter

    implicitHeight: largest * 1.5

    Accessible.role: Accessible.StaticText
    Accessible.name: lettering.text

    Text {
        anchors.fill: parent
        visible: item.lettering.picture === ""
        text: item.lettering.text
        textFormat: Text.PlainText
        color: item.lettering.ink
        horizontalAlignment: item.horizontalAlignment
        verticalAlignment: Text.AlignVCenter
        wrapMode: item.lines > 1 ? Text.Wrap : Text.NoWrap
        maximumLineCount: item.lines
        elide: item.lines > 1 ? Text.ElideNone : Text.ElideRight // eliding keeps it on one line
        fontSizeMode: Text.Fit
        minimumPixelSize: 8
        font.pixelSize: item.largest
        font.family: item.lettering.family !== "" ? item.lettering.family : Theme.fontFamily
    }
    Image {
        anchors.fill: parent
        visible: item.lettering.picture !== ""
        source: item.lettering.picture
        sourceSize.width: Math.ceil(width) // made smaller smoothly
        fillMode: Image.PreserveAspectFit
        horizontalAlignment: item.horizontalAlignment === Text.AlignLeft ? Image.AlignLeft : Image.AlignHCenter
    }
}
