import QtQuick
import Kavor.Ui
import Kavor.Screens

// The brands of the kind with their formats, filters above them and the count of what is chosen.
FocusScope {
    id: view

    required property BrochureProductListViewController controller
    readonly property real margin: Theme.pageMargin

    objectName: "brochureProductList"

    Connections {
        target: view.controller.brandFilter
        function onChanged(): void {
            list.pinned = true;
            list.positionViewAtBeginning();
        }
    }

    Column {
        id: top

        x: view.margin
        width: parent.width - 2 * x
        topPadding: Theme.spaceM
        bottomPadding: Theme.spaceM
        spacing: Theme.spaceM

        BrandFilterBar {
            width: parent.width
            filter: view.controller.brandFilter
            priorityVisible: view.controller.priorityBrandsVisible
        }
        BrandCounter {
            width: parent.width
            controller: view.controller
        }
    }
    Rectangle {
        anchors.top: top.bottom
        width: parent.width
        height: 1
        color: Theme.hairline
    }

    ListView {
        id: list

        property bool pinned: true // stands at its beginning, also when the window turns

        // Arrows lead from brand to brand, to its first format.
        function focusBrand(row: int): void {
            if (row < 0 || row >= count)
                return;
            if (!itemAtIndex(row)) {
                positionViewAtIndex(row, ListView.Contain);
                forceLayout();
            }
            (itemAtIndex(row) as BrandSelectorCell)?.focusFirst();
        }

        objectName: "brandList"
        anchors.top: top.bottom
        anchors.topMargin: 1
        anchors.bottom: parent.bottom
        x: view.margin
        width: parent.width - 2 * x
        clip: true
        reuseItems: true
        cacheBuffer: 400
        model: view.controller.brandsList
        boundsBehavior: Flickable.DragOverBounds
        keyNavigationEnabled: false
        bottomMargin: Theme.spaceXL
        onMovementEnded: pinned = atYBeginning
        onContentYChanged: { // the keyboard scrolls too
            if (activeFocus && !moving)
                pinned = atYBeginning;
        }
        onOriginYChanged: {
            if (pinned && !moving)
                Qt.callLater(positionViewAtBeginning); // qmllint disable
        }

        FocusFollower { view: list }

        header: Item {
            width: list.width
            height: intro.implicitHeight + 2 * Theme.spaceM

            Column {
                id: intro

                y: Theme.spaceM
                width: parent.width
                spacing: Theme.spaceM

                HelpText {
                    objectName: "informationLabel"
                    width: parent.width
                    text: view.controller.informationLabel
                }
                AppButton { // newBrandStack
                    objectName: "addNewBrandBtn"
                    visible: view.controller.newBrandVisible
                    text: "Añadir una marca"
                    icon: "plus"
                    kind: "secondary"
                    onClicked: view.controller.addNewBrandBtn()
                }
            }
        }

        delegate: BrandSelectorCell {
            objectName: "brandCell" + brandId
            width: list.width
            height: implicitHeight
            Keys.onUpPressed: list.focusBrand(index - 1)
            Keys.onDownPressed: list.focusBrand(index + 1)
            onFormatTapped: (row, format) => view.controller.toggleFormat(row, format)
        }

        EmptyState {
            anchors.centerIn: parent
            width: parent.width
            visible: list.count === 0
            icon: "search"
            title: "Ninguna marca"
            text: "Ninguna marca cumple los filtros."
        }
    }

    Loader {
        active: view.controller.formAddNewBrandVisible
        sourceComponent: NewBrandSheet { controller: view.controller }
    }
}
