import QtQuick
import Kavor.Ui

// A garment with the text on its chest, as it may become. Without its picture a drawing in its colour stands in.
Item {
    id: picture

    required property var garment
    property bool marked: true // says that it is a simulation
    property color ground: Theme.surface
    readonly property bool chosen: garment.image !== "sinseleccion"
    readonly property real side: Math.min(width, height)

    implicitWidth: 200
    implicitHeight: 200

    Accessible.role: Accessible.Graphic
    Accessible.name: chosen ? "Simulación de la prenda con el texto «" + garment.lettering.text + "»" : "Sin selección"

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius
        color: Theme.sunken
    }
    ResourceImage {
        id: photo

        anchors.fill: parent
        source: picture.chosen ? picture.garment.image : ""
        placeholderIcon: ""
        ground: picture.ground
        fillMode: Image.PreserveAspectFit
        opacity: ready ? 1 : 0
    }
    Icon {
        anchors.centerIn: parent
        visible: !photo.ready
        name: "tshirt"
        size: picture.side * 0.92
        weight: 0.6
        filled: picture.chosen
        colour: picture.chosen ? picture.garment.colour : Theme.hairline
    }
    Icon { // its outline, which a light garment needs
        anchors.centerIn: parent
        visible: picture.chosen && !photo.ready
        name: "tshirt"
        size: picture.side * 0.92
        weight: 0.4
        colour: Theme.mutedInk
    }
    Lettering {
        anchors.horizontalCenter: parent.horizontalCenter
        y: (parent.height - picture.side) / 2 + picture.side * 0.57 // below the emblem of the brand
        visible: picture.chosen
        width: picture.side * 0.43
        height: picture.side * 0.2
        largest: Math.max(9, picture.side * 0.11)
        lines: 2
        lettering: picture.garment.lettering
    }
    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.spaceS
        visible: !picture.chosen && picture.side > 160
        text: "Sin selección"
        color: Theme.mutedInk
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontBody
    }
    Chip {
        anchors.left: parent.left
        anchors.bottom: parent.bottom
        anchors.margins: Theme.spaceS
        visible: picture.chosen && picture.marked
        text: "Simulación"
        icon: "eye"
    }
}
