import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Screens

// What others charge for a format, area by area around the place.
FocusScope {
    id: view

    required property BrochurePriceAssistantViewController controller

    objectName: "priceAssistantView"
    Keys.onEscapePressed: controller.closeSceneAction()

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }
    AppBar {
        id: bar

        width: parent.width
        title: view.controller.title
        backVisible: true
        backText: "Volver a los precios"
        offline: view.controller.keptLabel !== ""
        onBackTapped: view.controller.closeSceneAction()
    }
    FormPage {
        id: page

        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width

        Card {
            Layout.fillWidth: true
            Layout.fillHeight: true
            ground: Theme.bottleTint
            spacing: Theme.spaceS

            Text {
                objectName: "brandLabel"
                width: parent.width
                visible: text !== ""
                text: view.controller.brandLabel
                color: Theme.bottle
                wrapMode: Text.Wrap
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontTitle
                font.weight: Font.Bold
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Text {
                objectName: "formatLabel"
                width: parent.width
                visible: text !== ""
                text: view.controller.formatLabel
                color: Theme.ink
                wrapMode: Text.Wrap
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontLarge
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            Chip {
                objectName: "ownPrice"
                tone: "amber"
                icon: "price"
                text: view.controller.ownPriceLabel
            }
            Flow { // what the drawings say
                width: parent.width
                spacing: Theme.spaceM

                Legend {
                    mark: 12
                    colour: Theme.bottle
                    text: "Lo más habitual"
                }
                Legend {
                    mark: 4
                    colour: Theme.amber
                    text: "Tu precio"
                }
            }
            HelpText {
                objectName: "keptAnswer"
                width: parent.width
                color: Theme.amberDark
                font.weight: Font.Medium
                text: view.controller.keptLabel
            }
        }
        Card {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: Theme.spaceS

            DetailRow {
                objectName: "recommendationPlace"
                width: parent.width
                icon: "location"
                label: "Precios cerca de"
                text: view.controller.placeLabel
            }
            HelpText {
                width: parent.width
                text: view.controller.placeNote
            }
            AppButton {
                objectName: "changePlace"
                focus: true
                kind: "secondary"
                icon: "edit"
                text: "Cambiar el lugar"
                onClicked: view.controller.changePlaceAction()
            }
        }
        Repeater {
            model: view.controller.areas

            PriceAreaCard {
                required property var modelData
                required property int index

                objectName: "priceArea" + index
                Layout.fillWidth: true
                Layout.columnSpan: index === 0 ? page.columns : 1
                area: modelData
            }
        }
    }

    component Legend: Row {
        id: legend

        property int mark: 12 // its width
        property color colour: Theme.bottle
        property string text: ""

        spacing: 6

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: legend.mark
            height: 12
            radius: width / 2
            color: legend.colour
        }
        HelpText { text: legend.text }
    }
}
