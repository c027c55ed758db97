import QtQuick
import Kavor.Ui
import Kavor.Screens

// One of the three lists of the drink step: its name, a search, the entries and a button for one of the user's own.
// Arrows go through the entries; Enter chooses.
FocusScope {
    id: choices

    required property DrinkListModel model
    required property string name // objectName of the parts
    required property string title
    required property string searchText
    required property string addText
    property bool wideButton: false

    signal chosen(int row)
    signal added()

    // The focus comes with the page, not by a key: the current row is not marked for it.
    function takeFocus(): void {
        list.marked = false;
        list.forceActiveFocus(Qt.OtherFocusReason);
    }

    objectName: name

    Item {
        id: head

        width: parent.width
        height: Theme.touch

        SectionTitle {
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width - (plus.visible ? plus.width : 0)
            text: choices.title
        }
        IconButton {
            id: plus

            objectName: choices.name + "Plus"
            anchors.right: parent.right
            visible: !choices.wideButton
            icon: "plus"
            text: choices.addText
            onClicked: choices.added()
        }
    }
    SearchField {
        id: search

        objectName: choices.name + "Search"
        anchors.top: head.bottom
        width: parent.width
        placeholder: choices.searchText
        text: choices.model.filterText
        onEdited: (text) => choices.model.filterText = text
    }
    Rectangle {
        anchors.fill: list
        radius: Theme.radius
        color: Theme.surface
        border.width: 1
        border.color: Theme.hairline
    }
    ListView {
        id: list

        property bool marked: true

        objectName: choices.name + "List"
        anchors.top: search.bottom
        anchors.topMargin: Theme.spaceS
        anchors.bottom: wide.visible ? wide.top : parent.bottom
        anchors.bottomMargin: wide.visible ? Theme.spaceM : 0
        width: parent.width
        clip: true
        reuseItems: true
        model: choices.model
        boundsBehavior: Flickable.StopAtBounds
        topMargin: 1
        bottomMargin: 1
        activeFocusOnTab: count > 0
        keyNavigationEnabled: true
        highlightMoveDuration: 0
        currentIndex: choices.model.chosenRow
        onActiveFocusChanged: {
            if (activeFocus && currentIndex < 0)
                currentIndex = 0;
            if (!activeFocus)
                marked = true;
        }
        Keys.onPressed: marked = true

        Accessible.role: Accessible.List
        Accessible.name: choices.title

        ScrollMark { view: list }

        Connections {
            target: choices.model
            function onChosenRowChanged(): void {
                list.currentIndex = choices.model.chosenRow;
                Qt.callLater(list.positionViewAtIndex, list.currentIndex, ListView.Contain); // qmllint disable
            }
        }

        delegate: ListRow {
            id: entry

            required property int index
            required property string choiceText
            required property string choiceDetail
            required property bool isTaken
            required property bool isChosen

            objectName: choices.name + index
            width: list.width
            implicitHeight: Math.max(Theme.touch, implicitContentHeight + topPadding + bottomPadding)
            leftPadding: Theme.spaceM
            rightPadding: Theme.spaceM
            topPadding: Theme.spaceXS
            bottomPadding: Theme.spaceXS
            activeFocusOnTab: false
            focusPolicy: Qt.ClickFocus
            separator: index + 1 < list.count
            text: choiceText
            detail: choiceDetail
            selected: isChosen
            accessibleName: choiceText + (isTaken ? ", en la carta" : "")
            trailing: Icon {
                visible: entry.isTaken
                width: visible ? 20 : 0
                name: "circle-check"
                size: 20
                colour: Theme.success
            }
            onClicked: choices.chosen(index)

            FocusRing {
                shown: list.activeFocus && list.marked && entry.ListView.isCurrentItem
                anchors.margins: 2
                corner: 8
            }
        }
    }
    HelpText {
        anchors.centerIn: list
        width: list.width - 2 * Theme.spaceM
        horizontalAlignment: Text.AlignHCenter
        text: choices.model.hint
    }
    AppButton {
        id: wide

        objectName: choices.name + "Add"
        anchors.bottom: parent.bottom
        width: parent.width
        visible: choices.wideButton
        text: choices.addText
        icon: "plus"
        kind: "secondary"
        onClicked: choices.added()
    }
}
