import QtQuick
import QtQuick.Templates as T
import Kavor.Screens
import Kavor.Ui

// Explains the states of the drafts. A tap beside the rounded view or Escape puts it away.
Item {
    id: help

    required property AllOrdersManagementViewController controller
    readonly property alias roundedView: frame

    function tapOutside(): void {
        controller.hideNotifications();
    }

    anchors.fill: parent

    T.Popup {
        parent: T.Overlay.overlay
        z: 50
        width: parent ? parent.width : 0
        height: parent ? parent.height : 0
        modal: true
        dim: false
        focus: true
        visible: help.controller.helpShown && help.visible
        closePolicy: T.Popup.NoAutoClose
        onOpened: close.forceActiveFocus(Qt.PopupFocusReason)

        background: Rectangle { color: Theme.scrim }

        contentItem: Item {
            objectName: "syncHelpView"
            focus: true
            Keys.onEscapePressed: help.controller.hideNotifications()
            Keys.onBackPressed: help.controller.hideNotifications()

            MouseArea {
                anchors.fill: parent
                onClicked: help.tapOutside()
                onWheel: (wheel) => wheel.accepted = true
            }
            Rectangle {
                id: frame

                objectName: "roundedView"
                anchors.centerIn: parent
                width: Math.min(parent.width - 2 * Theme.spaceL, 520)
                height: Math.min(parent.height - 2 * Theme.spaceXL, states.implicitHeight + body.y + Theme.spaceXL)
                radius: 20
                color: Theme.surface
                border.width: 1
                border.color: Theme.hairline

                MouseArea { anchors.fill: parent } // a tap inside stays inside

                SectionTitle {
                    x: Theme.spaceXL
                    width: close.x - x
                    height: 64
                    text: "Estado de los borradores"
                }
                IconButton {
                    id: close

                    objectName: "hideNotifications"
                    anchors.right: parent.right
                    anchors.rightMargin: Theme.spaceS
                    y: Theme.spaceS
                    icon: "close"
                    text: "Cerrar"
                    onClicked: help.controller.hideNotifications()
                }
                Flickable {
                    id: body

                    y: 64
                    x: Theme.spaceXL
                    width: parent.width - 2 * x
                    height: parent.height - y - Theme.spaceXL
                    contentHeight: states.implicitHeight
                    clip: true
                    boundsBehavior: Flickable.StopAtBounds
                    activeFocusOnTab: contentHeight > height
                    Keys.onUpPressed: flick(0, 900)
                    Keys.onDownPressed: flick(0, -900)

                    ScrollMark { view: body }
                    Column {
                        id: states

                        width: parent.width
                        spacing: Theme.spaceL

                        Repeater {
                            model: help.controller.helpStates

                            Column {
                                required property var modelData

                                width: parent.width
                                spacing: 6

                                OrderStateChip {
                                    icon: modelData.icon
                                    text: modelData.text
                                    colour: modelData.colour
                                }
                                HelpText {
                                    width: parent.width
                                    font.pixelSize: Theme.fontBody
                                    text: modelData.explanation
                                }
                            }
                        }
                    }
                }
            }
        }
    }
}
