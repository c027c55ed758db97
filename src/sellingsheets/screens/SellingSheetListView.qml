import QtQuick
import QtQuick.Layouts
import Kavor.Kit
import Kavor.Screens
import Kavor.Ui

// The selling sheets: drafts and sent ones side by side, one of the two at a time where there is no room.
FocusScope {
    id: view

    required property SellingSheetOrderListManagerViewController controller
    readonly property bool wide: width >= 860
    property bool sentChosen: false

    function showPreview(): void {
        if (controller.preview)
            previewLoader.setSource("qrc:/qt/qml/Kavor/Kit/WebPreviewView.qml", { controller: controller.preview });
        else {
            previewLoader.source = "";
            drafts.forceActiveFocus(); // the keyboard goes on in the list
        }
    }

    objectName: "sellingSheetList"
    Keys.onEscapePressed: controller.closeSceneAction()
    Keys.onBackPressed: controller.closeSceneAction()

    Connections {
        target: view.controller
        function onPreviewChanged(): void {
            view.showPreview();
        }
        function onCopied(text: string): void {
            toast.show(text);
            view.sentChosen = false;
        }
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }
    AppBar {
        id: bar

        width: parent.width
        title: "Hojas vendedoras"
        backVisible: true
        offline: view.controller.offline
        onBackTapped: view.controller.closeSceneAction()

        IconButton {
            objectName: "refreshSheets"
            inverse: true
            icon: "refresh"
            text: "Actualizar"
            onClicked: view.controller.refresh()
        }
    }
    Row {
        id: tabs

        x: Theme.pageMargin
        anchors.top: bar.bottom
        anchors.topMargin: visible ? Theme.spaceS : 0
        height: visible ? Theme.touch : 0
        visible: !view.wide
        spacing: Theme.spaceS

        Chip {
            objectName: "draftsTab"
            tappable: true
            selected: !view.sentChosen
            text: view.controller.draftsTitle + " · " + view.controller.drafts.count
            onClicked: view.sentChosen = false
        }
        Chip {
            objectName: "sentTab"
            tappable: true
            selected: view.sentChosen
            text: view.controller.sentTitle + " · " + view.controller.sent.count
            onClicked: view.sentChosen = true
        }
    }
    RowLayout {
        anchors.top: tabs.bottom
        anchors.bottom: foot.top
        width: parent.width
        spacing: 0

        SheetListPane {
            id: drafts

            objectName: "draftSheets"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            focus: true
            visible: view.wide || !view.sentChosen
            title: view.wide ? view.controller.draftsTitle : ""
            rows: view.controller.drafts
            empty: view.controller.draftsEmpty
            draft: true
            onEmptyTriggered: view.controller.newSheetAction()
            onOpened: (key) => view.controller.openDraft(key)
            onPreviewed: (key) => view.controller.previewDraft(key)
            onSendTapped: (key) => view.controller.sendDraft(key)
            onCopyTapped: (key) => view.controller.copyDraft(key)
            onDeleteTapped: (key) => view.controller.deleteDraft(key)
        }
        Rectangle {
            Layout.preferredWidth: 1
            Layout.fillHeight: true
            visible: view.wide
            color: Theme.hairline
        }
        SheetListPane {
            objectName: "sentSheets"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            visible: view.wide || view.sentChosen
            title: view.wide ? view.controller.sentTitle : ""
            rows: view.controller.sent
            empty: view.controller.sentEmpty
            onEmptyTriggered: view.controller.refresh()
            onOpened: (key) => view.controller.previewSent(key)
            onPreviewed: (key) => view.controller.previewSent(key)
            onCopyTapped: (key) => view.controller.copySent(key)
            onDeleteTapped: (key) => view.controller.deleteSent(key)
        }
    }
    Rectangle {
        id: foot

        anchors.bottom: parent.bottom
        width: parent.width
        height: newSheet.implicitHeight + 2 * Theme.spaceM
        color: Theme.surface

        Rectangle { width: parent.width; height: 1; color: Theme.hairline }
        AppButton {
            id: newSheet

            objectName: "newSheet"
            anchors.centerIn: parent
            width: Math.min(parent.width - 2 * Theme.pageMargin, 420)
            icon: "plus"
            text: "Nueva hoja"
            onClicked: view.controller.newSheetAction()
        }
    }
    Toast { id: toast; icon: "copy" }
    Loader {
        id: previewLoader

        anchors.fill: parent
    }
    ScreenVeil { veilState: view.controller.veil }
}
