import QtQuick
import QtQuick.Layouts
import Kavor.Screens
import Kavor.Ui

// The last step: what the order holds and lacks, and the ways out.
FocusScope {
    id: view

    required property TextileSendingViewController controller
    readonly property var lettering: controller.lettering

    objectName: "textileSend"

    Connections {
        target: view.controller
        function onMissingChanged(): void {
            if (view.controller.missing.length > 0)
                page.contentY = 0;
        }
        function onSummaryChanged(): void {
            if (view.controller.orderSent)
                page.contentY = 0;
        }
    }

    FormPage {
        id: page

        objectName: "textileSendPage"
        focus: true
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
        TextileMissingCard {
            Layout.fillWidth: true
            Layout.columnSpan: page.columns
            controller: view.controller
        }
        TextileSendItems {
            Layout.fillWidth: true
            controller: view.controller
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: Theme.spaceL

            Card {
                Layout.fillWidth: true

                SectionTitle { width: parent.width; text: "Texto"; detail: view.controller.typographyName; icon: "edit" }
                Lettering {
                    objectName: "customizedText"
                    width: parent.width
                    height: 72
                    largest: 44
                    lettering: view.lettering
                }
                HelpText {
                    width: parent.width
                    text: view.lettering.text === "" ? "Todavía no hay texto." : ""
                }
            }
            Card {
                objectName: "budgetCard"
                Layout.fillWidth: true
                visible: view.controller.budgetText !== ""

                SectionTitle { width: parent.width; text: "Presupuesto de textil"; icon: "euro" }
                Text {
                    width: parent.width
                    text: view.controller.budgetText
                    color: Theme.ink
                    wrapMode: Text.Wrap
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontBody
                }
                ProgressLine {
                    width: parent.width
                    visible: view.controller.budgetShare >= 0
                    value: view.controller.budgetShare
                    tone: view.controller.budgetShare < 0.1 ? "amber" : "success"
                }
            }
            TextAreaRow {
                objectName: "orderComment"
                Layout.fillWidth: true
                label: "Comentario"
                placeholder: "Lo que deba saber quien prepare el pedido"
                text: view.controller.orderComment
                onEdited: (typed) => view.controller.editComment(typed)
                onFinished: (typed) => view.controller.editComment(typed)
            }
        }
    }
    TextileActions {
        id: actions

        anchors.bottom: parent.bottom
        width: parent.width
        height: implicitHeight
        controller: view.controller
    }
}
