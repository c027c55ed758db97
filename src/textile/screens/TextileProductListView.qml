import QtQuick
import QtQuick.Layouts
import Kavor.Kit
import Kavor.Screens
import Kavor.Ui

// The second step: the garment beside what it is made of, on a phone above it, and the cart below.
FocusScope {
    id: view

    required property TextileProductsViewController controller
    readonly property bool wide: width >= 640

    objectName: "textileProducts"

    Item {
        id: side

        x: Theme.pageMargin
        y: Theme.pageMargin
        visible: view.wide
        width: view.wide ? Math.min(300, view.width * 0.34) : 0
        height: garment.height + caption.implicitHeight + Theme.spaceM

        GarmentPicture {
            id: garment

            objectName: "garmentPicture"
            width: parent.width
            height: Math.min(width * 1.15, view.height - foot.height - caption.implicitHeight - 2 * Theme.pageMargin - Theme.spaceM)
            garment: view.controller.garment
            ground: Theme.paper
        }
        Text {
            id: caption

            anchors.top: garment.bottom
            anchors.topMargin: Theme.spaceM
            width: parent.width
            text: view.controller.selectionText
            textFormat: Text.PlainText
            color: Theme.ink
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontLarge
            font.weight: Font.Medium
        }
    }
    FormPage {
        id: page

        objectName: "textileProductsPage"
        focus: true
        anchors.top: parent.top
        anchors.bottom: foot.top
        anchors.left: view.wide ? side.right : parent.left
        anchors.right: parent.right
        twoColumns: false

        RowLayout { // the garment of a phone
            Layout.fillWidth: true
            visible: !view.wide
            spacing: Theme.spaceM

            GarmentPicture {
                objectName: "garmentPicture"
                Layout.preferredWidth: 132
                Layout.preferredHeight: 132
                garment: view.controller.garment
                ground: Theme.paper
            }
            Text {
                Layout.fillWidth: true
                text: view.controller.selectionText
                textFormat: Text.PlainText
                color: Theme.ink
                wrapMode: Text.Wrap
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontLarge
                font.weight: Font.Medium
            }
        }
        TextileChoiceStrip {
            Layout.fillWidth: true
            title: "Marca"
            name: "textileBrand"
            hint: "No hay prendas en esta sección"
            model: view.controller.brands
            onChosen: (key) => view.controller.selectBrand(key)
        }
        TextileChoiceStrip {
            Layout.fillWidth: true
            title: "Prenda"
            name: "textileFormat"
            hint: "Elige antes la marca"
            model: view.controller.formats
            onChosen: (key) => view.controller.selectFormatAndGender(key)
        }
        TextileChoiceStrip {
            Layout.fillWidth: true
            title: "Color"
            name: "textileColor"
            hint: "Elige antes la prenda"
            colours: true
            model: view.controller.colors
            onChosen: (key) => view.controller.selectColor(key)
        }
        TextileSizeRows {
            Layout.fillWidth: true
            controller: view.controller
        }
    }
    TextileCartStrip {
        id: foot

        anchors.bottom: parent.bottom
        width: parent.width
        height: implicitHeight
        controller: view.controller
    }
    UndoBar {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: foot.top
        anchors.bottomMargin: Theme.spaceS
        width: Math.min(parent.width - 2 * Theme.pageMargin, 480)
        text: view.controller.cart.undoText
        onUndone: view.controller.cart.undoDelete()
    }
}
