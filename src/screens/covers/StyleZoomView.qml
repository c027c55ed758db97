import QtQuick
import QtQuick.Templates as T
import Kavor.Ui
import Kavor.Kit

// Large pictures over the screen: page through them, pinch or turn the wheel to look closer.
T.Popup {
    id: view

    required property StyleSelectorOrderSheet controller

    signal dismissed()

    function reset(): void {
        page.width = Qt.binding(() => flick.width);
        page.height = Qt.binding(() => flick.height);
        flick.contentX = 0;
        flick.contentY = 0;
    }
    function zoom(factor: real): void {
        const width = Math.max(flick.width, Math.min(flick.width * 4, page.width * factor));
        flick.resizeContent(width, width * flick.height / flick.width, Qt.point(flick.width / 2 + flick.contentX, flick.height / 2 + flick.contentY));
        page.width = width;
        page.height = width * flick.height / flick.width;
        flick.returnToBounds();
    }

    parent: T.Overlay.overlay
    width: parent ? parent.width : 600
    height: parent ? parent.height : 600
    modal: true
    focus: true
    visible: true
    padding: 0
    closePolicy: T.Popup.CloseOnEscape
    onClosed: dismissed()

    background: Rectangle { color: Theme.bottleDark }

    contentItem: FocusScope {
        focus: true
        Keys.onLeftPressed: view.controller.leftButtonAction()
        Keys.onRightPressed: view.controller.rightButtonAction()

        Connections {
            target: view.controller
            function onPageChanged(): void {
                view.reset();
            }
        }

        Item {
            id: head

            width: parent.width
            height: 64

            IconButton {
                id: closing

                objectName: "zoomClose"
                x: Theme.spaceS
                anchors.verticalCenter: parent.verticalCenter
                inverse: true
                icon: "close"
                text: "Cerrar"
                onClicked: view.dismissed()
            }
            Text {
                anchors.left: closing.right
                anchors.right: page0.left
                anchors.margins: Theme.spaceM
                anchors.verticalCenter: parent.verticalCenter
                text: view.controller?.title ?? ""
                color: Theme.inverseInk
                elide: Text.ElideRight
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontLarge
                font.weight: Font.Bold
            }
            Text {
                id: page0

                objectName: "imagenCount"
                anchors.right: parent.right
                anchors.rightMargin: Theme.spaceL
                anchors.verticalCenter: parent.verticalCenter
                text: view.controller?.imagenCount ?? ""
                color: Theme.inverseMuted
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
            }
        }

        Flickable {
            id: flick

            // The buttons have a margin of their own, at the sides of a wide window and at the foot of a tall one.
            readonly property bool wide: parent.width > parent.height
            readonly property real side: wide && leftButton.visible ? Theme.touch + 2 * Theme.spaceS : 0

            anchors.top: head.bottom
            anchors.bottom: parent.bottom
            anchors.bottomMargin: !wide && leftButton.visible ? Theme.touch + 2 * Theme.spaceS : 0
            x: side
            width: parent.width - 2 * side
            contentWidth: page.width
            contentHeight: page.height
            clip: true

            Item {
                id: page

                width: flick.width
                height: flick.height

                ResourceImage {
                    anchors.fill: parent
                    anchors.margins: Theme.spaceL
                    radius: 0
                    source: view.controller?.image ?? ""
                    mat: "transparent"
                    placeholderIcon: "style"
                    fillMode: Image.PreserveAspectFit
                }
                PinchHandler {
                    target: null
                    onActiveScaleChanged: view.zoom(activeScale > 1 ? 1.03 : 0.97)
                }
                WheelHandler {
                    onWheel: (event) => view.zoom(event.angleDelta.y > 0 ? 1.15 : 0.87)
                }
                TapHandler {
                    onDoubleTapped: page.width > flick.width ? view.reset() : view.zoom(2)
                }
            }
        }

        IconButton {
            id: leftButton

            objectName: "leftButton"
            anchors.left: parent.left
            anchors.leftMargin: Theme.spaceS
            y: flick.wide ? flick.y + (flick.height - height) / 2 : parent.height - height - Theme.spaceS
            visible: (view.controller?.count ?? 0) > 1
            enabled: view.controller?.hasLeft ?? false
            framed: true
            icon: "chevron-left"
            text: "Imagen anterior"
            onClicked: view.controller.leftButtonAction()
        }
        IconButton {
            objectName: "rightButton"
            anchors.right: parent.right
            anchors.rightMargin: Theme.spaceS
            y: leftButton.y
            visible: (view.controller?.count ?? 0) > 1
            enabled: view.controller?.hasRight ?? false
            framed: true
            icon: "chevron-right"
            text: "Imagen siguiente"
            onClicked: view.controller.rightButtonAction()
        }
    }
}
