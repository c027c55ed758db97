import QtQuick
import Kavor.Screens
import Kavor.Ui

// The gallery of promotions: classification and brand narrow it, a picture opens the form.
FocusScope {
    id: view

    required property PromotionStyleSelectorViewController controller
    readonly property bool nothing: controller.emptyTitle !== ""

    objectName: "promotionGallery"
    Keys.onEscapePressed: controller.closeSceneAction()
    Keys.onBackPressed: controller.closeSceneAction()

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }
    AppBar {
        id: bar

        width: parent.width
        title: view.controller.titleLabel
        subtitle: view.controller.countText
        backVisible: true
        backText: view.controller.kavorLabel
        offline: view.controller.offline
        onBackTapped: view.controller.closeSceneAction()
    }
    Column {
        id: filters

        anchors.top: bar.bottom
        anchors.topMargin: Theme.spaceS
        width: parent.width
        spacing: Theme.spaceXS
        visible: view.controller.brandList.length > 1 || view.controller.classifications.length > 1

        ListView {
            id: classifications

            objectName: "classificationCarousel"
            width: parent.width
            height: Theme.touch
            orientation: ListView.Horizontal
            leftMargin: Theme.pageMargin
            rightMargin: Theme.pageMargin
            spacing: Theme.spaceS
            boundsBehavior: Flickable.StopAtBounds
            model: view.controller.classifications

            FocusFollower { view: classifications }

            delegate: Chip {
                required property int index
                required property string modelData

                objectName: "classification" + index
                tappable: true
                selected: index === view.controller.classification
                text: modelData
                onClicked: view.controller.carouselCurrentItemIndexDidChange(
                    PromotionStyleSelectorViewController.Classifications, index)
            }
        }
        ThumbnailStrip {
            objectName: "brandCarousel"
            x: Theme.pageMargin - 4
            width: parent.width - 2 * x
            thumbnailSize: Theme.compact ? 60 : 72
            placeholderIcon: "bottle"
            model: view.controller.brandList
            currentIndex: view.controller.brand
            onTapped: (index) => view.controller.carouselCurrentItemIndexDidChange(
                PromotionStyleSelectorViewController.Brands, index)
        }
    }
    GridView {
        id: grid

        property bool pointed: true  // by touch, or nobody has touched anything yet
        property bool visited: false // the focus was here and left
        readonly property int columns: Math.max(2, Math.floor((width - leftMargin - rightMargin) / 190))

        objectName: "promotionGrid"
        anchors.top: filters.visible ? filters.bottom : bar.bottom
        anchors.topMargin: Theme.spaceS
        anchors.bottom: parent.bottom
        width: parent.width
        focus: true
        activeFocusOnTab: true
        visible: !view.nothing
        clip: true
        leftMargin: Theme.pageMargin - 4
        rightMargin: Theme.pageMargin - 4
        bottomMargin: Theme.pageMargin
        cellWidth: Math.floor((width - leftMargin - rightMargin) / columns)
        cellHeight: cellWidth * 1.32 + 72
        cacheBuffer: cellHeight
        boundsBehavior: Flickable.DragOverBounds
        model: view.controller.visiblePromotions

        Accessible.role: Accessible.List
        Accessible.name: view.controller.titleLabel
        Keys.onPressed: (event) => {
            pointed = false;
            event.accepted = false;
        }
        onActiveFocusChanged: {
            if (activeFocus && visited)
                pointed = false;
            visited = visited || !activeFocus;
        }

        ScrollMark { view: grid }
        Connections {
            target: view.controller
            function onFilterChanged(): void {
                grid.positionViewAtBeginning();
                grid.currentIndex = 0;
            }
        }

        delegate: CellImageCarousel {
            width: grid.cellWidth
            height: grid.cellHeight
            ringed: !grid.pointed
            onClicked: {
                grid.pointed = true;
                grid.currentIndex = index;
                view.controller.choosePromotion(index);
            }
        }
    }
    EmptyState {
        objectName: "galleryEmpty"
        anchors.fill: grid
        visible: view.nothing
        icon: "poster"
        title: view.controller.emptyTitle
        text: view.controller.emptyText
        actionText: view.controller.emptyAction
        onTriggered: view.controller.removeFilters()
    }
}
