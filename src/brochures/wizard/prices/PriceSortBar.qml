import QtQuick
import Kavor.Ui
import Kavor.Screens

// The sort buttons over the prices.
Flow {
    id: bar

    required property BrochurePriceSetterViewController controller

    spacing: Theme.spaceS

    SortChip {
        objectName: "orderByBrandButton"
        text: "Marca"
        icon: bar.controller.orderByBrandPicture
        by: "marca"
        onClicked: bar.controller.orderByBrandButton()
    }
    SortChip {
        objectName: "orderByFormatButton"
        text: "Formato"
        icon: bar.controller.orderByFormatPicture
        by: "formato"
        onClicked: bar.controller.orderByFormatButton()
    }
    SortChip {
        objectName: "orderByPrimaryPVPButton"
        visible: bar.controller.primaryPriceVisible
        text: "PVP Rec"
        icon: bar.controller.orderByPrimaryPicture
        by: "el precio principal"
        onClicked: bar.controller.orderByPrimaryPVPButton()
    }
    SortChip {
        objectName: "orderBySecondaryPVPButton"
        visible: bar.controller.orderBySecondaryVisible
        text: bar.controller.orderBySecondaryTitle
        icon: bar.controller.orderBySecondaryPicture
        by: "el segundo precio"
        onClicked: bar.controller.orderBySecondaryPVPButton()
    }
}
