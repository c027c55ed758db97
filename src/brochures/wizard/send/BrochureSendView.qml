import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Screens

// The end of the wizard: what the order holds and lacks, and the ways out.
FocusScope {
    id: view

    required property BrochureSendViewController controller

    objectName: "brochureSend"

    Connections {
        target: view.controller
        function onEditingShouldEnd(): void {
            view.controller.finishSupportComment(comment.text);
        }
        function onButtonsChanged(): void {
            if (view.controller.orderSent)
                page.contentY = 0;
        }
        function onMissingChanged(): void {
            if (view.controller.missing.length > 0)
                page.contentY = 0;
        }
    }

    FormPage {
        id: page

        objectName: "sendPage"
        anchors.fill: parent
        anchors.bottomMargin: actions.height

        Card {
            objectName: "orderSentCard"
            Layout.fillWidth: true
            Layout.columnSpan: page.columns
            visible: view.controller.orderSent
            ground: Theme.successTint

            SectionTitle { width: parent.width; text: "Pedido realizado"; icon: "circle-check" }
        }
        Card {
            objectName: "waitingCard"
            Layout.fillWidth: true
            Layout.columnSpan: page.columns
            visible: view.controller.waitingText !== ""
            ground: Theme.amberTint

            SectionTitle { width: parent.width; text: "Pendiente de enviar"; icon: "clock" }
            HelpText { width: parent.width; text: view.controller.waitingText; color: Theme.ink }
        }
        Card {
            objectName: "missingCard"
            Layout.fillWidth: true
            Layout.columnSpan: page.columns
            visible: view.controller.missing.length > 0
            ground: Theme.dangerTint

            SectionTitle {
                width: parent.width
                text: "Pedido incompleto"
                detail: view.controller.missing.length === 1 ? "1 aviso" : view.controller.missing.length + " avisos"
                icon: "warning"
            }
            Column {
                width: parent.width

                Repeater {
                    model: view.controller.missing

                    ListRow {
                        required property int index
                        required property string modelData

                        objectName: "missing" + index
                        width: parent.width
                        leftPadding: 0
                        rightPadding: 0
                        separator: index + 1 < view.controller.missing.length
                        text: modelData
                        icon: "warning"
                        iconColour: Theme.danger
                        chevron: true
                        onClicked: view.controller.goToMissing(index)
                    }
                }
            }
        }

        SendPictures {
            Layout.fillWidth: true
            controller: view.controller
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: Theme.spaceL

            SendSummaryCards {
                Layout.fillWidth: true
                controller: view.controller
            }
            Card {
                Layout.fillWidth: true
                visible: view.controller.printedKavorButtonVisible || view.controller.printedMyselfButtonVisible
                spacing: 0

                ListRow {
                    objectName: "printedKavorButton"
                    width: parent.width
                    leftPadding: 0
                    rightPadding: 0
                    separator: view.controller.printedMyselfButtonVisible
                    visible: view.controller.printedKavorButtonVisible
                    text: "¿Cómo se imprime el pedido?"
                    icon: "print"
                    chevron: true
                    onClicked: view.controller.printedKavorAction()
                }
                ListRow {
                    objectName: "printedMyselfButton"
                    width: parent.width
                    leftPadding: 0
                    rightPadding: 0
                    separator: false
                    visible: view.controller.printedMyselfButtonVisible
                    text: "¿Y si lo imprimo yo?"
                    icon: "info"
                    chevron: true
                    onClicked: view.controller.myselfAction()
                }
            }
        }
        TextAreaRow {
            id: comment

            objectName: "freeTextForSupport"
            Layout.fillWidth: true
            Layout.columnSpan: page.columns
            label: "Comentario para soporte (se queda en este dispositivo)"
            placeholder: "Lo que deba saber quien prepare el pedido"
            text: view.controller.freeTextForSupport
            onFinished: (typed) => view.controller.finishSupportComment(typed)
        }
    }

    SendActions {
        id: actions

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: implicitHeight
        controller: view.controller
    }

    SendInfoPanel { controller: view.controller }
}
