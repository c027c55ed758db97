import QtQuick
import QtQuick.Templates as T

// Shows what the alert presenter asks, above everything else. Escape means the cancel button; Enter the default,
// which is never a destructive one.
Item {
    id: host

    property var presenter: null
    readonly property bool shown: presenter !== null && presenter !== undefined && presenter.visible
    readonly property var buttons: shown ? presenter.buttons : []
    readonly property var choices: shown ? presenter.choices : []
    readonly property int cancelIndex: {
        const at = buttons.findIndex((button) => button.role === "cancel");
        return at < 0 && buttons.length === 1 ? 0 : at;
    }
    readonly property int defaultIndex: {
        const normal = buttons.findIndex((button) => button.role === "normal");
        return normal >= 0 ? normal : cancelIndex;
    }
    readonly property bool stacked: dialog.width < 340 || buttons.length > 2
        || buttons.some((button) => button.text.length > 16)

    // What goes on with the text needs one.
    readonly property bool lacksText: shown && presenter.hasTextField && entry.text.trim() === ""

    function isUsable(index: int): bool {
        return index >= 0 && (!lacksText || buttons[index].role === "cancel");
    }
    function answer(index: int): void {
        if (shown && isUsable(index))
            presenter.answerButton(index, presenter.hasTextField ? entry.text : "");
    }
    // A new alert starts, once, with its own text and the focus where an answer is given.
    function reset(): void {
        if (!shown || !fresh || !dialog.opened)
            return;
        fresh = false;
        entry.text = presenter.fieldInitialText;
        scroll.contentY = 0;
        if (presenter.hasTextField) {
            entry.forceActiveFocus(Qt.PopupFocusReason);
            entry.field.selectAll();
        } else if (choices.length > 0) {
            choiceList.currentIndex = 0;
            choiceList.forceActiveFocus(Qt.PopupFocusReason);
        } else {
            buttonRepeater.itemAt(defaultIndex)?.forceActiveFocus(Qt.PopupFocusReason);
        }
    }

    property bool fresh: true

    objectName: "alertHost"
    anchors.fill: parent
    visible: shown

    Connections {
        target: host.presenter
        function onChanged(): void {
            host.fresh = true;
            Qt.callLater(host.reset); // qmllint disable
        }
    }

    T.Popup {
        id: dialog

        property Item returnTo: null // had the focus before

        // A longer text scrolls.
        readonly property real roomForText: (parent ? parent.height : 600) - 32 - 2 * padding - heading.height
            - buttonGrid.height - (entry.visible ? entry.height + Theme.spaceM : 0) - 2 * Theme.spaceM

        parent: T.Overlay.overlay
        z: 200
        anchors.centerIn: parent
        width: Math.min((parent ? parent.width : 400) - 32, 460)
        padding: Theme.spaceXL
        implicitHeight: contentHeight + topPadding + bottomPadding
        modal: true
        focus: true
        visible: host.shown
        closePolicy: T.Popup.NoAutoClose
        onAboutToShow: returnTo = host.Window.activeFocusItem
        onOpened: Qt.callLater(host.reset) // qmllint disable
        onClosed: {
            if (returnTo?.visible) // a veil that had it may be gone
                returnTo.forceActiveFocus(Qt.PopupFocusReason);
        }

        T.Overlay.modal: Rectangle { color: Theme.scrim }

        background: Rectangle {
            radius: 20
            color: Theme.surface
            border.width: 1
            border.color: Theme.hairline
        }

        contentItem: Column {
            spacing: Theme.spaceM
            Keys.onEscapePressed: host.answer(host.cancelIndex)

            Text {
                id: heading

                objectName: "alertTitle"
                width: parent.width
                visible: text !== ""
                text: host.shown ? host.presenter.title : ""
                color: Theme.bottle
                wrapMode: Text.Wrap
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontTitle
                font.weight: Font.Bold
                Accessible.role: Accessible.AlertMessage
                Accessible.name: text
            }
            Flickable {
                id: scroll

                width: parent.width
                height: Math.min(contentHeight, Math.max(96, dialog.roomForText * (choiceList.visible ? 0.4 : 1)))
                contentHeight: message.implicitHeight
                clip: true
                visible: message.text !== ""
                boundsBehavior: Flickable.StopAtBounds
                activeFocusOnTab: contentHeight > height
                Keys.onUpPressed: contentY = Math.max(0, contentY - 60)
                Keys.onDownPressed: contentY = Math.min(contentHeight - height, contentY + 60)

                Text {
                    id: message

                    objectName: "alertText"
                    width: parent.width - 10
                    text: host.shown ? host.presenter.text : ""
                    textFormat: Text.PlainText
                    color: Theme.ink
                    lineHeight: 1.2
                    wrapMode: Text.Wrap
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontBody
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
                ScrollMark { view: scroll }
            }
            TextRow {
                id: entry

                objectName: "alertTextField"
                width: parent.width
                visible: host.shown && host.presenter.hasTextField
                label: host.shown ? host.presenter.fieldCaption : ""
                maximumLength: host.shown ? host.presenter.fieldMaximumLength : 0
                onAccepted: host.answer(host.defaultIndex)
            }
            ListView {
                id: choiceList

                width: parent.width
                height: Math.min(contentHeight, Math.max(144, dialog.roomForText * 0.6))
                visible: host.choices.length > 0
                clip: true
                model: host.choices
                boundsBehavior: Flickable.StopAtBounds
                activeFocusOnTab: true
                Keys.onReturnPressed: host.presenter.answerChoice(currentIndex)
                Keys.onEnterPressed: host.presenter.answerChoice(currentIndex)
                Keys.onSpacePressed: host.presenter.answerChoice(currentIndex)

                delegate: ListRow {
                    id: choice

                    required property int index
                    required property string modelData

                    objectName: "alertChoice" + index
                    width: ListView.view.width
                    implicitHeight: Math.max(48, implicitContentHeight + 16)
                    leftPadding: Theme.spaceS
                    text: modelData
                    chevron: true
                    activeFocusOnTab: false
                    onClicked: host.presenter.answerChoice(index)

                    FocusRing {
                        shown: choiceList.activeFocus && choice.ListView.isCurrentItem
                        anchors.margins: 1
                        corner: 6
                    }
                }
            }
            Grid {
                id: buttonGrid

                readonly property real cell: host.stacked || host.buttons.length < 2
                    ? width : (width - columnSpacing) / host.buttons.length

                width: parent.width
                topPadding: Theme.spaceS
                columns: host.stacked ? 1 : Math.max(1, host.buttons.length)
                columnSpacing: Theme.spaceM
                rowSpacing: Theme.spaceS

                Repeater {
                    id: buttonRepeater

                    model: host.buttons

                    AppButton {
                        required property int index
                        required property var modelData

                        objectName: "alertButton" + index
                        width: buttonGrid.cell
                        text: modelData.text
                        enabled: host.isUsable(index)
                        kind: modelData.role === "destructive" ? "danger"
                            : modelData.role === "normal" && index === host.defaultIndex || host.buttons.length === 1
                              && host.choices.length === 0 ? "primary" : "secondary"
                        onClicked: host.answer(index)
                    }
                }
            }
        }
    }
}
