import QtQuick
import Kavor.Ui

// Slides a message in from the top; one after the other, each for some seconds or until it is tapped.
Item {
    id: host

    property int duration: 5000
    property string title: ""
    property string body: ""
    property string icon: "bell"
    readonly property bool shown: timer.running
    property var waiting: []

    signal tapped()

    function show(newTitle: string, newBody: string): void {
        if (timer.running) {
            waiting.push([newTitle, newBody]);
            return;
        }
        title = newTitle;
        body = newBody;
        timer.restart();
    }
    function dismiss(): void {
        timer.stop();
        const next = waiting.shift();
        if (next)
            show(next[0], next[1]);
    }

    objectName: "bannerHost"
    anchors.fill: parent

    Timer {
        id: timer

        interval: host.duration
        onTriggered: host.dismiss()
    }

    Tappable {
        id: banner

        objectName: "banner"
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width - 24, 480)
        y: host.shown ? 12 : -height - 12
        visible: y > -height
        padding: Theme.spaceL
        accessibleName: host.title + ". " + host.body
        Accessible.role: Accessible.AlertMessage
        onClicked: {
            host.tapped();
            host.dismiss();
        }

        Behavior on y { NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }

        background: Rectangle {
            radius: Theme.radius
            color: Theme.bottle
            border.width: 1
            border.color: Theme.bottleLight
        }
        contentItem: Item {
            implicitHeight: texts.implicitHeight

            Icon {
                anchors.verticalCenter: parent.verticalCenter
                name: host.icon
                colour: Theme.amber
            }
            Column {
                id: texts

                anchors.left: parent.left
                anchors.leftMargin: 40
                anchors.right: parent.right
                spacing: 2

                Text {
                    width: parent.width
                    text: host.title
                    color: Theme.inverseInk
                    wrapMode: Text.Wrap
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontBody
                    font.weight: Font.Bold
                }
                Text {
                    width: parent.width
                    visible: text !== ""
                    text: host.body
                    color: Theme.inverseMuted
                    wrapMode: Text.Wrap
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontSmall
                }
            }
        }
    }
}
