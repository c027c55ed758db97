import QtQuick

// A yes or no. It asks with `toggled(checked)` and shows what `checked` says afterwards.
Tappable {
    id: row

    property string label: ""
    property string help: ""
    property bool checked: false

    signal toggled(bool checked)

    accessibleName: label
    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.description: help

    onClicked: toggled(!checked)
    implicitWidth: 280
    topPadding: Theme.spaceS
    bottomPadding: Theme.spaceS
    opacity: enabled ? 1 : 0.5

    background: Rectangle {
        radius: Theme.radius
        color: row.down ? Theme.sunken : "transparent"

        FocusRing { shown: row.visualFocus; anchors.margins: -6 }
    }

    contentItem: Item {
        implicitHeight: Math.max(texts.implicitHeight, 32)

        Column {
            id: texts

            anchors.left: parent.left
            anchors.right: track.left
            anchors.rightMargin: Theme.spaceM
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2

            Text {
                width: parent.width
                text: row.label
                color: Theme.ink
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
                wrapMode: Text.Wrap
            }
            HelpText { width: parent.width; text: row.help }
        }

        Rectangle {
            id: track

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: 52
            height: 32
            radius: 16
            color: row.checked ? Theme.bottle : Theme.hairline
            border.width: row.checked ? 0 : 1
            border.color: Qt.darker(Theme.hairline, 1.15)

            Behavior on color { ColorAnimation { duration: Theme.fast } }

            Rectangle {
                x: row.checked ? 24 : 4
                anchors.verticalCenter: parent.verticalCenter
                width: 24
                height: 24
                radius: 12
                color: row.checked ? Theme.amber : Theme.surface
                border.width: row.checked ? 0 : 1
                border.color: Qt.darker(Theme.hairline, 1.15)

                Behavior on x { NumberAnimation { duration: Theme.fast; easing.type: Easing.OutCubic } }
            }
        }
    }
}
