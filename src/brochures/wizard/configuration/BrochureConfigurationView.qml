import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Kit
import Kavor.Screens

// The point of sale, the languages and the form of the brochure.
FormPage {
    id: page

    required property BrochureConfigurationViewController controller
    readonly property PointOfSaleForm pointOfSale: controller.pointOfSale

    objectName: "brochureConfiguration"

    ColumnLayout {
        Layout.fillWidth: true
        spacing: Theme.spaceL

        CustomerCodeCard {
            Layout.fillWidth: true
            form: page.pointOfSale
        }
        CustomerFields {
            Layout.fillWidth: true
            form: page.pointOfSale
            fields: page.pointOfSale.contactFields
        }
    }

    ColumnLayout {
        Layout.fillWidth: true
        spacing: Theme.spaceL

        LanguagesCard {
            Layout.fillWidth: true
            form: page.controller.languages
            secondPrice: page.controller.secondPrice
        }
        Loader {
            Layout.fillWidth: true
            active: page.controller.chalkboard.orientationPaneVisible
            visible: active
            sourceComponent: ChalkboardCard { form: page.controller.chalkboard }
        }
        BrochureFormCard {
            Layout.fillWidth: true
            form: page.controller.formats
        }
    }

    ColumnLayout {
        Layout.fillWidth: true
        spacing: Theme.spaceL

        PlaceCard {
            Layout.fillWidth: true
            form: page.pointOfSale
        }
        CustomerFields {
            Layout.fillWidth: true
            title: "El local en la red"
            icon: "globe"
            form: page.pointOfSale
            fields: page.pointOfSale.onlineFields
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
            form: page.pointOfSale
            fields: page.pointOfSale.freeTextFields
        }
        LogoCard {
            Layout.fillWidth: true
            form: page.pointOfSale.logo
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
