import QtQuick
import QtQuick.Templates as T
import Kavor.Screens
import Kavor.Ui

// The server's messages, in a sheet that slides up when it is shown. A tap beside its frame or Escape puts it away;
// the keyboard stays inside.
Item {
    id: panel

    required property WelcomeViewController controller
    // Not below a veil that still stands.
    readonly property bool shown: controller.notificationsShown && !controller.progressVeil.visible
    // The distance from the top of the window: 0 on show, the height of the window when away.
    readonly property real notificationViewTopConstraint: sheet.away * height

    anchors.fill: parent

    T.Popup {
        id: sheet

        property real away: 1 // a share, so that a turn of the window moves nothing

        function takeFocus(): void {
            if (visible)
                close.forceActiveFocus(Qt.PopupFocusReason);
        }

        parent: T.Overlay.overlay
        z: 50
        width: parent ? parent.width : 0
        height: parent ? parent.height : 0
        modal: true
        dim: false
        focus: true
        visible: panel.shown && panel.visible
        closePolicy: T.Popup.NoAutoClose
        onAboutToShow: Qt.callLater(takeFocus) // qmllint disable

        enter: Transition {
            NumberAnimation { property: "away"; from: 1; to: 0; duration: 500; easing.type: Easing.OutCubic }
        }
        exit: Transition {
            NumberAnimation { property: "away"; from: 0; to: 1; duration: 500; easing.type: Easing.OutCubic }
        }

        background: Rectangle {
            color: Theme.scrim
            opacity: 1 - sheet.away
        }

        contentItem: Item {
            objectName: "notificationsView"
            focus: true
            Keys.onEscapePressed: panel.controller.dismissNotificationsAction()

            MouseArea {
                anchors.fill: parent
                onClicked: panel.controller.dismissNotificationsAction()
                onWheel: (wheel) => wheel.accepted = true
            }

            Rectangle {
                id: frame

                objectName: "notificationsFrameView"
                anchors.horizontalCenter: parent.horizontalCenter
                y: panel.notificationViewTopConstraint + (parent.height - height) * (Theme.compact ? 1 : 0.5)
                width: Theme.compact ? parent.width : Math.min(parent.width - 96, 560)
                height: Math.min(parent.height * 0.82, heading.height + list.contentHeight + Theme.spaceXL + 1)
                radius: 20
                color: Theme.surface
                border.width: 1
                border.color: Theme.hairline

                Rectangle { // square lower corners of a sheet
                    visible: Theme.compact
                    anchors.bottom: parent.bottom
                    width: parent.width
                    height: 20
                    color: Theme.surface
                }
                MouseArea { anchors.fill: parent } // a tap inside stays inside

                Item {
                    id: heading

                    width: parent.width
                    height: 72

                    Text {
                        objectName: "notificationsTitleLabel"
                        anchors.left: parent.left
                        anchors.leftMargin: Theme.spaceXL
                        anchors.right: close.left
                        anchors.verticalCenter: parent.verticalCenter
                        text: panel.controller.notificationsTitle
                        color: Theme.bottle
                        elide: Text.ElideRight
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontTitle
                        font.weight: Font.Bold
                        Accessible.role: Accessible.Heading
                        Accessible.name: text
                    }
                    IconButton {
                        id: close

                        objectName: "dismissNotificationsButton"
                        anchors.right: parent.right
                        anchors.rightMargin: Theme.spaceM
                        anchors.verticalCenter: parent.verticalCenter
                        icon: "close"
                        text: "Cerrar"
                        onClicked: panel.controller.dismissNotificationsAction()
                    }
                }
                Rectangle {
                    anchors.top: heading.bottom
                    width: parent.width
                    height: 1
                    color: Theme.hairline
                }
                ListView {
                    id: list

                    objectName: "notificationsTable"
                    anchors.top: heading.bottom
                    anchors.topMargin: 1
                    anchors.bottom: parent.bottom
                    anchors.bottomMargin: Theme.spaceL
                    width: parent.width
                    clip: true
                    boundsBehavior: Flickable.StopAtBounds
                    model: panel.controller.notificationsList
                    activeFocusOnTab: contentHeight > height
                    Keys.onUpPressed: flick(0, 900)
                    Keys.onDownPressed: flick(0, -900)

                    delegate: NotificationTableCell {
                        required property int index
                        required property var modelData

                        objectName: "notificationCell" + index
                        width: list.width
                        title: modelData.title
                        description: modelData.description
                        image: modelData.image
                        separator: index < list.count - 1
                    }
                }
            }
        }
    }
}
