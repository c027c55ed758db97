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
        contentHeight: Math.max(height, board.implicitHeight + 2 * Theme.pageMargin)
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        ScrollMark { view: page }
        ActivationBoard {
            id: board

            objectName: "brandBoard"
            anchors.centerIn: parent
            width: parent.width - 2 * Theme.pageMargin
            height: implicitHeight
            focus: true
            name: "brand"
            model: view.controller.board
            onTapped: (identifier) => view.controller.selectBrand(identifier)
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
