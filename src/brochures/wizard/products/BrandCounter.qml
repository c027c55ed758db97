import QtQuick
import Kavor.Ui
import Kavor.Screens

// How many brands are chosen against what the kind allows.
Column {
    id: counter

    required property BrochureProductListViewController controller

    spacing: Theme.spaceXS

    Item {
        width: parent.width
        height: Math.max(count.implicitHeight, limits.implicitHeight)

        Text {
            id: count

            objectName: "currentProductsSelectedLabel"
            text: counter.controller.currentProductsSelectedLabel + " "
                  + (counter.controller.currentNumberOfSelections === 1 ? "marca seleccionada" : "marcas seleccionadas")
            color: counter.controller.progressRed ? Theme.dangerDark : Theme.success
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
            font.weight: Font.Bold
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Row { // elementsToHideOnChalkboard
            id: limits

            anchors.right: parent.right
            anchors.verticalCenter: count.verticalCenter
            visible: counter.controller.limitsVisible
            spacing: Theme.spaceS

            HelpText {
                objectName: "minimumProductsSelectedLabel"
                visible: counter.controller.minimumProductsSelectedLabel !== ""
                text: "mín. " + counter.controller.minimumProductsSelectedLabel
            }
            HelpText {
                objectName: "maximumBrandsSelectedLabel"
                visible: counter.controller.maximumBrandsSelectedLabel !== ""
                text: "máx. " + counter.controller.maximumBrandsSelectedLabel
            }
        }
    }
    Item {
        width: parent.width
        height: 12
        clip: true
        visible: counter.controller.maximumNumberOfBrands > 0

        ProgressLine {
            objectName: "progressBar"
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            value: Math.min(1, counter.controller.progress)
            tone: counter.controller.progressRed ? "danger" : "success"
        }
        Rectangle { // where the minimum stands
            x: parent.width * counter.controller.minimumNumberOfProducts / counter.controller.maximumNumberOfBrands - 1
            visible: counter.controller.limitsVisible && counter.controller.minimumNumberOfProducts > 0
            width: 2
            height: parent.height
            color: Theme.ink
            opacity: 0.45
        }
    }
    HelpText {
        objectName: "setOfBrandsChoicesLabel"
        width: parent.width
        text: counter.controller.setOfBrandsChoicesLabel
        tone: counter.controller.progressRed ? "danger" : "neutral"
    }
    HelpText {
        objectName: "selectionRefusal"
        width: parent.width
        text: counter.controller.refusal
        tone: "danger"
    }
}
