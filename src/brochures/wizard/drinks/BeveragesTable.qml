import QtQuick
import Kavor.Ui
import Kavor.Screens

// The drinks of the menu: categories with their products, formats and prices.
ListView {
    id: list

    required property BrochureDrinkListViewController controller
    readonly property Item focused: Window.activeFocusItem

    // Enter in a price: on to the next one below, from the foot of the first column to the head of the second. The
    // last price of all is taken and stays; the on-screen keyboard goes.
    function goOn(row: int, secondary: bool): void {
        const table = controller.selectedProductsTable;
        const below = table.nextPriceRow(row);
        const twoPrices = controller.secondPriceLabel !== "";
        if (below < 0)
            priceAt(row, secondary).commit(); // the list may let go of its foot as it turns to its head
        if (below < 0 && (secondary || !twoPrices))
            InputMethod.hide();
        else
            priceAt(below < 0 ? table.nextPriceRow(-1) : below, secondary || below < 0).forceActiveFocus(Qt.TabFocusReason);
    }
    // The price field of a row, whose cell is made where the list hasn't got it yet.
    function priceAt(row: int, secondary: bool): PriceField {
        if (!itemAtIndex(row)) {
            positionViewAtIndex(row, ListView.Contain);
            forceLayout();
        }
        return ((itemAtIndex(row) as Loader).item as BeveragesTableViewCell).priceField(secondary);
    }
    // The field being typed into stays in sight, also when the keyboard takes room.
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
    }

    objectName: "beveragesTable"
    clip: true
    model: controller.selectedProductsTable
    cacheBuffer: 2000 // a field that is being typed into stays when it is scrolled away
    boundsBehavior: Flickable.DragOverBounds
    bottomMargin: Theme.spaceL
    keyNavigationEnabled: false
    onFocusedChanged: keepInView()
    onHeightChanged: Qt.callLater(keepInView) // qmllint disable

    FocusFollower { view: list }
    ScrollMark { view: list }

    Connections {
        target: list.controller
        function onRevealed(row: int): void {
            list.forceLayout();
            list.positionViewAtIndex(row, ListView.Contain);
        }
    }

    delegate: Loader {
        id: place

        required property int index
        required property string cellIdentifier
        required property string beverageName
        required property string beverageDescription
        required property string formatName
        required property bool beforeDistinct
        required property bool withFormat
        required property string priceText
        required property string priceEditText
        required property string secondPriceText
        required property string secondPriceEditText

        width: list.width
        height: item ? item.implicitHeight : 0 // qmllint disable
        sourceComponent: cellIdentifier === "cabecera" ? header : cell

        Component {
            id: header

            BeveragesTableViewCellHeader {
                objectName: "cabecera" + place.index
                width: place.width
                controller: list.controller
                index: place.index
                beverageName: place.beverageName
                beverageDescription: place.beverageDescription
            }
        }
        Component {
            id: cell

            BeveragesTableViewCell {
                objectName: "beverageCell" + place.index
                width: place.width
                controller: list.controller
                index: place.index
                beverageName: place.beverageName
                beverageDescription: place.beverageDescription
                formatName: place.formatName
                beforeDistinct: place.beforeDistinct
                withFormat: place.withFormat
                priceText: place.priceText
                priceEditText: place.priceEditText
                secondPriceText: place.secondPriceText
                secondPriceEditText: place.secondPriceEditText
                last: place.index + 1 === list.count
                onPriceReturned: (secondary) => list.goOn(place.index, secondary)
            }
        }
    }

    EmptyState {
        anchors.centerIn: parent
        width: parent.width
        visible: list.count === 0
        icon: "drinks"
        title: "Todavía no hay bebidas"
        text: "Elige una categoría y un producto: aparecerán aquí, con sus formatos y precios."
    }
}
