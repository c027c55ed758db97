import QtQuick
import Kavor.Ui

// A row of cards to choose from: a picture or a colour each, and its name.
FocusScope {
    id: strip

    required property var model
    property string title: ""
    property string hint: "" // stands for the cards while there are none
    property string name: ""
    property bool colours: false

    signal chosen(string key)

    implicitHeight: column.implicitHeight
    implicitWidth: 320

    Column {
        id: column

        width: parent.width
        spacing: Theme.spaceS

        SectionTitle { width: parent.width; text: strip.title; detail: list.count === 0 ? strip.hint : "" }
        ListView {
            id: list

            objectName: strip.name + "List"
            width: parent.width
            height: count === 0 ? 0 : strip.colours ? 64 : 136
            model: strip.model
            orientation: ListView.Horizontal
            spacing: Theme.spaceS
            clip: inView.value
            boundsBehavior: Flickable.StopAtBounds

            readonly property InView inView: InView { item: list }

            FocusFollower { view: list }

            delegate: Card {
                id: card

                required property int index
                required property var model

                objectName: strip.name + index
                accessibleName: model.title
                height: list.height
                width: strip.colours ? Math.max(104, label.implicitWidth + 66) : 128
                tappable: true
                selected: model.chosen
                padding: Theme.spaceS
                spacing: Theme.spaceXS
                onClicked: strip.chosen(model.key)

                ResourceImage {
                    visible: !strip.colours
                    width: parent.width
                    height: 80
                    source: card.model.image
                    ground: card.ground
                    placeholderIcon: "tshirt"
                    fillMode: Image.PreserveAspectFit
                }
                Row {
                    width: parent.width
                    height: strip.colours ? parent.parent.availableHeight : implicitHeight
                    spacing: Theme.spaceS

                    Rectangle {
                        visible: strip.colours
                        anchors.verticalCenter: parent.verticalCenter
                        width: 32
                        height: 32
                        radius: 16
                        color: strip.colours ? card.model.colour : "transparent"
                        border.width: 1
                        border.color: Theme.mutedInk
                    }
                    Text {
                        id: label

                        width: parent.width - (strip.colours ? 40 : 0)
                        anchors.verticalCenter: strip.colours ? parent.verticalCenter : undefined
                        text: card.model.title
                        textFormat: Text.PlainText
                        color: Theme.ink
                        wrapMode: strip.colours ? Text.NoWrap : Text.Wrap
                        maximumLineCount: 2
                        elide: Text.ElideRight
                        horizontalAlignment: strip.colours ? Text.AlignLeft : Text.AlignHCenter
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontSmall
                        font.weight: card.selected ? Font.Bold : Font.Medium
                    }
                }
            }
        }
    }
}
