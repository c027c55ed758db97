import QtQuick
import Kavor.Screens
import Kavor.Ui

// The films by what they are about; the one on show takes their place.
FocusScope {
    id: view

    required property TutorialsViewController controller
    readonly property bool filmOpen: controller.filmOpen

    objectName: "tutorialsView"
    Keys.onEscapePressed: controller.closeSceneAction()
    onFilmOpenChanged: {
        if (filmOpen)
            film.forceActiveFocus();
        else
            page.forceActiveFocus();
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }
    AppBar {
        id: bar

        width: parent.width
        visible: !view.controller.fullWindow
        title: view.filmOpen ? view.controller.filmTitle : "Tutoriales"
        backVisible: true
        offline: view.controller.offline
        onBackTapped: view.controller.closeSceneAction()
    }
    Flickable {
        id: page

        readonly property real room: Math.min(Theme.maximumContentWidth, width - 2 * Theme.pageMargin)
        readonly property int columns: room < 420 ? 1 : room < 760 ? 2 : 3

        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        visible: !view.filmOpen
        contentHeight: groups.height + 2 * Theme.pageMargin
        clip: true
        boundsBehavior: Flickable.DragOverBounds

        ScrollMark { view: page }
        Column {
            id: groups

            x: (page.width - width) / 2
            y: Theme.pageMargin
            width: page.room
            spacing: Theme.spaceXL

            HelpText {
                objectName: "tutorialsOffline"
                width: parent.width
                font.pixelSize: Theme.fontBody
                text: view.controller.offline ? "Sin conexión: los vídeos necesitan internet." : ""
            }
            EmptyState {
                objectName: "noTutorials"
                width: parent.width
                visible: view.controller.groups.length === 0
                icon: "video"
                title: "No hay tutoriales"
                text: "Llegan con el catálogo."
            }
            Repeater {
                model: view.controller.groups

                Column {
                    id: group

                    required property var modelData

                    width: groups.width
                    spacing: Theme.spaceM

                    SectionTitle { width: parent.width; text: group.modelData.title }
                    Grid {
                        columns: page.columns
                        spacing: Theme.spaceL

                        Repeater {
                            model: group.modelData.films

                            FilmCard {
                                required property var modelData

                                objectName: "film" + modelData.index
                                width: (page.room - (page.columns - 1) * Theme.spaceL) / page.columns
                                film: modelData
                                onClicked: view.controller.openFilm(modelData.index)
                            }
                        }
                    }
                }
            }
        }
    }
    FocusFollower { view: page }
    FilmPanel {
        id: film

        anchors.top: view.controller.fullWindow ? parent.top : bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        visible: view.filmOpen
        controller: view.controller
    }
}
