import QtQuick
import QtQuick.Layouts
import Kavor.Kit
import Kavor.Screens
import Kavor.Ui

// The data of a sheet beside the sheet itself; on a phone below it.
FocusScope {
    id: view

    required property DataViewController controller
    readonly property bool wide: width >= 700

    function showPreview(): void {
        if (controller.preview)
            previewLoader.setSource("qrc:/qt/qml/Kavor/Kit/WebPreviewView.qml", { controller: controller.preview });
        else {
            previewLoader.source = "";
            page.forceActiveFocus(); // the keyboard goes on in the form
        }
    }

    objectName: "sheetDataView"
    Keys.onEscapePressed: controller.closeSceneAction()
    Keys.onBackPressed: controller.closeSceneAction()
    Component.onCompleted: {
        if (controller.recoveredMessage !== "")
            toast.show(controller.recoveredMessage);
    }

    Connections {
        target: view.controller
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
        title: view.controller.sheetNameTextField !== "" ? view.controller.sheetNameTextField : "Nueva hoja"
        subtitle: view.controller.modulesText
        backVisible: true
        offline: view.controller.offline
        onBackTapped: view.controller.closeSceneAction()
    }
    SheetPageView {
        id: paper

        x: Theme.pageMargin
        anchors.top: bar.bottom
        anchors.topMargin: Theme.pageMargin
        visible: view.wide
        width: Math.min(380, view.width * 0.38)
        maximumHeight: view.height - bar.height - actions.height - 2 * Theme.pageMargin
        page: view.controller.page
    }
    FormPage {
        id: page

        objectName: "sheetDataPage"
        focus: true
        anchors.top: bar.bottom
        anchors.bottom: actions.top
        anchors.left: view.wide ? paper.right : parent.left
        anchors.right: parent.right
        maximumWidth: 640
        twoColumns: false

        Card {
            Layout.fillWidth: true

            SectionTitle { width: parent.width; icon: "edit"; text: "Textos" }
            TextRow {
                objectName: "sheetNameTextField"
                width: parent.width
                label: "Nombre de la hoja"
                placeholder: "Para encontrarla en la lista"
                text: view.controller.sheetNameTextField
                onEdited: (typed) => view.controller.edit(DataViewController.SheetName, typed)
            }
            TextRow {
                objectName: "titleTextField"
                width: parent.width
                label: "Título"
                text: view.controller.titleTextField
                help: view.controller.titleTooLong ? "" : view.controller.titleCount
                error: view.controller.titleTooLong ? view.controller.titleCount : ""
                onEdited: (typed) => view.controller.edit(DataViewController.Title, typed)
            }
            TextRow {
                objectName: "subtitleTextField"
                width: parent.width
                label: "Subtítulo"
                text: view.controller.subtitleTextField
                help: view.controller.subtitleTooLong ? "" : view.controller.subtitleCount
                error: view.controller.subtitleTooLong ? view.controller.subtitleCount : ""
                onEdited: (typed) => view.controller.edit(DataViewController.Subtitle, typed)
            }
            TextAreaRow {
                objectName: "freeTextField"
                width: parent.width
                label: "Texto libre"
                maximumLength: view.controller.freeTextLength
                text: view.controller.freeTextField
                onEdited: (typed) => view.controller.edit(DataViewController.FreeText, typed)
            }
        }
        Card {
            Layout.fillWidth: true

            SectionTitle { width: parent.width; icon: "package"; text: "Módulos · " + view.controller.modulesText }
            AppButton {
                objectName: "modulesAction"
                width: parent.width
                kind: "secondary"
                icon: "products"
                text: "Editar los módulos"
                onClicked: view.controller.modulesAction()
            }
        }
        Card {
            Layout.fillWidth: true

            SectionTitle { width: parent.width; icon: "style"; text: "Estilo" }
            PictureCarousel {
                objectName: "styleCarousel"
                width: parent.width
                height: 240
                itemWidth: 150
                text: "Estilos"
                placeholderIcon: "sellingsheet"
                model: view.controller.styles
                chosen: view.controller.style
                onSelected: (index) => view.controller.chooseStyle(index)
                onTapped: (index) => view.controller.chooseStyle(index)
            }
            HelpText {
                objectName: "styleHint"
                width: parent.width
                visible: text !== ""
                tone: "danger"
                text: view.controller.styleHint
            }
        }
        SheetValidityCard {
            Layout.fillWidth: true
            controller: view.controller
        }
        LogoCard {
            objectName: "imageView"
            Layout.fillWidth: true
            form: view.controller.logo
        }
        SheetEmailsCard {
            Layout.fillWidth: true
            controller: view.controller
        }
        Item { // the sheet of a phone
            Layout.fillWidth: true
            Layout.preferredHeight: small.height
            visible: !view.wide

            SheetPageView {
                id: small

                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(parent.width, 320)
                page: view.controller.page
            }
        }
    }
    SheetActions {
        id: actions

        anchors.bottom: parent.bottom
        width: parent.width
        controller: view.controller
    }
    Toast { id: toast; icon: "sellingsheet" }
    Loader {
        id: previewLoader

        anchors.fill: parent
    }
    ScreenVeil { veilState: view.controller.veil }
}
