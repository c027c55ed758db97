import QtQuick
import Kavor.Screens
import Kavor.Ui

// One section of the dashboard: a drawing and its name.
Tappable {
    id: button

    property string label: ""
    property string image: ""
    // Drawing and tint by the name of the section's picture.
    readonly property var pictures: ({
        cartadecervezas: ["beer", Theme.amberTint, Theme.amberDark],
        flyer: ["flyer", Theme.amberTint, Theme.amberDark],
        cartadebebidas: ["drinks", Theme.bottleTint, Theme.bottle],
        cartadecomidas: ["menu", Theme.bottleTint, Theme.bottle],
        pizarra: ["chalkboard", Theme.sunken, Theme.ink],
        manteleria: ["tablecloth", Theme.sunken, Theme.ink],
        videocarta: ["video", Theme.sunken, Theme.ink],
        encarte: ["insert", Theme.amberTint, Theme.amberDark],
        order_vino_a4: ["wine", "#F6E4E6", "#8E2F46"],
        order_vino_diptico_alto: ["brochure", "#F6E4E6", "#8E2F46"],
        carteleria: ["poster", Theme.bottleTint, Theme.bottle],
        hojavendedora: ["sellingsheet", Theme.bottleTint, Theme.bottle],
        textil: ["tshirt", Theme.sunken, Theme.ink],
        activaciones: ["party", Theme.amberTint, Theme.amberDark]
    })
    readonly property var picture: pictures[image] ?? ["list", Theme.sunken, Theme.ink]
    readonly property real disc: Theme.compact ? 56 : 68

    accessibleName: label
    implicitHeight: Theme.compact ? 144 : 152
    padding: Theme.compact ? Theme.spaceS : Theme.spaceM

    background: Rectangle {
        radius: Theme.radius
        color: button.down ? Theme.sunken : Theme.surface
        border.width: 1
        border.color: button.hot ? Theme.amber : Theme.hairline

        FocusRing { shown: button.visualFocus }
    }

    contentItem: Item {
        Column {
            anchors.centerIn: parent
            width: parent.width
            spacing: Theme.spaceS

            Rectangle {
                anchors.horizontalCenter: parent.horizontalCenter
                width: button.disc
                height: button.disc
                radius: width / 2
                color: button.picture[1]

                Icon {
                    anchors.centerIn: parent
                    name: button.picture[0]
                    size: button.disc * 0.5
                    colour: button.picture[2]
                }
            }
            Text {
                width: parent.width
                height: Theme.compact ? 54 : 40
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                text: button.label
                color: Theme.ink
                wrapMode: Text.Wrap
                elide: Text.ElideRight
                maximumLineCount: Theme.compact ? 3 : 2
                font.family: Theme.fontFamily
                font.pixelSize: Theme.compact ? Theme.fontSmall : Theme.fontBody
                font.weight: Font.Medium
            }
        }
    }
}
