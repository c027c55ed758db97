import QtQuick
import Kavor.Ui
import Kavor.Screens

// The sort buttons over the prices.
Flow {
    id: bar

    required property BrochurePriceSetterViewController controller

    spacing: Theme.spaceS

    Chip {
        objectName: "orderByBrandButton"
        text: "Marca"
        icon: bar.controller.orderByBrandPicture
        tappable: true
        accessibleName: "Ordenar por marca"
        onClicked: bar.controller.orderByBrandButton()
    }
    Chip {
        objectName: "orderByFormatButton"
        text: "Formato"
        icon: bar.controller.orderByFormatPicture
        tappable: true
        accessibleName: "Ordenar por formato"
        onClicked: bar.controller.orderByFormatButton()
    }
    Chip {
        objectName: "orderByPrimaryPVPButton"
        visible: bar.controller.primaryPriceVisible
        text: "PVP Rec"
        icon: bar.controller.orderByPrimaryPicture
        tappable: true
        accessibleName: "Ordenar por el precio principal"
        onClicked: bar.controller.orderByPrimaryPVPButton()
    }
    Chip {
        objectName: "orderBySecondaryPVPButton"
        visible: bar.controller.orderBySecondaryVisible
        text: bar.controller.orderBySecondaryTitle
        icon: bar.controller.orderBySecondaryPicture
        tappable: true
        accessibleName: "Ordenar por el segundo precio"
        onClicked: bar.controller.orderBySecondaryPVPButton()
    }
}
