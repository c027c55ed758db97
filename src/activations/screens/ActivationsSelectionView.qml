import QtQuick
import QtQuick.Layouts
import Kavor.Kit
import Kavor.Screens
import Kavor.Ui

// The board of a brand's activations, with what is known of the chosen one below it.
FocusScope {
    id: view

    required property ActivationsSelectionViewController controller
    readonly property bool chosen: controller.selectedName !== ""

    objectName: "activationChoice"
    Keys.onEscapePressed: controller.closeSceneAction()
    Keys.onBackPressed: controller.closeSceneAction()

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }
    ResourceImage { // the brand's own ground
        anchors.top: bar.bottom
        width: parent.width
        height: Math.max(view.height - bar.height - actions.height, width * 0.7) // its upper part at least
        visible: view.controller.background !== "" && ready
        source: view.controller.background
        radius: 0
        opacity: 0.7
        Accessible.ignored: true
    }
    AppBar {
        id: bar

        width: parent.width
        title: view.controller.titleLabel
        subtitle: view.controller.brandName
        backVisible: true
        offline: view.controller.offline
        onBackTapped: view.controller.closeSceneAction()
    }
    Flickable {
        id: page

        objectName: "activationBoardPage"
        anchors.top: bar.bottom
        anchors.bottom: actions.top
        width: parent.width
        visible: view.controller.emptyText === ""
        contentHeight: Math.max(height, board.implicitHeight + 2 * Theme.pageMargin)
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        ScrollMark { view: page }
        ActivationBoard {
            id: board

            objectName: "activationBoard"
            anchors.centerIn: parent
            width: parent.width - 2 * Theme.pageMargin
            height: implicitHeight
            focus: true
            name: "activation"
            model: view.controller.presentButtons
            onTapped: (identifier) => view.controller.selectActivation(identifier)
        }
    }
    EmptyState {
        objectName: "activationsEmpty"
        anchors.fill: page
        visible: view.controller.emptyText !== ""
        icon: "party"
        title: "Sin activaciones"
        text: view.controller.emptyText
    }
    Rectangle {
        id: actions

        anchors.bottom: parent.bottom
        width: parent.width
        height: row.implicitHeight + 2 * Theme.spaceM
        color: Theme.surface

        Rectangle { width: parent.width; height: 1; color: Theme.hairline }
        GridLayout {
            id: row

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            anchors.leftMargin: Theme.pageMargin
            anchors.rightMargin: Theme.pageMargin
            columns: Theme.compact ? 1 : 3
            columnSpacing: Theme.spaceXL
            rowSpacing: Theme.spaceM

            Column {
                Layout.fillWidth: true
                spacing: 2

                Text {
                    objectName: "selectedName"
                    width: parent.width
                    text: view.chosen ? view.controller.selectedName : "Toca una activación para ver de qué se trata"
                    color: view.chosen ? Theme.bottle : Theme.mutedInk
                    wrapMode: Text.Wrap
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontLarge
                    font.weight: view.chosen ? Font.Bold : Font.Normal
                }
                HelpText {
                    width: parent.width
                    font.pixelSize: Theme.fontBody
                    maximumLineCount: 3
                    elide: Text.ElideRight
                    text: view.controller.selectedDescription
                }
                HelpText { width: parent.width; text: view.controller.selectedNotice }
            }
            QuotaRing {
                objectName: "selectedQuota"
                visible: view.chosen
                total: view.controller.quota
                made: view.controller.numberMade
                text: view.controller.remainingText
            }
            AppButton {
                objectName: "nextButton"
                Layout.fillWidth: Theme.compact
                Layout.minimumWidth: 200
                text: "Continuar"
                onClicked: view.controller.nextAction()
            }
        }
    }
    ScreenVeil { veilState: view.controller.veil }
}
