import QtQuick
import Kavor.Ui
import Kavor.Screens

// The prices of every selected format, and the one that is highlighted.
FocusScope {
    id: view

    required property BrochurePriceSetterViewController controller
    readonly property real margin: Theme.pageMargin

    objectName: "brochurePriceSetter"

    PriceTable {
        id: list

        objectName: "priceTable"
        x: view.margin
        width: parent.width - 2 * x
        height: parent.height - keyboard
        model: view.controller.table
        shownColumns: view.controller.secondaryPriceVisible ? [0, 1] : [0]

        header: Item {
            width: list.width
            height: head.implicitHeight + 2 * Theme.spaceM

            Column {
                id: head

                y: Theme.spaceM
                width: parent.width
                spacing: Theme.spaceM

                HighlightCarouselCard {
                    width: parent.width
                    visible: view.controller.highlight.zoneVisible
                    zone: view.controller.highlight
                }
                Flow {
                    width: parent.width
                    spacing: Theme.spaceS

                    AppButton { // profitStackView
                        objectName: "profitAccountButton"
                        text: "Cuenta de beneficios"
                        icon: "chart"
                        kind: "secondary"
                        onClicked: view.controller.showProfitAccount()
                    }
                    AppButton { // groupPriceRecomended
                        objectName: "archivePriceButton"
                        visible: view.controller.archivePriceVisible
                        text: "Tarifa recomendada"
                        icon: "price"
                        kind: "secondary"
                        onClicked: view.controller.showArchivePrice()
                    }
                }
                SwitchRow {
                    objectName: "withoutPriceSwitch"
                    width: parent.width
                    visible: view.controller.withoutPriceVisible
                    label: view.controller.withoutPriceLabel
                    help: view.controller.withoutPriceInfoLabel
                    checked: view.controller.withoutPriceSwitch
                    onToggled: (checked) => view.controller.withoutPriceSwitchChanged(checked)
                }
                PriceSortBar {
                    width: parent.width
                    visible: list.count > 0
                    controller: view.controller
                }
                EmptyState { // withOutSelectedProducts
                    objectName: "withOutSelectedProducts"
                    width: parent.width
                    visible: list.count === 0
                    icon: "price"
                    title: "Sin productos seleccionados"
                    text: "Elige marcas y formatos en Productos para ponerles precio."
                }
            }
        }

        delegate: PriceSetterTableViewCell {
            objectName: "priceSetterCell" + index
            width: list.width
            height: implicitHeight
            controller: view.controller
            last: index + 1 === list.count
            onPriceReturned: (column) => list.goOn(index, column)
        }
    }

    Loader {
        active: view.controller.volumeEditor !== null
        sourceComponent: VolumeEditorSheet { controller: view.controller.volumeEditor }
    }
}
