import QtQuick
import Kavor.Screens
import Kavor.Ui

// The modules of the sheet beside the sheet itself.
FocusScope {
    id: view

    required property ModulesManagementController controller
    readonly property bool wide: width >= 700

    objectName: "sheetModulesView"
    Keys.onEscapePressed: controller.closeSceneAction()
    Keys.onBackPressed: controller.closeSceneAction()

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }
    AppBar {
        id: bar

        width: parent.width
        title: "Módulos"
        subtitle: view.controller.countText
        backVisible: true
        onBackTapped: view.controller.closeSceneAction()
    }
    SheetPageView {
        id: paper

        x: Theme.pageMargin
        anchors.top: bar.bottom
        anchors.topMargin: Theme.pageMargin
        visible: view.wide
        width: Math.min(380, view.width * 0.38)
        maximumHeight: view.height - bar.height - foot.height - 2 * Theme.pageMargin
        page: view.controller.page
    }
    ListView {
        id: list

        objectName: "modulesList"
        anchors.top: bar.bottom
        anchors.bottom: foot.top
        anchors.left: view.wide ? paper.right : parent.left
        anchors.leftMargin: Theme.pageMargin
        anchors.right: parent.right
        anchors.rightMargin: Theme.pageMargin
        clip: true
        focus: true
        spacing: Theme.spaceM
        topMargin: Theme.pageMargin
        bottomMargin: Theme.pageMargin
        boundsBehavior: Flickable.DragOverBounds
        model: view.controller.modulesList

        Accessible.role: Accessible.List
        Accessible.name: "Módulos"
        ScrollMark { view: list }
        FocusFollower { view: list }
        move: Transition { NumberAnimation { properties: "y"; duration: Theme.normal } }
        moveDisplaced: Transition { NumberAnimation { properties: "y"; duration: Theme.normal } }

        delegate: SingleModuleTableViewCell {
            width: list.width
            last: index === list.count - 1
            onEditTapped: view.controller.editModuleAction(index)
            onDuplicateTapped: view.controller.duplicateAction(index)
            onMoveTapped: (by) => view.controller.moveAction(index, by)
            onRemoveTapped: view.controller.removeAction(index)
        }
    }
    EmptyState {
        objectName: "EmptyCellIdentifier"
        anchors.fill: list
        visible: list.count === 0
        icon: "package"
        title: "Sin módulos"
        text: "Un módulo ofrece cajas de uno o dos productos a un precio."
    }
    Rectangle {
        id: foot

        anchors.bottom: parent.bottom
        width: parent.width
        height: newModule.implicitHeight + 2 * Theme.spaceM
        color: Theme.surface

        Rectangle { width: parent.width; height: 1; color: Theme.hairline }
        Row {
            anchors.centerIn: parent
            spacing: Theme.spaceM

            AppButton {
                objectName: "modulesDone"
                width: newModule.width
                kind: "secondary"
                icon: "check"
                text: "Listo"
                onClicked: view.controller.closeSceneAction()
            }
            AppButton {
                id: newModule

                objectName: "newModuleAction"
                width: Math.min(280, (view.width - 2 * Theme.pageMargin - Theme.spaceM) / 2)
                icon: "plus"
                text: "Módulo nuevo"
                onClicked: view.controller.newModuleAction()
            }
        }
    }
}
