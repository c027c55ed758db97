import QtQuick
import QtQuick.Layouts
import Kavor.Kit
import Kavor.Screens
import Kavor.Ui

// A claim about a sent order.
FocusScope {
    id: view

    required property ClaimOrderViewController controller

    objectName: "claimOrderView"
    Keys.onEscapePressed: controller.closeSceneAction()

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }
    AppBar {
        id: bar

        width: parent.width
        title: "Reclamación"
        backVisible: true
        offline: view.controller.offline
        onBackTapped: view.controller.closeSceneAction()
    }
    FormPage {
        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        maximumWidth: 720
        twoColumns: false

        Card {
            Layout.fillWidth: true
            spacing: Theme.spaceL

            SectionTitle {
                objectName: "titleLabel"
                width: parent.width
                icon: "warning"
                text: view.controller.titleLabel
            }
            HelpText {
                width: parent.width
                text: "Cuenta qué ha pasado con este pedido: lo lee el equipo del programa."
            }
            MessageField {
                width: parent.width
                focus: true
                name: "commentText"
                form: view.controller
                label: "Comentario"
                placeholder: "Qué ha llegado mal, qué falta o desde cuándo lo esperáis."
            }
            AppButton {
                objectName: "sendClaimButton"
                anchors.right: parent.right
                width: Theme.compact ? parent.width : implicitWidth
                icon: "send"
                text: "Enviar reclamación"
                busy: view.controller.sending
                onClicked: view.controller.sendClaimAction()
            }
        }
    }
    Veil {
        shown: view.controller.sending
        text: "Enviando la reclamación…"
        leavable: true
        onAbandoned: view.controller.leaveVeil()
    }
}
