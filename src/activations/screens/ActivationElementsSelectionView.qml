import QtQuick
import QtQuick.Layouts
import Kavor.Kit
import Kavor.Screens
import Kavor.Ui

// The activation with its pictures, and the elements that go with it.
FocusScope {
    id: view

    required property ActivationElementsSelectionViewController controller

    objectName: "activationElements"
    Keys.onEscapePressed: controller.closeSceneAction()
    Keys.onBackPressed: controller.closeSceneAction()

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
    }
    AppBar {
        id: bar

        width: parent.width
        title: view.controller.activationName
        subtitle: view.controller.brandName
        backVisible: true
        offline: view.controller.offline
        onBackTapped: view.controller.closeSceneAction()

        IconButton {
            objectName: "detailButton"
            visible: view.controller.detailVisible
            inverse: true
            icon: "book"
            text: "Ver los detalles"
            onClicked: view.controller.showDetail()
        }
    }
    FormPage {
        id: page

        objectName: "elementsPage"
        anchors.top: bar.bottom
        anchors.bottom: actions.top
        width: parent.width
        focus: true

        ColumnLayout {
            Layout.fillWidth: true
            spacing: Theme.spaceL

            PictureCarousel {
                objectName: "imagesCarousel"
                Layout.fillWidth: true
                Layout.preferredHeight: Theme.compact ? 200 : 260
                visible: view.controller.images.length > 0
                itemWidth: Math.min(width * 0.84, 340)
                placeholderIcon: "party"
                model: view.controller.images
            }
            Card {
                Layout.fillWidth: true

                SectionTitle { width: parent.width; icon: "party"; text: view.controller.activationName }
                Text {
                    width: parent.width
                    visible: text !== ""
                    text: view.controller.descriptionText
                    color: Theme.ink
                    wrapMode: Text.Wrap
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontBody
                }
                QuotaRing {
                    objectName: "quotaRing"
                    total: view.controller.quota
                    made: view.controller.numberMade
                    text: view.controller.remainingText
                }
                DetailRow { width: parent.width; icon: "clock"; label: "Antelación"; text: view.controller.noticeLabel }
                DetailRow {
                    width: parent.width
                    visible: text !== ""
                    icon: "calendar"
                    label: "Disponible"
                    text: view.controller.availabilityLabel
                }
                DetailRow {
                    width: parent.width
                    icon: "users"
                    label: "Agencia"
                    text: view.controller.agencyName
                        + (view.controller.agencyDescription !== "" ? "\n" + view.controller.agencyDescription : "")
                }
                DetailRow {
                    objectName: "tieText"
                    width: parent.width
                    visible: text !== ""
                    icon: "link"
                    label: "Pedido"
                    text: view.controller.tieText
                }
                AppButton {
                    objectName: "detailLink"
                    width: parent.width
                    visible: view.controller.detailVisible
                    kind: "secondary"
                    icon: "book"
                    text: "Ver los detalles"
                    onClicked: view.controller.showDetail()
                }
            }
        }
        Column {
            Layout.fillWidth: true
            spacing: Theme.spaceM

            SectionTitle {
                objectName: "elementsTitle"
                width: parent.width
                icon: "package"
                text: "Elementos"
                detail: view.controller.countText
            }
            HelpText {
                width: parent.width
                text: view.controller.items.count > 0
                    ? "Van todos mientras no quites ninguno. Los que llevan candado van siempre."
                    : "Esta activación no tiene elementos que elegir."
            }
            Grid {
                id: grid

                readonly property real cellWidth: (width - (columns - 1) * columnSpacing) / columns

                width: parent.width
                columns: width > 620 ? 3 : 2
                columnSpacing: Theme.spaceM
                rowSpacing: Theme.spaceM

                Repeater {
                    model: view.controller.items

                    ActivationItemCard {
                        width: grid.cellWidth
                        onClicked: view.controller.tapItem(index)
                    }
                }
            }
        }
    }
    Rectangle {
        id: actions

        anchors.bottom: parent.bottom
        width: parent.width
        height: next.implicitHeight + 2 * Theme.spaceM
        color: Theme.surface

        Rectangle { width: parent.width; height: 1; color: Theme.hairline }
        AppButton {
            id: next

            objectName: "nextButton"
            anchors.right: parent.right
            anchors.rightMargin: Theme.pageMargin
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.compact ? parent.width - 2 * Theme.pageMargin : Math.max(implicitWidth, 240)
            text: "Elegir el día"
            icon: "calendar"
            onClicked: view.controller.nextAction()
        }
    }
}
