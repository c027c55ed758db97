import Qt.labs.folderlistmodel
import QtQuick
import QtQuick.Templates as T
import Kavor.Screens
import Kavor.Ui

// The picture files of the device, as a dialogue over the window; on a phone it fills it.
Item {
    id: view

    required property PhotoLibraryViewController controller

    objectName: "photoLibrary"
    anchors.fill: parent

    Component.onDestruction: dialogue.returnTo?.forceActiveFocus(Qt.PopupFocusReason)

    T.Popup {
        id: dialogue

        property Item returnTo: null // had the focus before

        parent: T.Overlay.overlay
        z: 50
        anchors.centerIn: parent
        width: Theme.compact ? Theme.windowWidth : Math.min(Theme.windowWidth - 64, 760)
        height: Theme.compact ? Theme.windowHeight : Math.min(Theme.windowHeight - 64, 820)
        padding: 0
        modal: true
        focus: true
        visible: true
        closePolicy: T.Popup.NoAutoClose
        onAboutToShow: returnTo = view.Window.activeFocusItem
        onOpened: grid.forceActiveFocus(Qt.PopupFocusReason)

        T.Overlay.modal: Rectangle { color: Theme.scrim }

        background: Rectangle {
            radius: Theme.compact ? 0 : 20
            color: Theme.paper
            border.width: Theme.compact ? 0 : 1
            border.color: Theme.hairline
        }

        FolderListModel {
            id: files

            folder: view.controller.folder
            nameFilters: view.controller.nameFilters
            caseSensitive: false
            sortCaseSensitive: false
            showDirsFirst: true
            showOnlyReadable: true
        }

        contentItem: FocusScope {
            Keys.onEscapePressed: view.controller.cancel()

            Text {
                id: heading

                anchors.verticalCenter: close.verticalCenter
                x: Theme.spaceL
                width: close.x - x
                text: "Elegir imagen"
                color: Theme.bottle
                elide: Text.ElideRight
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontTitle
                font.weight: Font.Bold
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            IconButton {
                id: close

                objectName: "closePhotoLibrary"
                anchors.right: parent.right
                anchors.top: parent.top
                anchors.margins: Theme.spaceS
                icon: "close"
                text: "Cerrar sin elegir"
                onClicked: view.controller.cancel()
            }
            Flow {
                id: places

                anchors.top: close.bottom
                x: Theme.spaceL
                width: parent.width - 2 * x
                spacing: Theme.spaceS

                Repeater {
                    model: view.controller.places

                    Chip {
                        required property int index
                        required property var modelData

                        objectName: "photoPlace" + index
                        tappable: true
                        selected: modelData.current
                        text: modelData.text
                        icon: modelData.icon
                        onClicked: {
                            grid.forceActiveFocus(Qt.TabFocusReason); // the chips are made anew for another folder
                            view.controller.open(modelData.folder);
                        }
                    }
                }
            }
            IconButton {
                id: up

                objectName: "photoFolderUp"
                anchors.top: places.bottom
                x: Theme.spaceS
                icon: "chevron-up"
                text: "Carpeta superior"
                enabled: view.controller.upPossible
                onClicked: view.controller.goUp()
            }
            Text {
                objectName: "photoFolder"
                anchors.left: up.right
                anchors.right: parent.right
                anchors.margins: Theme.spaceS
                anchors.verticalCenter: up.verticalCenter
                text: view.controller.folderText
                color: Theme.mutedInk
                elide: Text.ElideMiddle
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            GridView {
                id: grid

                readonly property int columns: Math.max(2, Math.floor(width / 132))

                objectName: "photoGrid"
                anchors.top: up.bottom
                anchors.bottom: parent.bottom
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.margins: Theme.spaceS
                focus: true
                activeFocusOnTab: true
                clip: true
                enabled: !view.controller.reading
                model: files
                cellWidth: Math.floor(width / columns)
                cellHeight: 148
                boundsBehavior: Flickable.StopAtBounds
                keyNavigationEnabled: true
                Keys.onReturnPressed: currentItem?.trigger() // qmllint disable
                Keys.onEnterPressed: currentItem?.trigger() // qmllint disable
                Keys.onSpacePressed: currentItem?.trigger() // qmllint disable
                Keys.onPressed: (event) => {
                    event.accepted = event.key === Qt.Key_Backspace;
                    if (event.accepted)
                        view.controller.goUp();
                }

                delegate: PhotoLibraryCell {
                    width: grid.cellWidth
                    height: grid.cellHeight
                    marked: grid.activeFocus && GridView.isCurrentItem
                    largestFile: view.controller.largestFile
                    onClicked: view.controller.open(fileUrl)
                }
            }
            ScrollMark { view: grid }
            EmptyState {
                objectName: "photoFolderEmpty"
                anchors.centerIn: grid
                width: grid.width
                visible: files.status === FolderListModel.Ready && files.count === 0
                icon: "image-off"
                title: "Sin imágenes"
                text: "En esta carpeta no hay imágenes que se puedan usar."
            }
            Spinner {
                anchors.centerIn: grid
                width: 48
                height: 48
                visible: running
                running: view.controller.reading
            }
        }
    }
}
