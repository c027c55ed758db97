import QtQuick
import Kavor.Ui

// A picture of the catalogue, loaded aside and no larger than shown. A quiet ground and a drawing stand in while
// it loads and when there is none. Rounded corners are painted over in `ground`, the colour behind the picture.
Item {
    id: resource

    property url source
    property real radius: Theme.radius
    property color ground: Theme.surface
    property string placeholderIcon: "poster"
    property alias fillMode: picture.fillMode
    property string text: "" // accessible name
    property color mat: Theme.sunken // behind a picture that does not fill
    readonly property bool ready: picture.status === Image.Ready
    readonly property bool failed: picture.status === Image.Error

    readonly property InView inView: InView { item: resource }

    implicitWidth: 120
    implicitHeight: 120
    clip: inView.value

    Accessible.role: Accessible.Graphic
    Accessible.name: text

    Rectangle {
        anchors.fill: parent
        radius: resource.radius
        color: resource.mat
    }
    Icon {
        anchors.centerIn: parent
        visible: !resource.ready
        size: Math.max(16, Math.min(40, Math.min(resource.width, resource.height) * 0.4))
        name: resource.failed ? "image-off" : resource.placeholderIcon
        colour: Theme.mutedInk
        opacity: 0.5
    }
    Image {
        id: picture

        // Grows with the item but is not loaded anew for every pixel of a resize.
        readonly property int wantedSide: Math.ceil(Math.max(resource.width, resource.height) / 64) * 64

        anchors.fill: parent
        source: resource.source
        asynchronous: true
        cache: true
        fillMode: Image.PreserveAspectCrop
        sourceSize: wantedSide > 0 ? Qt.size(wantedSide * 2, wantedSide * 2) : undefined
        smooth: true
        mipmap: false
        opacity: status === Image.Ready ? 1 : 0

        Behavior on opacity { NumberAnimation { duration: Theme.fast } }
    }
    Rectangle { // paints the corners
        anchors.fill: parent
        anchors.margins: -resource.radius
        visible: resource.radius > 0 && resource.ready
        radius: 2 * resource.radius
        color: "transparent"
        border.width: resource.radius
        border.color: resource.ground
    }
}
