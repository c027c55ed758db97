import QtQuick
import Kavor.Ui
import Kavor.Screens

// The other drinks of the menu. With room, three lists beside each other over the table of what is chosen; on a phone
// one at a time with the way that led there, and the table one tap away.
FocusScope {
    id: view

    required property BrochureDrinkListViewController controller
    readonly property real margin: width < 600 ? Theme.spaceL : Theme.spaceXL
    readonly property bool paged: width < 480 || height < 520
    readonly property real keyboard: InputMethod.visible ? InputMethod.keyboardRectangle.height : 0
    readonly property bool tableShown: !paged || controller.page === BrochureDrinkListViewController.Selected
    // A price being typed takes the room of the lists.
    readonly property bool listsShown: !tableShown || !paged && !(keyboard > 0 && table.activeFocus)

    function shows(page: int): bool {
        return listsShown && (!paged || controller.page === page);
    }

    objectName: "brochureDrinkList"

    Binding { target: view.controller; property: "paged"; value: view.paged }
    Connections {
        target: view.controller
        // The list that comes takes the focus where the former one has gone.
        function onPageChanged(): void {
            if (view.paged)
                [categories, products, formats][view.controller.page]?.takeFocus();
        }
    }

    Column {
        id: top

        x: view.margin
        width: parent.width - 2 * x
        topPadding: Theme.spaceS
        spacing: Theme.spaceS

        Rectangle {
            width: parent.width
            height: notPrinted.height + 2 * Theme.spaceS
            visible: notPrinted.text !== ""
            radius: Theme.radius
            color: Theme.toneGround("amber")

            HelpText {
                id: notPrinted

                objectName: "notPrintedText"
                x: Theme.spaceM
                y: Theme.spaceS
                width: parent.width - 2 * x
                text: view.controller.notPrintedText
                tone: "amber"
            }
        }
        DrinkBreadcrumb {
            width: parent.width
            visible: view.paged
            controller: view.controller
        }
    }

    Item {
        id: lists

        readonly property real columnWidth: view.paged ? width : (width - 2 * Theme.spaceM) / 3

        anchors.top: top.bottom
        x: view.margin
        width: parent.width - 2 * x
        height: !view.listsShown ? 0
              : view.paged ? (view.keyboard > 0 ? view.height - view.keyboard : bar.y) - y - Theme.spaceM
              : Math.max(260, (view.height - y) * 0.46)

        DrinkChoiceList {
            id: categories

            name: "drinkCategory"
            width: lists.columnWidth
            height: parent.height
            visible: view.shows(BrochureDrinkListViewController.Categories)
            wideButton: view.paged
            model: view.controller.categoriesDataSource
            title: "Categorías"
            searchText: "Buscar"
            addText: "Nueva categoría"
            onChosen: (row) => view.controller.chooseCategory(row)
            onAdded: view.controller.addNewCategory()
        }
        DrinkChoiceList {
            id: products

            name: "drinkProduct"
            x: view.paged ? 0 : lists.columnWidth + Theme.spaceM
            width: lists.columnWidth
            height: parent.height
            visible: view.shows(BrochureDrinkListViewController.Products)
            wideButton: view.paged
            model: view.controller.productsDataSource
            title: "Productos"
            searchText: "Buscar"
            addText: "Nuevo producto"
            onChosen: (row) => view.controller.chooseProduct(row)
            onAdded: view.controller.addNewProduct()
        }
        DrinkChoiceList {
            id: formats

            name: "drinkFormat"
            x: view.paged ? 0 : 2 * (lists.columnWidth + Theme.spaceM)
            width: lists.columnWidth
            height: parent.height
            visible: view.shows(BrochureDrinkListViewController.Formats)
            wideButton: view.paged
            model: view.controller.formatsDataSource
            title: "Formatos"
            searchText: "Buscar"
            addText: "Nuevo formato"
            onChosen: (row) => view.controller.chooseFormat(row)
            onAdded: view.controller.addNewFormat()
        }
    }

    SectionTitle {
        id: caption

        objectName: "selectedText"
        anchors.top: lists.bottom
        anchors.topMargin: view.paged ? 0 : Theme.spaceM
        x: view.margin
        width: parent.width - 2 * x
        visible: view.tableShown
        icon: "drinks"
        text: view.controller.selectedText
    }
    BeveragesTable {
        id: table

        anchors.top: caption.bottom
        anchors.topMargin: Theme.spaceXS
        anchors.bottom: view.paged && view.keyboard === 0 ? bar.top : parent.bottom
        anchors.bottomMargin: view.keyboard
        x: view.margin
        width: parent.width - 2 * x
        visible: view.tableShown
        controller: view.controller
    }

    AppButton {
        id: bar

        objectName: "selectedDrinksBar"
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.spaceM
        x: view.margin
        width: parent.width - 2 * x
        visible: view.paged && view.keyboard === 0
        text: view.controller.barText
        icon: view.tableShown ? "back" : "drinks"
        onClicked: view.controller.toggleSelected()
    }
}
