import QtQuick
import Kavor.Ui
import Kavor.Screens

// The six sort buttons: heads of the columns, or (on a phone) chips.
Item {
    id: bar

    required property BrochureProfitAccountViewController controller
    property bool wide: true
    property real columnWidth: 120

    implicitHeight: wide ? heads.height : chips.height

    Item {
        id: heads

        width: parent.width
        height: Theme.touch
        visible: bar.wide

        Row {
            x: Theme.spaceM
            spacing: Theme.spaceM

            ProfitHeading {
                objectName: "sortByBrandNameButton"
                leading: true
                caption: "Marca"
                picture: bar.controller.sortByBrandPicture
                onClicked: bar.controller.orderByBrandName()
            }
            ProfitHeading {
                objectName: "sortByProducFormatButton"
                leading: true
                caption: "Formato"
                picture: bar.controller.sortByFormatPicture
                onClicked: bar.controller.sortByFormatName()
            }
        }
        Row {
            anchors.right: parent.right
            anchors.rightMargin: Theme.spaceM
            spacing: Theme.spaceS

            ProfitHeading {
                objectName: "sortByPriceButton"
                width: bar.columnWidth
                caption: bar.controller.pvpCaption
                picture: bar.controller.sortByPvpPicture
                onClicked: bar.controller.orderByPVP()
            }
            ProfitHeading {
                objectName: "sortByNetPriceButton"
                width: bar.columnWidth
                visible: !bar.controller.shownToCustomer
                caption: bar.controller.netPriceCaption
                picture: bar.controller.sortByNetPricePicture
                onClicked: bar.controller.orderByNetprice()
            }
            ProfitHeading {
                objectName: "sortByMarginButton"
                width: bar.columnWidth
                caption: bar.controller.marginCaption
                picture: bar.controller.sortByMarginPicture
                onClicked: bar.controller.sortedByMargin()
            }
            ProfitHeading {
                objectName: "sortByMarginPercentButton"
                width: bar.columnWidth
                caption: bar.controller.marginPercentCaption
                picture: bar.controller.sortByMarginPercentPicture
                onClicked: bar.controller.sortedByMarginPercent()
            }
        }
    }
    Flow {
        id: chips

        width: parent.width
        visible: !bar.wide
        spacing: Theme.spaceXS

        SortChip {
            objectName: "sortByBrandNameButton"
            text: "Marca"
            by: "marca"
            icon: bar.controller.sortByBrandPicture
            onClicked: bar.controller.orderByBrandName()
        }
        SortChip {
            objectName: "sortByProducFormatButton"
            text: "Formato"
            by: "formato"
            icon: bar.controller.sortByFormatPicture
            onClicked: bar.controller.sortByFormatName()
        }
        SortChip {
            objectName: "sortByPriceButton"
            text: bar.controller.pvpCaption
            by: "PVP"
            icon: bar.controller.sortByPvpPicture
            onClicked: bar.controller.orderByPVP()
        }
        SortChip {
            objectName: "sortByNetPriceButton"
            visible: !bar.controller.shownToCustomer
            text: bar.controller.netPriceCaption
            by: "precio neto"
            icon: bar.controller.sortByNetPricePicture
            onClicked: bar.controller.orderByNetprice()
        }
        SortChip {
            objectName: "sortByMarginButton"
            text: bar.controller.marginCaption
            by: "margen"
            icon: bar.controller.sortByMarginPicture
            onClicked: bar.controller.sortedByMargin()
        }
        SortChip {
            objectName: "sortByMarginPercentButton"
            text: bar.controller.marginPercentCaption
            by: "margen en porcentaje"
            icon: bar.controller.sortByMarginPercentPicture
            onClicked: bar.controller.sortedByMarginPercent()
        }
    }
}
