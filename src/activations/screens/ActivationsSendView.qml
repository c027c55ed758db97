import QtQuick
import QtQuick.Layouts
import Kavor.Kit
import Kavor.Screens
import Kavor.Ui

// The form of an activation. Once it was sent it only shows what was ordered.
FocusScope {
    id: view

    required property ActivationsSendViewController controller

    objectName: "activationSend"
    Keys.onEscapePressed: controller.closeSceneAction()
    Keys.onBackPressed: controller.closeSceneAction()

    Connections {
        target: view.controller
        function onBegunAnew(): void {
            page.contentY = 0;
        }
    }
    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }
    AppBar {
        id: bar

        width: parent.width
        title: view.controller.activationName
        subtitle: view.controller.brandName
        backVisible: true
        offline: view.controller.offline
        onBackTapped: view.controller.closeSceneAction()
    }
    FormPage {
        id: page

        objectName: "sendPage"
        anchors.top: bar.bottom
        anchors.bottom: actions.top
        width: parent.width
        focus: true

        Card {
            Layout.fillWidth: true
            Layout.columnSpan: page.columns
            visible: view.controller.tieText !== ""

            GridLayout {
                width: parent.width
                columns: Theme.compact ? 1 : 2

                DetailRow {
                    objectName: "tieText"
                    Layout.fillWidth: true
                    icon: "link"
                    label: "Activación del mismo día"
                    text: view.controller.tieText
                }
                AppButton {
                    objectName: "changeActivation"
                    Layout.fillWidth: Theme.compact
                    visible: !view.controller.sent
                    kind: "secondary"
                    icon: "party"
                    text: "Cambiar activación"
                    onClicked: view.controller.changeActivation()
                }
            }
        }
        ColumnLayout {
            Layout.fillWidth: true
            enabled: !view.controller.sent
            spacing: Theme.spaceL

            PartyCalendarCard {
                objectName: "calendarCard"
                Layout.fillWidth: true
                calendar: view.controller.calendar
            }
            PartyHoursCard {
                Layout.fillWidth: true
                hours: view.controller.hours
            }
            ActivationAttributesCard {
                Layout.fillWidth: true
                visible: view.controller.attributes.count > 0
                attributes: view.controller.attributes
            }
        }
        ColumnLayout {
            Layout.fillWidth: true
            enabled: !view.controller.sent
            spacing: Theme.spaceL

            Card {
                Layout.fillWidth: true

                Row {
                    width: parent.width
                    spacing: Theme.spaceL

                    ResourceImage {
                        id: picture

                        width: 96
                        height: 96
                        source: view.controller.image
                        placeholderIcon: "party"
                    }
                    Column {
                        width: parent.width - picture.width - parent.spacing
                        spacing: Theme.spaceS

                        QuotaRing {
                            objectName: "quotaRing"
                            side: 56
                            total: view.controller.quota
                            made: view.controller.numberMade
                            text: view.controller.remainingText
                        }
                        HelpText { width: parent.width; text: view.controller.itemsText }
                    }
                }
            }
            CustomerFields {
                objectName: "customerCard"
                Layout.fillWidth: true
                title: "Punto de venta"
                icon: "store"
                form: view.controller.customer
                fields: view.controller.customer.contactFields
                note: view.controller.codeNote
            }
            PartyPlaceCard {
                Layout.fillWidth: true
                controller: view.controller
            }
            Card {
                Layout.fillWidth: true

                SectionTitle { width: parent.width; icon: "info"; text: "Para la agencia" }
                TextRow {
                    objectName: "favoriteSteward"
                    width: parent.width
                    label: "Azafata o azafato de preferencia"
                    text: view.controller.favoriteSteward
                    onEdited: (typed) => view.controller.editFavoriteSteward(typed)
                    onFinished: (typed) => view.controller.editFavoriteSteward(typed)
                }
                TextAreaRow {
                    objectName: "localInformation"
                    width: parent.width
                    label: "Información del local"
                    lines: 2
                    text: view.controller.localInformation
                    onEdited: (typed) => view.controller.editLocalInformation(typed)
                    onFinished: (typed) => view.controller.editLocalInformation(typed)
                }
                TextAreaRow {
                    objectName: "comment"
                    width: parent.width
                    label: "Comentario"
                    lines: 2
                    text: view.controller.comment
                    onEdited: (typed) => view.controller.editComment(typed)
                    onFinished: (typed) => view.controller.editComment(typed)
                }
            }
        }
    }
    ActivationSendActions {
        id: actions

        anchors.bottom: parent.bottom
        width: parent.width
        height: implicitHeight
        controller: view.controller
    }
    Loader {
        active: view.controller.hours.open
        sourceComponent: PartyHourSheet { hours: view.controller.hours }
    }
    Loader {
        active: view.controller.summaryVisible
        sourceComponent: ActivationSummarySheet { controller: view.controller }
    }
    ScreenVeil { veilState: view.controller.veil }
}
