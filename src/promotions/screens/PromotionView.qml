import QtQuick
import QtQuick.Layouts
import Kavor.Kit
import Kavor.Screens
import Kavor.Ui

// The form of a promotion beside its poster; on a phone below it.
FocusScope {
    id: view

    required property PromotionViewController controller
    readonly property bool wide: width >= 700

    function showPreview(): void {
        if (controller.preview)
            previewLoader.setSource("qrc:/qt/qml/Kavor/Kit/WebPreviewView.qml", { controller: controller.preview });
        else {
            previewLoader.source = "";
            page.forceActiveFocus(); // the keyboard goes on in the form
        }
    }

    objectName: "promotionView"
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
        title: view.controller.promotionName
        subtitle: view.controller.brandName
        backVisible: true
        offline: view.controller.offline
        onBackTapped: view.controller.closeSceneAction()
    }
    PosterPreview {
        id: poster

        x: Theme.pageMargin
        anchors.top: bar.bottom
        anchors.topMargin: Theme.pageMargin
        visible: view.wide
        width: Math.min(view.width * 0.36, (view.height - bar.height - actions.height - 2 * Theme.pageMargin) * 0.75)
        controller: view.controller
    }
    FormPage {
        id: page

        objectName: "promotionPage"
        focus: true
        anchors.top: bar.bottom
        anchors.bottom: actions.top
        anchors.left: view.wide ? poster.right : parent.left
        anchors.right: parent.right
        maximumWidth: 640
        twoColumns: false

        Item { // the poster of a phone
            Layout.fillWidth: true
            Layout.preferredHeight: small.height
            visible: !view.wide

            PosterPreview {
                id: small

                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(parent.width, 230)
                controller: view.controller
            }
        }
        Card {
            objectName: "attributeCard"
            Layout.fillWidth: true
            visible: view.controller.attributeTable.count > 0

            SectionTitle { width: parent.width; icon: "edit"; text: "Datos de la promoción" }
            AttributeRows {
                objectName: "attributeTable"
                width: parent.width
                attributeTable: view.controller.attributeTable
            }
        }
        LogoCard {
            objectName: "imageLogoStackView"
            Layout.fillWidth: true
            visible: view.controller.imageLogoVisible
            form: view.controller.logo
        }
        PromotionFormatsCard {
            Layout.fillWidth: true
            visible: !view.controller.byMenuOrder
            controller: view.controller
        }
        ColumnLayout {
            objectName: "customerStackView"
            Layout.fillWidth: true
            visible: !view.controller.byMenuOrder
            spacing: Theme.spaceL

            CustomerCodeCard {
                Layout.fillWidth: true
                form: view.controller.customer
            }
            CustomerFields {
                Layout.fillWidth: true
                form: view.controller.customer
                fields: view.controller.customer.contactFields
            }
        }
        PromotionValidityCard {
            Layout.fillWidth: true
            visible: view.controller.vigenciaVisible
            form: view.controller.vigencia
        }
        PromotionEmailsCard {
            Layout.fillWidth: true
            visible: !view.controller.byMenuOrder
            emails: view.controller.emailTextFieldList
        }
        TextAreaRow {
            objectName: "freeTextForSupport"
            Layout.fillWidth: true
            visible: !view.controller.byMenuOrder
            label: "Comentario para soporte"
            placeholder: "Lo que deba saber quien prepare el pedido"
            text: view.controller.freeTextForSupport
            onEdited: (typed) => view.controller.editComment(typed)
            onFinished: (typed) => view.controller.editComment(typed)
        }
    }
    PromotionActions {
        id: actions

        anchors.bottom: parent.bottom
        width: parent.width
        height: implicitHeight
        controller: view.controller
    }
    Toast { id: toast; icon: "poster" }
    Loader {
        id: previewLoader

        anchors.fill: parent
    }
    ScreenVeil { veilState: view.controller.veil }
}
