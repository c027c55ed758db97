import QtQuick
import QtQuick.Templates as T

// Blocks the whole window while a request runs. progress 0 to 1 shows how far it is; below 0 it is unknown.
// Set `shown`, not `visible`. A veil that is `leavable` and stands too long offers a way out, also by Escape; `abandoned`
// tells that it was taken, and hiding the veil is up to the screen.
Item {
    id: veil

    property bool shown: false
    property string text: ""
    property string detail: "" // "3 de 120"
    property real progress: -1
    property bool leavable: false
    property alias patience: wayOut.patience
    property alias wayOutText: wayOut.text

    signal abandoned()

    objectName: "veilView"
    anchors.fill: parent
    visible: shown

    T.Popup {
        property Item returnTo: null // had the focus before

        parent: T.Overlay.overlay
        z: 100
        width: parent ? parent.width : 0
        height: parent ? parent.height : 0
        modal: true
        dim: false
        focus: true
        visible: veil.visible
        closePolicy: T.Popup.NoAutoClose
        onAboutToShow: {
            returnTo = veil.Window.activeFocusItem;
            holder.focus = true; // not the way out that was taken the last time
        }
        onClosed: {
            if (returnTo?.visible)
                returnTo.forceActiveFocus(Qt.PopupFocusReason);
        }

        background: Rectangle { color: "#D9FAF6EE" }

        contentItem: Item {
            id: holder

            focus: true
            Keys.onEscapePressed: {
                if (wayOut.visible)
                    wayOut.trigger();
            }

            Rectangle {
                anchors.centerIn: parent
                width: Math.min(parent.width - 48, Math.max(words.implicitWidth, numbers.implicitWidth, veil.progress >= 0 ? 256 : 112) + 64)
                height: column.implicitHeight + 56
                radius: 20
                color: Theme.bottle

                Accessible.role: Accessible.Indicator
                Accessible.name: veil.text !== "" ? veil.text : "Espere, por favor"

                Column {
                    id: column

                    anchors.centerIn: parent
                    width: parent.width - 48
                    spacing: Theme.spaceL

                    Spinner {
                        anchors.horizontalCenter: parent.horizontalCenter
                        width: 48
                        height: 48
                        running: veil.visible
                    }
                    Column {
                        id: labels

                        width: parent.width
                        spacing: Theme.spaceXS
                        visible: veil.text !== "" || veil.detail !== ""

                        Text {
                            id: words

                            width: parent.width
                            horizontalAlignment: Text.AlignHCenter
                            visible: text !== ""
                            text: veil.text
                            color: Theme.inverseInk
                            wrapMode: Text.Wrap
                            font.family: Theme.fontFamily
                            font.pixelSize: Theme.fontLarge
                            font.weight: Font.Medium
                        }
                        Text {
                            id: numbers

                            width: parent.width
                            horizontalAlignment: Text.AlignHCenter
                            visible: text !== ""
                            text: veil.detail
                            color: Theme.inverseMuted
                            font.family: Theme.fontFamily
                            font.pixelSize: Theme.fontSmall
                        }
                    }
                    ProgressLine {
                        width: parent.width
                        visible: veil.progress >= 0
                        value: veil.progress
                        track: Theme.bottleLight
                    }
                    WayOut {
                        id: wayOut

                        anchors.horizontalCenter: parent.horizontalCenter
                        waiting: veil.visible && veil.leavable
                        onClicked: veil.abandoned()
                    }
                }
            }
        }
    }
}
