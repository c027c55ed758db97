import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Screens

// The point of sale, the languages and the form of the brochure.
FormPage {
    id: page

    required property BrochureConfigurationViewController controller

    objectName: "brochureConfiguration"

    ColumnLayout {
        Layout.fillWidth: true
        spacing: Theme.spaceL

        CustomerCodeCard {
            Layout.fillWidth: true
            controller: page.controller
        }
        CustomerFields {
            Layout.fillWidth: true
            controller: page.controller
            fields: page.controller.contactFields
        }
    }

    ColumnLayout {
        Layout.fillWidth: true
        spacing: Theme.spaceL

        LanguagesCard {
            Layout.fillWidth: true
            controller: page.controller
        }
        Loader {
            Layout.fillWidth: true
            active: page.controller.orientationPaneVisible
            visible: active
            sourceComponent: ChalkboardCard { controller: page.controller }
        }
        BrochureFormCard {
            Layout.fillWidth: true
            controller: page.controller
        }
    }

    ColumnLayout {
        Layout.fillWidth: true
        spacing: Theme.spaceL

        CustomerFields {
            Layout.fillWidth: true
            title: "Dirección"
            icon: "location"
            controller: page.controller
            fields: page.controller.placeFields

            AppButton {
                objectName: "locateDevice"
                width: parent.width
                text: "Usar mi ubicación"
                icon: "location"
                kind: "secondary"
                onClicked: page.controller.locateDeviceAndFillFields()
            }
        }
        CustomerFields {
            Layout.fillWidth: true
            title: "El local en la red"
            icon: "globe"
            controller: page.controller
            fields: page.controller.onlineFields
        }
    }

    ColumnLayout {
        Layout.fillWidth: true
        spacing: Theme.spaceL

        CustomerFields {
            Layout.fillWidth: true
            visible: page.controller.freeTextVisible
            title: "Textos libres"
            icon: "edit"
            note: page.controller.freeTextLabel
            controller: page.controller
            fields: page.controller.freeTextFields
        }
        LogoCard {
            Layout.fillWidth: true
            controller: page.controller
        }
        AppButton {
            objectName: "previewAction"
            Layout.fillWidth: true
            text: "Vista previa"
            icon: "preview"
            kind: "secondary"
            onClicked: page.controller.previewAction()
        }
    }
}
