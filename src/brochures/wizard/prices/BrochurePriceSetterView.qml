import QtQuick
import Kavor.Ui
import Kavor.Screens

// The prices of every selected format, and the one that is highlighted.
FocusScope {
    id: view

    required property BrochurePriceSetterViewController controller
    readonly property real margin: Theme.pageMargin

    objectName: "brochurePriceSetter"

    ListView {
        id: list

        property bool pinned: true // stands at its beginning, also when the window turns
        readonly property real keyboard: InputMethod.visible ? InputMethod.keyboardRectangle.height : 0
        readonly property Item focused: Window.activeFocusItem

        // The field being typed into stays above the keyboard, also when Enter goes on to the next one.
        function keepInView(): void {
            let inside = false;
            for (let it = focused; it; it = it.parent)
                inside = inside || it === contentItem;
            if (!inside || moving)
                return;
            const top = focused.mapToItem(contentItem, 0, 0).y;
            if (top - Theme.spaceXXL < contentY)
                contentY = Math.max(originY, top - Theme.spaceXXL);
            else if (top + focused.height + Theme.spaceL > contentY + height)
                contentY = top + focused.height + Theme.spaceL - height;
            pinned = atYBeginning;
        }

        // Enter in a price: on to the price below it, from the foot of the first column to the head of the
        // second. The last price of all is taken and stays; the on-screen keyboard goes.
        function goOn(row: int, secondary: bool, twoPrices: bool): void {
            const foot = row + 1 === count;
            if (foot)
                priceAt(row, secondary).commit(); // the list may let go of its foot as it turns to its head
            if (foot && (secondary || !twoPrices))
                InputMethod.hide();
            else
                priceAt(foot ? 0 : row + 1, secondary || foot).forceActiveFocus(Qt.TabFocusReason);
        }
        // The price field of a row, whose cell is made where the list hasn't got it yet.
        function priceAt(row: int, secondary: bool): PriceField {
            if (!itemAtIndex(row)) {
                positionViewAtIndex(row, ListView.Contain);
                forceLayout();
            }
            return (itemAtIndex(row) as PriceSetterTableViewCell).priceField(secondary);
        }

        onFocusedChanged: keepInView()
        onHeightChanged: Qt.callLater(keepInView) // qmllint disable
        objectName: "priceTable"
        x: view.margin
        width: parent.width - 2 * x
        height: parent.height - keyboard
        model: view.controller.table
        cacheBuffer: 4000 // a field that is being typed into stays when it is scrolled away
        boundsBehavior: Flickable.DragOverBounds
        bottomMargin: Theme.spaceXL
        onMovementEnded: pinned = atYBeginning
        onOriginYChanged: {
            if (pinned && !moving)
                Qt.callLater(positionViewAtBeginning); // qmllint disable
        }

        FocusFollower { view: list }

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
            onPriceReturned: (secondary) => list.goOn(index, secondary, twoPrices)
        }
    }

    Loader {
        active: view.controller.volumeEditor !== null
        sourceComponent: VolumeEditorSheet { controller: view.controller.volumeEditor }
    }
}
