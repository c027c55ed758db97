import QtQuick
import Kavor.Screens
import Kavor.Ui

// The server's messages, in a sheet that slides up. A tap beside its frame puts it away.
Item {
    id: panel

    required property WelcomeViewController controller
    readonly property bool shown: controller.notificationsShown
    // The distance from the top of the window: 0 on show, the height of the window when away.
    property real notificationViewTopConstraint: shown ? 0 : height

    objectName: "notificationsView"
    anchors.fill: parent
    visible: notificationViewTopConstraint < height

    Behavior on notificationViewTopConstraint {
        enabled: panel.height > 0
        NumberAnimation { duration: 500; easing.type: Easing.OutCubic }
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.scrim
        opacity: panel.height > 0 ? 1 - panel.notificationViewTopConstraint / panel.height : 0

        MouseArea {
            anchors.fill: parent
            onClicked: panel.controller.dismissNotificationsAction()
            onWheel: (wheel) => wheel.accepted = true
        }
    }

    Rectangle {
        id: frame

        objectName: "notificationsFrameView"
        anchors.horizontalCenter: parent.horizontalCenter
        y: panel.notificationViewTopConstraint + (panel.height - height) * (Theme.compact ? 1 : 0.5)
        width: Theme.compact ? parent.width : Math.min(parent.width - 96, 560)
        height: Math.min(panel.height * 0.82, heading.height + list.contentHeight + Theme.spaceXL + 1)
        radius: 20
        color: Theme.surface
        border.width: 1
        border.color: Theme.hairline

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
