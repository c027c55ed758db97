import QtQuick
import QtQuick.Layouts
import Kavor.Screens
import Kavor.Ui

// The user's own data, as the server tells them.
FocusScope {
    id: view

    required property ProfileViewController controller
    readonly property bool known: controller.budgets.length > 0

    objectName: "profileView"
    Keys.onEscapePressed: controller.closeSceneAction()

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }
    AppBar {
        id: bar

        width: parent.width
        title: "Perfil"
        backVisible: true
        offline: view.controller.offline
        onBackTapped: view.controller.closeSceneAction()
    }
    FormPage {
        id: page

        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        visible: view.known

        Card {
            Layout.fillWidth: true
            Layout.columnSpan: page.columns

            RowLayout {
                width: parent.width
                spacing: Theme.spaceL

                Rectangle {
                    implicitWidth: 56
                    implicitHeight: 56
                    radius: 28
                    color: Theme.toneGround("bottle")

                    Icon {
                        anchors.centerIn: parent
                        name: "user"
                        size: 28
                        colour: Theme.bottle
                    }
                }
                Text {
                    objectName: "profileName"
                    Layout.fillWidth: true
                    text: view.controller.name
                    color: Theme.ink
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontLarge
                    font.weight: Font.Bold
                    wrapMode: Text.Wrap
                }
                AppButton {
                    objectName: "editProfile"
                    visible: view.controller.editable && !Theme.compact
                    kind: "secondary"
                    icon: "edit"
                    text: "Editar mis datos"
                    onClicked: view.controller.editAction()
                }
            }
            AppButton {
                objectName: "editProfileBelow"
                width: parent.width
                visible: view.controller.editable && Theme.compact
                kind: "secondary"
                icon: "edit"
                text: "Editar mis datos"
                onClicked: view.controller.editAction()
            }
        }
        Repeater {
            model: view.controller.budgets

            BudgetCard {
                required property var modelData

                Layout.fillWidth: true
                title: modelData.title
                available: modelData.available
                initial: modelData.initial
                orders: modelData.orders
                share: modelData.share
            }
        }
        Card {
            Layout.fillWidth: true
            Layout.columnSpan: page.columns
            visible: view.controller.details.length > 0

            GridLayout {
                width: parent.width
                columns: page.columns
                columnSpacing: Theme.spaceXL
                rowSpacing: Theme.spaceL

                Repeater {
                    model: view.controller.details

                    DetailRow {
                        required property var modelData

                        Layout.fillWidth: true
                        Layout.preferredWidth: 1
                        icon: modelData.icon
                        label: modelData.label
                        text: modelData.text
                    }
                }
            }
        }
    }
    Spinner {
        anchors.centerIn: parent
        visible: view.controller.loading && !view.known
    }
    EmptyState {
        objectName: "profileProblem"
        anchors.centerIn: parent
        width: parent.width
        visible: !view.known && view.controller.problem !== ""
        icon: view.controller.offline ? "cloud" : "warning"
        title: "No se puede mostrar el perfil"
        text: view.controller.problem
        actionText: "Intentar de nuevo"
        actionIcon: "refresh"
        onTriggered: view.controller.load()
    }
}
