import QtQuick

// Shows at the right edge of a Flickable that there is more, and where one is.
Rectangle {
    required property Flickable view

    parent: view
    anchors.right: parent.right
    anchors.rightMargin: 2
    y: view.visibleArea.yPosition * view.height
    width: 4
    height: Math.max(24, view.visibleArea.heightRatio * view.height)
    radius: 2
    visible: view.contentHeight > view.height + 1
    color: Qt.darker(Theme.hairline, 1.1)
    opacity: view.moving ? 1 : 0.7
}
