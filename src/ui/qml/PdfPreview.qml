import QtQuick
import Kavor.Ui

// Shows a PDF: pages one below the other, zoom by buttons, pinch and Ctrl + wheel, "2 / 5" as one scrolls.
// `source` is a local file; or give `pages` a PdfPages of your own (bytes in memory). `retried` follows a tap
// on "Reintentar", after the document was read again.
FocusScope {
    id: preview

    property url source
    property PdfPages pages: ownPages
    property real zoom: 1
    readonly property real smallestZoom: 1
    readonly property real largestZoom: 5
    readonly property bool ready: pages !== null && pages.state === PdfPages.Ready
    readonly property int currentPage: Math.max(0, list.indexAt(list.width / 2, list.contentY + list.height / 2))
    readonly property real pageWidth: Math.min(list.width - 2 * Theme.spaceL, 820) * zoom

    signal retried()

    // Keeps the point in the middle of the view where it is.
    function zoomTo(wanted: real): void {
        const bounded = Math.max(smallestZoom, Math.min(largestZoom, wanted));
        if (bounded === zoom)
            return;
        const ratio = bounded / zoom;
        const middleX = list.contentX + list.width / 2, middleY = list.contentY + list.height / 2;
        zoom = bounded;
        list.forceLayout();
        list.contentX = Math.max(0, Math.min(middleX * ratio - list.width / 2, list.contentWidth - list.width));
        list.contentY = Math.max(list.originY, middleY * ratio - list.height / 2);
        list.returnToBounds();
    }

    implicitWidth: 320
    implicitHeight: 400
    activeFocusOnTab: true

    Accessible.role: Accessible.Document
    Accessible.name: "Vista previa"

    Keys.onPressed: (event) => {
        if (event.key === Qt.Key_Plus)
            zoomTo(zoom * 1.25);
        else if (event.key === Qt.Key_Minus)
            zoomTo(zoom / 1.25);
        else if (event.key === Qt.Key_PageDown || event.key === Qt.Key_Down)
            list.flick(0, event.key === Qt.Key_Down ? -600 : -1800);
        else if (event.key === Qt.Key_PageUp || event.key === Qt.Key_Up)
            list.flick(0, event.key === Qt.Key_Up ? 600 : 1800);
        else
            return;
        event.accepted = true;
    }

    PdfPages {
        id: ownPages

        source: preview.source
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.sunken
    }

    ListView {
        id: list

        objectName: preview.objectName + "Pages"
        anchors.fill: parent
        visible: preview.ready
        clip: true
        model: preview.pages
        spacing: Theme.spaceL
        topMargin: Theme.spaceL
        bottomMargin: Theme.touch + Theme.spaceXL
        contentWidth: Math.max(width, preview.pageWidth + 2 * Theme.spaceL)
        flickableDirection: preview.zoom > 1 ? Flickable.HorizontalAndVerticalFlick : Flickable.VerticalFlick
        boundsBehavior: Flickable.StopAtBounds
        cacheBuffer: 600
        interactive: !pinch.active

        delegate: PdfPage {
            x: (list.contentWidth - width) / 2
            width: preview.pageWidth
            zoom: preview.zoom
        }
    }

    Item { // Above the list, whose own content moves under the fingers.
        anchors.fill: list
        visible: preview.ready

        PinchHandler {
            id: pinch

            property real startZoom: 1

            target: null
            onActiveChanged: {
                if (active)
                    startZoom = preview.zoom;
            }
            onActiveScaleChanged: {
                if (active)
                    preview.zoomTo(startZoom * activeScale);
            }
        }
        WheelHandler {
            acceptedModifiers: Qt.ControlModifier
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
            onWheel: (event) => preview.zoomTo(preview.zoom * (event.angleDelta.y > 0 ? 1.15 : 1 / 1.15))
        }
    }

    Rectangle { // tools
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.spaceM
        anchors.horizontalCenter: parent.horizontalCenter
        visible: preview.ready
        width: tools.implicitWidth + 8
        height: 52
        radius: Theme.radius
        color: Theme.surface
        border.width: 1
        border.color: Theme.hairline

        Row {
            id: tools

            anchors.centerIn: parent

            IconButton {
                objectName: preview.objectName + "ZoomOut"
                icon: "zoom-out"
                text: "Alejar"
                enabled: preview.zoom > preview.smallestZoom
                onClicked: preview.zoomTo(preview.zoom / 1.4)
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                width: 72
                horizontalAlignment: Text.AlignHCenter
                text: (preview.currentPage + 1) + " / " + (preview.pages ? preview.pages.count : 0)
                color: Theme.ink
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
                font.weight: Font.Medium
            }
            IconButton {
                objectName: preview.objectName + "ZoomIn"
                icon: "zoom-in"
                text: "Acercar"
                enabled: preview.zoom < preview.largestZoom
                onClicked: preview.zoomTo(preview.zoom * 1.4)
            }
        }
    }

    Column {
        anchors.centerIn: parent
        visible: preview.pages !== null && preview.pages.state === PdfPages.Loading
        spacing: Theme.spaceM

        Spinner { anchors.horizontalCenter: parent.horizontalCenter; width: 44; height: 44 }
        HelpText { text: "Cargando el documento…"; font.pixelSize: Theme.fontBody }
    }
    EmptyState {
        objectName: preview.objectName + "Error"
        anchors.fill: parent
        visible: preview.pages !== null && preview.pages.state === PdfPages.Failed
        icon: "warning"
        tone: "danger"
        title: "No se puede mostrar el documento"
        text: "El archivo no se ha podido leer."
        actionText: "Reintentar"
        actionIcon: "refresh"
        onTriggered: {
            preview.pages.reload();
            preview.retried();
        }
    }
}
