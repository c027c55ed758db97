import QtQuick

// A row of cards that snaps one to the middle. The delegate is a ListView delegate: it takes its size from
// itemWidth and height, and sees ListView.isCurrentItem. Swipes, arrow keys, side buttons and taps on a
// neighbour move it. `currentIndex` may be set and read; `selected(index)` tells a move by the user,
// `tapped(index)` a tap on the card in the middle.
FocusScope {
    id: carousel

    property alias model: list.model
    property alias delegate: list.delegate
    property alias currentIndex: list.currentIndex
    readonly property alias count: list.count
    readonly property alias view: list
    property real itemWidth: Math.min(280, width * 0.7)
    property real spacing: Theme.spaceL
    property bool showButtons: !Theme.compact && width >= itemWidth + 120
    property bool showDots: true
    readonly property bool buttonsVisible: showButtons && count > 1
    property string text: "" // accessible name

    property bool pointed: false // the focus came by a tap

    readonly property InView inView: InView { item: carousel }

    signal selected(int index)
    signal tapped(int index)

    function go(index: int): void {
        const bounded = Math.max(0, Math.min(count - 1, index));
        if (bounded === currentIndex || count === 0)
            return;
        choose(bounded);
        selected(bounded);
    }
    // Steps instead of assigning, which would end a binding of currentIndex.
    function choose(index: int): void {
        while (list.currentIndex < index)
            list.incrementCurrentIndex();
        while (list.currentIndex > index)
            list.decrementCurrentIndex();
    }
    // A press on a button, which is no stop of the Tab key: the arrow keys do the same, from the cards.
    function step(by: int): void {
        pointed = true;
        list.forceActiveFocus(Qt.MouseFocusReason);
        go(currentIndex + by);
    }
    function positionOf(index: int): real {
        return list.originX + index * (itemWidth + spacing) - list.leftMargin;
    }
    function place(): void {
        glide.stop();
        if (count > 0 && currentIndex >= 0)
            list.contentX = positionOf(currentIndex);
    }

    implicitWidth: 320
    implicitHeight: 320
    onItemWidthChanged: Qt.callLater(place) // qmllint disable
    activeFocusOnTab: true

    Accessible.role: Accessible.List
    Accessible.name: text

    Keys.onLeftPressed: go(currentIndex - 1)
    Keys.onRightPressed: go(currentIndex + 1)
    Keys.onPressed: (event) => {
        if (event.key === Qt.Key_Home)
            go(0);
        else if (event.key === Qt.Key_End)
            go(count - 1);
        else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_Space)
            tapped(currentIndex);
        else
            return;
        event.accepted = true;
    }

    ListView {
        id: list

        anchors.fill: parent
        anchors.bottomMargin: dots.visible ? dots.height : 0
        // The buttons stand beside the cards, never over them.
        anchors.leftMargin: carousel.buttonsVisible ? Theme.touch + Theme.spaceS : 0
        anchors.rightMargin: anchors.leftMargin
        orientation: ListView.Horizontal
        spacing: carousel.spacing
        clip: carousel.inView.value
        focus: true
        leftMargin: Math.max(0, (width - carousel.itemWidth) / 2)
        rightMargin: leftMargin
        snapMode: ListView.SnapToItem
        // Snaps to the middle; the index is ours to change, because a strict range changes it at every resize.
        highlightRangeMode: ListView.NoHighlightRange
        highlightFollowsCurrentItem: false
        preferredHighlightBegin: leftMargin
        preferredHighlightEnd: leftMargin + carousel.itemWidth
        flickDeceleration: 3000
        maximumFlickVelocity: 3500
        cacheBuffer: Math.max(0, carousel.itemWidth * 2)
        boundsBehavior: Flickable.DragOverBounds
        keyNavigationEnabled: false
        onWidthChanged: Qt.callLater(carousel.place) // qmllint disable
        onCountChanged: Qt.callLater(carousel.place) // qmllint disable
        onCurrentIndexChanged: {
            if (moving)
                return;
            glide.to = carousel.positionOf(currentIndex);
            glide.restart();
        }
        onActiveFocusChanged: {
            if (!activeFocus)
                carousel.pointed = false;
        }
        onMovementStarted: glide.stop()
        onMovementEnded: {
            const nearest = Math.round((contentX + leftMargin - originX) / (carousel.itemWidth + carousel.spacing));
            carousel.go(nearest);
        }

        NumberAnimation {
            id: glide

            target: list
            property: "contentX"
            duration: Theme.normal
            easing.type: Easing.OutCubic
        }
        TapHandler {
            onTapped: (point) => {
                carousel.pointed = true;
                list.forceActiveFocus(Qt.MouseFocusReason);
                const index = list.indexAt(point.position.x, list.height / 2); // in the content's coordinates
                if (index < 0)
                    return;
                if (index === list.currentIndex)
                    carousel.tapped(index);
                else
                    carousel.go(index);
            }
        }
    }

    FocusRing {
        objectName: carousel.objectName + "Ring"
        anchors.fill: list
        shown: list.activeFocus && !carousel.pointed
    }
    IconButton {
        objectName: carousel.objectName + "Previous"
        anchors.left: parent.left
        anchors.verticalCenter: list.verticalCenter
        visible: carousel.buttonsVisible
        enabled: carousel.currentIndex > 0
        framed: true
        icon: "chevron-left"
        text: "Anterior"
        focusPolicy: Qt.ClickFocus
        activeFocusOnTab: false
        onClicked: carousel.step(-1)
    }
    IconButton {
        objectName: carousel.objectName + "Next"
        anchors.right: parent.right
        anchors.verticalCenter: list.verticalCenter
        visible: carousel.buttonsVisible
        enabled: carousel.currentIndex < carousel.count - 1
        framed: true
        icon: "chevron-right"
        text: "Siguiente"
        focusPolicy: Qt.ClickFocus
        activeFocusOnTab: false
        onClicked: carousel.step(1)
    }

    Item {
        id: dots

        anchors.bottom: parent.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        width: parent.width
        height: 28
        visible: carousel.showDots && carousel.count > 1

        Row {
            anchors.centerIn: parent
            visible: carousel.count <= 12
            spacing: 6

            Repeater {
                model: carousel.count <= 12 ? carousel.count : 0

                Rectangle {
                    required property int index

                    width: index === carousel.currentIndex ? 22 : 8
                    height: 8
                    radius: 4
                    color: index === carousel.currentIndex ? Theme.amber : Theme.hairline

                    Behavior on width { NumberAnimation { duration: Theme.fast } }
                }
            }
        }
        Text {
            anchors.centerIn: parent
            visible: carousel.count > 12
            text: (carousel.currentIndex + 1) + " de " + carousel.count
            color: Theme.mutedInk
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
        }
    }

}
