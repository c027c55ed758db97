import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Kit

// A document over the whole window.
FocusScope {
    id: view

    required property WebPreviewViewController controller

    objectName: "webPreview"

    Keys.onEscapePressed: controller.dismissAction()

    function show(): void {
        if (String(controller.source) !== "")
            pages.source = controller.source;
        else if (!controller.loading && !controller.failed)
            pages.setBytes(controller.bytes);
    }

    Component.onCompleted: {
        show();
        preview.forceActiveFocus();
    }

    Connections {
        target: view.controller
        function onChanged(): void {
            view.show();
        }
    }

    PdfPages { id: pages }

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }
    MouseArea { // nothing below is touched
        anchors.fill: parent
        onWheel: (wheel) => wheel.accepted = true
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        AppBar {
            Layout.fillWidth: true
            title: view.controller.title

            IconButton {
                objectName: "dismissPreview"
                inverse: true
                icon: "close"
                text: "Cerrar"
                onClicked: view.controller.dismissAction()
            }
        }

        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            PdfPreview {
                id: preview

                objectName: "webView"
                anchors.fill: parent
                visible: !view.controller.loading && !view.controller.failed
                pages: pages
            }
            Column {
                anchors.centerIn: parent
                spacing: Theme.spaceM
                visible: view.controller.loading

                Spinner { anchors.horizontalCenter: parent.horizontalCenter; width: 48; height: 48 }
                HelpText { text: "Cargando el documento…"; font.pixelSize: Theme.fontBody }
            }
            EmptyState {
                objectName: "previewFailed"
                anchors.fill: parent
                visible: view.controller.failed
                icon: "warning"
                tone: "danger"
                title: "No se puede mostrar el documento"
                text: "No se ha podido descargar. Compruebe la conexión e inténtelo de nuevo."
                actionText: "Reintentar"
                actionIcon: "refresh"
                onTriggered: view.controller.load()
            }
        }
    }
}
