import QtQuick
import Kavor.Screens
import Kavor.Ui

// The one window: the screens on top of each other, then banners and alerts above all of them.
AppWindow {
    id: window

    required property RootController root
    property PhotoLibraryViewController photos: null
    readonly property Item topScreen: stack.count > 0 ? stack.itemAt(stack.count - 1) : null

    objectName: "mainWindow"
    minimumWidth: 320
    minimumHeight: 480
    onClosing: root.reportWindowClosed()
    onActiveFocusItemChanged: Qt.callLater(keepFocus) // qmllint disable

    // The keyboard always works on something: what had the focus before a dialogue may be gone.
    function keepFocus(): void {
        if (!activeFocusItem || activeFocusItem === contentItem)
            topScreen?.forceActiveFocus();
    }

    Repeater {
        id: stack

        model: window.root.screens

        Loader {
            id: screen

            required property int index
            required property url view
            required property QtObject controller
            readonly property bool onTop: index === stack.count - 1

            anchors.fill: parent
            visible: onTop
            enabled: onTop
            focus: onTop
            Component.onCompleted: controller ? setSource(view, { controller: controller }) : setSource(view)
            onLoaded: {
                item.focus = true;
                if (onTop)
                    forceActiveFocus();
            }
            onOnTopChanged: {
                if (onTop)
                    forceActiveFocus();
            }
        }
    }

    // The former root leaves: it fades and grows.
    Snapshot {
        id: leaving

        anchors.fill: parent
        image: window.root.snapshot
        visible: !empty
        onImageChanged: {
            if (!empty)
                transition.restart();
        }

        ParallelAnimation {
            id: transition

            onFinished: window.root.snapshotDone()

            NumberAnimation { target: leaving; property: "opacity"; from: 1; to: 0; duration: 1000 }
            NumberAnimation { target: leaving; property: "scale"; from: 1; to: 1.5; duration: 1000 }
        }
    }

    Loader {
        anchors.fill: parent
        active: window.photos?.visible ?? false
        onActiveChanged: {
            if (active)
                setSource("PhotoLibraryView.qml", { controller: window.photos });
        }
        onStatusChanged: {
            if (status === Loader.Error)
                window.photos.cancel();
        }
    }

    BannerHost {
        id: banner

        onTapped: window.root.bannerTapped()
        onShownChanged: {
            if (!shown)
                Qt.callLater(window.root.bannerGone); // qmllint disable
        }
    }
    AlertHost { presenter: window.root.alerts }

    Connections {
        target: window.root

        function onBannerShown(title: string, body: string): void {
            banner.show(title, body);
        }
    }
}
