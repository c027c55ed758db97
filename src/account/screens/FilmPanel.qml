import QtQuick
import Kavor.Screens
import Kavor.Ui

// A film with what one does to it. Space plays and pauses, the arrows go back and forth.
FocusScope {
    id: panel

    required property TutorialsViewController controller
    readonly property bool failed: controller.problem !== ""

    objectName: "filmPanel"
    Keys.onSpacePressed: controller.playAction()
    Keys.onLeftPressed: controller.seekBySeconds(-10)
    Keys.onRightPressed: controller.seekBySeconds(10)
    onVisibleChanged: {
        if (!visible)
            controller.pauseAction();
    }

    Rectangle {
        anchors.fill: parent
        color: "#0A1713"
    }
    FilmSurface {
        objectName: "filmSurface"
        anchors.top: parent.top
        anchors.bottom: controls.top
        width: parent.width
        visible: !panel.failed
        player: panel.controller.player // qmllint disable

        Accessible.role: Accessible.Graphic
        Accessible.name: panel.controller.filmTitle

        TapHandler {
            onTapped: panel.controller.playAction()
        }
        Spinner {
            anchors.centerIn: parent
            width: 56
            height: 56
            visible: panel.controller.loading
            running: visible
        }
    }
    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        y: (controls.y - height) / 2
        width: Math.min(parent.width - 2 * Theme.spaceXL, 420)
        visible: panel.failed
        spacing: Theme.spaceL

        Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            name: panel.controller.offline ? "offline" : "warning"
            size: 48
            colour: Theme.inverseMuted
        }
        Text {
            objectName: "filmProblem"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: panel.controller.problem
            color: Theme.inverseInk
            wrapMode: Text.Wrap
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontLarge
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        AppButton {
            objectName: "retryFilm"
            anchors.horizontalCenter: parent.horizontalCenter
            kind: "secondary"
            icon: "refresh"
            text: "Intentar de nuevo"
            onClicked: panel.controller.retryAction()
        }
        AppButton {
            objectName: "openFilmOutside"
            anchors.horizontalCenter: parent.horizontalCenter
            kind: "secondary"
            icon: "globe"
            text: "Abrir fuera"
            onClicked: panel.controller.openOutsideAction()
        }
    }
    Rectangle {
        id: controls

        anchors.bottom: parent.bottom
        width: parent.width
        height: 64
        color: Theme.bottleDark

        IconButton {
            id: play

            objectName: "playFilm"
            x: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            focus: true
            inverse: true
            enabled: !panel.failed
            filled: !panel.controller.ended
            icon: panel.controller.playing ? "pause" : panel.controller.ended ? "reset" : "play"
            text: panel.controller.playing ? "Pausar" : panel.controller.ended ? "Ver otra vez" : "Reproducir"
            onClicked: panel.controller.playAction()
        }
        FilmSeekBar {
            objectName: "filmSeekBar"
            anchors.left: play.right
            anchors.leftMargin: Theme.spaceM
            anchors.right: time.left
            anchors.rightMargin: Theme.spaceM
            anchors.verticalCenter: parent.verticalCenter
            usable: panel.controller.seekable
            share: panel.controller.share
            text: panel.controller.timeText
            onSought: (share) => panel.controller.seekToShare(share)
            onStepped: (seconds) => panel.controller.seekBySeconds(seconds)
        }
        Text {
            id: time

            objectName: "filmTime"
            anchors.right: full.left
            anchors.rightMargin: Theme.spaceXS
            anchors.verticalCenter: parent.verticalCenter
            text: panel.controller.timeText
            color: Theme.inverseMuted
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
        }
        IconButton {
            id: full

            objectName: "filmFullWindow"
            anchors.right: parent.right
            anchors.rightMargin: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            inverse: true
            icon: panel.controller.fullWindow ? "shrink" : "expand"
            text: panel.controller.fullWindow ? "Salir de la ventana completa" : "Ventana completa"
            onClicked: panel.controller.fullWindowAction()
        }
    }
}
