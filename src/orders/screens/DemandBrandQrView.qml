import QtQuick
import QtQuick.Layouts
import Kavor.Kit
import Kavor.Screens
import Kavor.Ui

// The QR material of a sent order, made again.
FocusScope {
    id: view

    required property DemandBrandQrController controller
    readonly property bool empty: controller.brands.length === 0

    objectName: "demandBrandQrView"
    Keys.onEscapePressed: controller.closeSceneAction()

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }
    AppBar {
        id: bar

        width: parent.width
        title: "Material con QR"
        backVisible: true
        offline: view.controller.offline
        onBackTapped: view.controller.closeSceneAction()
    }
    FormPage {
        id: page

        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width

        Text {
            objectName: "titleLabel"
            Layout.fillWidth: true
            Layout.columnSpan: page.columns
            text: view.controller.titleLabel
            color: Theme.bottle
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontLarge
            font.weight: Font.Bold
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Card {
            Layout.fillWidth: true
            spacing: Theme.spaceL

            SectionTitle { width: parent.width; icon: "qr"; text: "Marca" }
            PictureCarousel {
                objectName: view.controller.taco ? "brandQrTacoCarousel" : "brandQrCarousel"
                width: parent.width
                height: Theme.compact ? 240 : 320
                itemWidth: Theme.compact ? 180 : 230
                visible: !view.empty
                text: "Marca del material con QR"
                placeholderIcon: "qr"
                model: view.controller.brands
                chosen: view.controller.currentBrand
                onSelected: (index) => view.controller.carouselCurrentItemIndexDidChange(index)
            }
            Text {
                objectName: "brandQrCarouselLabel"
                width: parent.width
                visible: !view.empty
                horizontalAlignment: Text.AlignHCenter
                text: view.controller.brandQrCarouselLabel
                color: Theme.ink
                wrapMode: Text.Wrap
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontTitle
                font.weight: Font.Bold
            }
            EmptyState {
                width: parent.width
                visible: view.empty
                icon: "qr"
                text: "No hay marcas con material QR."
            }
        }
        Card {
            Layout.fillWidth: true
            spacing: Theme.spaceL

            SectionTitle { width: parent.width; icon: "orders"; text: "Unidades" }
            PickerRow {
                objectName: "brandQrTypePicker"
                width: parent.width
                visible: view.controller.typePickerVisible
                label: "Soporte"
                model: view.controller.brandQrTypes
                currentIndex: view.controller.brandQrTypePicker
                onActivated: (index) => view.controller.chooseType(index)
            }
            PickerRow {
                objectName: "brandQrQuantityTablePicker"
                width: parent.width
                visible: !view.controller.taco
                label: "Nº vinilos mesa"
                model: view.controller.tableQuantities
                currentIndex: view.controller.brandQrQuantityTablePicker
                onActivated: (index) => view.controller.chooseQuantity(DemandBrandQrController.Table, index)
            }
            PickerRow {
                objectName: "brandQrQuantityDoorPicker"
                width: parent.width
                visible: !view.controller.taco
                label: "Nº vinilos puerta"
                model: view.controller.doorQuantities
                currentIndex: view.controller.brandQrQuantityDoorPicker
                onActivated: (index) => view.controller.chooseQuantity(DemandBrandQrController.Door, index)
            }
            PickerRow {
                objectName: "brandQrQuantityTacoPicker"
                width: parent.width
                visible: view.controller.taco
                label: "Nº tacos de madera"
                model: view.controller.tacoQuantities
                currentIndex: view.controller.brandQrQuantityTacoPicker
                onActivated: (index) => view.controller.chooseQuantity(DemandBrandQrController.Taco, index)
            }
            MessageField {
                width: parent.width
                name: "commentText"
                form: view.controller
                label: "Comentario"
                placeholder: "Si hace falta, qué ha pasado con el material anterior."
                lines: 3
            }
            HelpText {
                objectName: "demandProblem"
                width: parent.width
                tone: "danger"
                text: view.controller.problem
            }
            AppButton {
                objectName: "sendDemandButton"
                anchors.right: parent.right
                width: Theme.compact ? parent.width : implicitWidth
                enabled: view.controller.problem === ""
                icon: "send"
                text: "Pedir de nuevo"
                busy: view.controller.sending
                onClicked: view.controller.sendDemandAction()
            }
        }
    }
    Veil {
        shown: view.controller.sending
        text: "Pidiendo el material…"
        leavable: true
        onAbandoned: view.controller.leaveVeil()
    }
}
