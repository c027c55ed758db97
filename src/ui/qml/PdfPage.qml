import QtQuick

// One page of PdfPreview. A drawing at the size of the view stays while a sharper one is made for the zoom.
Rectangle {
    id: page

    required property int index
    required property string image
    required property real ratio
    property real zoom: 1
    readonly property int baseWidth: Math.round(width / zoom)

    height: width * ratio
    color: "white"
    border.width: 1
    border.color: Theme.hairline

    Accessible.role: Accessible.Graphic
    Accessible.name: "Página " + (index + 1)

    Spinner {
        anchors.centerIn: parent
        visible: drawing.status === Image.Loading
    }
    Image {
        id: drawing

        anchors.fill: parent
        anchors.margins: 1
        asynchronous: true
        source: page.image
        sourceSize.width: Math.ceil(page.baseWidth / 100) * 100 * Screen.devicePixelRatio
    }
    Image {
        anchors.fill: parent
        anchors.margins: 1
        asynchronous: true
        visible: page.zoom > 1.05
        cache: false
        source: visible ? page.image : ""
        // Steps of a quarter, so that a pinch does not ask for a hundred sizes.
        sourceSize.width: Math.round(page.baseWidth * Math.ceil(page.zoom * 4) / 4 * Screen.devicePixelRatio)
    }
}
