import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Kit
import Kavor.Screens

// The graphic style of the printed or the online menu.
FormPage {
    id: page

    required property BrochureStyleSelectorViewController controller
    readonly property bool hasStyles: controller.emptyMessage === ""

    objectName: "brochureStyleSelector"

    Rectangle { // preferredBrandWarningBannerView
        objectName: "preferredBrandWarningBannerView"
        Layout.fillWidth: true
        Layout.columnSpan: page.columns
        visible: page.controller.preferredBrandWarningBannerVisible
        implicitHeight: Math.max(Theme.touch, bannerText.implicitHeight) + 2 * Theme.spaceS
        radius: Theme.radius
        color: Theme.amberTint
        border.width: 1
        border.color: Theme.amber

        Icon {
            id: bannerStar

            x: Theme.spaceL
            anchors.verticalCenter: parent.verticalCenter
            name: "star"
            filled: true
            colour: Theme.amberDark
        }
        Text {
            id: bannerText

            anchors.left: bannerStar.right
            anchors.leftMargin: Theme.spaceM
            anchors.right: bannerClose.left
            anchors.verticalCenter: parent.verticalCenter
            text: "Hay estilos preferentes para las marcas que has seleccionado. Búscalos por la insignia \"Preferente\"."
            color: Theme.amberDark
            wrapMode: Text.Wrap
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
        }
        IconButton {
            id: bannerClose

            objectName: "bannerClose"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            icon: "close"
            colour: Theme.amberDark
            text: "Cerrar el aviso"
            onClicked: page.controller.bannerCloseAction()
        }
    }

    EmptyState {
        objectName: "noStyles"
        Layout.fillWidth: true
        Layout.columnSpan: page.columns
        visible: !page.hasStyles
        icon: "style"
        title: "Sin estilos"
        text: page.controller.emptyMessage
    }

    CoverCarousel {
        Layout.fillWidth: true
        visible: page.hasStyles
        gallery: page.controller.gallery
        coverHeight: Math.max(260, Math.min(440, page.height * 0.56))
    }

    ColumnLayout {
        Layout.fillWidth: true
        spacing: Theme.spaceL

        StyleQuantitiesCard {
            Layout.fillWidth: true
            visible: page.controller.quantities.visible
            form: page.controller.quantities
        }
        StyleLogosCard {
            Layout.fillWidth: true
            visible: page.controller.logos.visible
            form: page.controller.logos
        }
        StyleAttributesCard { // attributeTableStackView
            Layout.fillWidth: true
            visible: page.controller.attributeTable.count > 0
            attributeTable: page.controller.attributeTable
        }
        BrandQrCard {
            Layout.fillWidth: true
            visible: page.controller.brandQr.visible
            form: page.controller.brandQr
            onZoomed: page.controller.zoomStyleQrButtonAction()
        }
    }
}
