import QtQuick
import Kavor.Ui
import Kavor.Screens

// What the draft holds and lacks, in two blocks.
Card {
    id: card

    required property BrochureSendViewController controller

    Row {
        width: parent.width
        spacing: Theme.spaceS

        Text {
            id: name

            objectName: "localNameLabel"
            width: parent.width - info.width - parent.spacing
            anchors.verticalCenter: parent.verticalCenter
            text: card.controller.localNameLabel
            textFormat: Text.PlainText
            color: card.controller.localNameMissing ? Theme.dangerDark : Theme.bottle
            wrapMode: Text.Wrap
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontTitle
            font.weight: Font.Bold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        IconButton {
            id: info

            objectName: "infoOrderAction"
            icon: "info"
            text: "Información del pedido"
            framed: true
            onClicked: card.controller.infoOrderAction()
        }
    }
    SendSummaryText { objectName: "orderDataInfoLeft"; width: parent.width; text: card.controller.orderDataInfoLeft }
    SendSummaryText {
        objectName: "orderDataInfoLeftWarning"
        width: parent.width
        text: card.controller.orderDataInfoLeftWarning
        warning: true
    }
    Rectangle { width: parent.width; height: 1; color: Theme.hairline }
    SendSummaryText { objectName: "orderDataInfoRight"; width: parent.width; text: card.controller.orderDataInfoRight }
    SendSummaryText {
        objectName: "orderDataInfoRightWarning"
        width: parent.width
        text: card.controller.orderDataInfoRightWarning
        warning: true
    }
    Row {
        spacing: Theme.spaceM
        visible: card.controller.localLogoImage !== "" || card.controller.logoLabel !== ""

        Rectangle {
            width: 72
            height: 72
            visible: card.controller.localLogoImage !== ""
            radius: Theme.radius
            color: Theme.sunken

            Image {
                id: logo

                objectName: "localLogoImage"
                anchors.fill: parent
                anchors.margins: 6
                source: card.controller.localLogoImage
                fillMode: Image.PreserveAspectFit
                sourceSize.width: 144
                sourceSize.height: 144
                asynchronous: true
            }
        }
        Chip { objectName: "logoLabel"; visible: text !== ""; text: card.controller.logoLabel; icon: "image-off" }
    }
}
