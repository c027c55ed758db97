import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Kit

// The bar's own logo.
Card {
    id: card

    required property LogoForm form
    readonly property bool present: form.imageLogo !== ""

    SectionTitle { width: parent.width; text: card.form.attachLogoLabel; icon: "camera" }

    RowLayout {
        width: parent.width
        spacing: Theme.spaceL

        Rectangle {
            Layout.preferredWidth: 96
            Layout.preferredHeight: 96
            visible: card.present && card.form.unreadableLabel === ""
            radius: Theme.radius
            color: Theme.sunken

            Image {
                objectName: "imageLogo"
                anchors.fill: parent
                anchors.margins: Theme.spaceS
                source: card.form.imageLogo
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
            onClicked: card.form.searchLogoInGallery()
        }
        IconButton {
            objectName: "removeImageLogoButton"
            visible: card.present
            icon: "trash"
            text: "Quitar el logotipo"
            colour: Theme.danger
            onClicked: card.form.removeImageButonAction()
        }
        Item { Layout.fillWidth: true }
    }
    HelpText {
        objectName: "unreadableLabel"
        width: parent.width
        visible: text !== ""
        text: card.form.unreadableLabel
    }
}
