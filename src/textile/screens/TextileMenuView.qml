import QtQuick
import Kavor.Kit
import Kavor.Screens
import Kavor.Ui

// The frame of the section: the bar, the steps at the side (on a phone a strip below the bar), and the step on show.
FocusScope {
    id: view

    required property TextileMenuViewController controller

    objectName: "textileMenu"

    function showStep(): void {
        const step = controller.activeViewController;
        if (step)
            container.setSource(step.view, { controller: step });
    }
    function showPreview(): void {
        if (controller.preview)
            previewLoader.setSource("qrc:/qt/qml/Kavor/Kit/WebPreviewView.qml", { controller: controller.preview });
        else {
            previewLoader.source = "";
            container.forceActiveFocus(); // the keyboard goes on in the step
        }
    }

    Keys.onEscapePressed: controller.closeSceneAction()
    Keys.onBackPressed: controller.closeSceneAction()
    Component.onCompleted: {
        showStep();
        if (controller.recoveredMessage !== "")
            toast.show(controller.recoveredMessage);
    }

    Connections {
        target: view.controller
        function onActiveStepChanged(): void {
            view.showStep();
        }
        function onPreviewChanged(): void {
            view.showPreview();
        }
        function onSaid(word: string): void {
            toast.show(word);
        }
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }
    AppBar {
        id: bar

        width: parent.width
        title: view.controller.title
        subtitle: view.controller.subtitle
        offline: view.controller.offline
        backVisible: true
        backText: "Cerrar el pedido"
        onBackTapped: view.controller.closeSceneAction()
    }
    StepMenu {
        id: menu

        anchors.top: bar.bottom
        visible: view.controller.inCatalogue
        width: vertical ? implicitWidth : parent.width
        height: vertical ? parent.height - bar.height : implicitHeight
        model: view.controller.menuButtons
        onTapped: (id) => view.controller.buttonPushedAction(id)
    }
    Loader {
        id: container

        objectName: "containerView"
        anchors.top: menu.vertical ? bar.bottom : menu.bottom
        anchors.left: menu.vertical ? menu.right : parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        focus: true
        clip: true
    }
    EmptyState {
        objectName: "textileEmpty"
        anchors.centerIn: parent
        width: parent.width
        visible: !view.controller.inCatalogue
        icon: "tshirt"
        title: "No hay textil en el catálogo"
        text: "Cuando el programa ofrezca prendas, aparecerán aquí."
        actionText: "Volver"
        onTriggered: view.controller.closeSceneAction()
    }
    Toast { id: toast; icon: "tshirt" }
    Loader {
        id: previewLoader

        anchors.fill: parent
    }
    ScreenVeil { veilState: view.controller.veil }
}
