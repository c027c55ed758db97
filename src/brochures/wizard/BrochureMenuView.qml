import QtQuick
import Kavor.Ui
import Kavor.Kit
import Kavor.Screens

// The frame of the wizard: the bar, the menu at the side (on a phone a strip below the bar), and the step on show.
FocusScope {
    id: view

    required property BrochureMenuViewController controller

    objectName: "brochureMenu"

    function showStep(): void {
        const step = controller.activeViewController;
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

    function find(item: Item, name: string): Item {
        if (item.objectName === name && item.visible)
            return item;
        for (let i = 0; i < item.children.length; ++i) {
            const found = find(item.children[i], name);
            if (found)
                return found;
        }
        return null;
    }
    // Type here next: the page scrolls to what has the focus.
    function enter(name: string): void {
        const field = find(container.item, name);
        if (field)
            field.forceActiveFocus(Qt.TabFocusReason);
    }

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
        function onFieldRequested(name: string): void {
            Qt.callLater(view.enter, name); // qmllint disable
        }
        function onPreviewChanged(): void {
            view.showPreview();
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
        backText: "Cerrar la carta"
        onBackTapped: view.controller.closeSceneAction()
    }

    StepMenu {
        id: menu

        anchors.top: bar.bottom
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
        clip: true
    }

    Toast { id: toast; icon: "brochure" }

    Loader {
        id: previewLoader

        anchors.fill: parent
    }

    ScreenVeil { veilState: view.controller.veil }
}
