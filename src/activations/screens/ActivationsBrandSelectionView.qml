import QtQuick
import Kavor.Screens
import Kavor.Ui

// The board of brands.
FocusScope {
    id: view

    required property ActivationsBrandSelectionViewController controller

    objectName: "activationBrands"
    Keys.onEscapePressed: controller.closeSceneAction()
    Keys.onBackPressed: controller.closeSceneAction()

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }
    AppBar {
        id: bar

        width: parent.width
        title: "Activaciones"
        subtitle: view.controller.emptyTitle === "" ? "Elige la marca de la fiesta" : ""
        backVisible: true
        backText: "Inicio"
        offline: view.controller.offline
        onBackTapped: view.controller.closeSceneAction()
    }
    Flickable {
        id: page

        objectName: "brandBoardPage"
        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        visible: view.controller.emptyTitle === ""
        contentHeight: Math.max(height, content.implicitHeight + 2 * Theme.pageMargin)
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        ScrollMark { view: page }
        Column {
            id: content

            readonly property bool roomy: page.height - board.implicitHeight > 340

            x: Theme.pageMargin
            y: roomy ? Theme.pageMargin : (page.contentHeight - implicitHeight) / 2
            width: parent.width - 2 * x
            spacing: Theme.spaceXL

            ActivationBoard {
                id: board

                objectName: "brandBoard"
                width: parent.width
                height: implicitHeight
                focus: true
                name: "brand"
                model: view.controller.board
                onTapped: (identifier) => view.controller.selectBrand(identifier)
            }
            Card { // where the board leaves room, the same in words
                width: parent.width
                visible: content.roomy
                padding: 4
                spacing: 0

                Repeater {
                    id: rows

                    model: view.controller.brandRows

                    ListRow {
                        required property int index
                        required property var modelData

                        objectName: "brandRow" + modelData.id
                        width: parent.width
                        icon: "party"
                        text: modelData.text
                        detail: modelData.detail
                        chevron: true
                        separator: index < rows.count - 1
                        onClicked: view.controller.selectBrand(modelData.id)
                    }
                }
            }
        }
    }
    EmptyState {
        objectName: "activationsEmpty"
        anchors.fill: page
        visible: view.controller.emptyTitle !== ""
        icon: "party"
        title: view.controller.emptyTitle
        text: view.controller.emptyText
    }
}
