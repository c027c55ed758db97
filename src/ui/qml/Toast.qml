import QtQuick
import Kavor.Ui

// A short word at the foot of the window that goes by itself: toast.show("Guardado").
Item {
    id: toast

    property string text: ""
    property string icon: "check"
    property int duration: 2600
    readonly property bool shown: timer.running

    function show(newText: string): void {
        text = newText;
        timer.restart();
    }

    objectName: "toast"
    anchors.fill: parent

    Timer { id: timer; interval: toast.duration }

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.spaceXL
        width: Math.min(parent.width - 32, row.implicitWidth + 40)
        height: Math.max(48, label.implicitHeight + 24)
        radius: 24
        color: Theme.ink
        opacity: toast.shown ? 1 : 0
        visible: opacity > 0

        Accessible.role: Accessible.AlertMessage
        Accessible.name: toast.text

        Behavior on opacity { NumberAnimation { duration: Theme.normal } }

        Row {
            id: row

            anchors.centerIn: parent
            spacing: Theme.spaceS

            Icon {
                anchors.verticalCenter: parent.verticalCenter
                visible: toast.icon !== ""
                name: toast.icon
                size: 20
                colour: Theme.amber
            }
            Text {
                id: label

                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, toast.width - 100)
                text: toast.text
                color: Theme.inverseInk
                wrapMode: Text.Wrap
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
            }
        }
    }
}
