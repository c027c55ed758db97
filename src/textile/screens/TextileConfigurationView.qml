import QtQuick
import QtQuick.Layouts
import Kavor.Kit
import Kavor.Screens
import Kavor.Ui

// The first step: the text and its typography, and the point of sale.
FocusScope {
    id: view

    required property TextileConfigurationViewController controller

    objectName: "textileConfiguration"

    FormPage {
        id: page

        objectName: "textileConfigurationPage"
        anchors.fill: parent
        focus: true

        ColumnLayout {
            Layout.fillWidth: true
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
            PlaceCard {
                Layout.fillWidth: true
                form: view.controller.customer
            }
        }
        TextileTypographies {
            Layout.fillWidth: true
            controller: view.controller
        }
    }
}
