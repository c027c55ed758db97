import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Screens

// The bar's own logo.
Card {
    id: card

    required property BrochureConfigurationViewController controller
    readonly property bool present: controller.imageLogo !== ""

    SectionTitle { width: parent.width; text: card.controller.attachLogoLabel; icon: "camera" }

    RowLayout {
        width: parent.width
        spacing: Theme.spaceL

        Rectangle {
            Layout.preferredWidth: 96
            Layout.preferredHeight: 96
            visible: card.present
            radius: Theme.radius
            color: Theme.sunken

            Image {
                objectName: "imageLogo"
                anchors.fill: parent
                anchors.margins: Theme.spaceS
                source: card.controller.imageLogo
                fillMode: Image.PreserveAspectFit
                sourceSize.width: 192
                sourceSize.height: 192
                asynchronous: true
                Accessible.role: Accessible.Graphic
                Accessible.name: "Logotipo del establecimiento"
            }
        }
        AppButton {
            objectName: "searchLogoInGallery"
            text: card.present ? "Cambiar" : "Elegir imagen"
            icon: "camera"
            kind: "secondary"
            onClicked: card.controller.searchLogoInGallery()
        }
        IconButton {
            objectName: "removeImageLogoButton"
            visible: card.present
            icon: "trash"
            text: "Quitar el logotipo"
            colour: Theme.danger
            onClicked: card.controller.removeImageButonAction()
        }
        Item { Layout.fillWidth: true }
    }
}
