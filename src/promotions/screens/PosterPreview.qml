import QtQuick
import Kavor.Ui
import Kavor.Screens

// The poster as it will be: its picture with the phrase, the price, the hours and the logo of the form.
Item {
    id: poster

    required property PromotionViewController controller
    readonly property bool written: controller.posterPhrase !== "" || controller.posterHours !== ""

    objectName: "posterPreview"
    implicitWidth: 240
    implicitHeight: width * 4 / 3

    Accessible.role: Accessible.Graphic
    Accessible.name: controller.posterText

    Rectangle {
        anchors.fill: parent
        anchors.margins: -1
        radius: Theme.radius + 1
        color: Theme.hairline
    }
    ResourceImage {
        anchors.fill: parent
        source: poster.controller.posterImage
        ground: Theme.paper
        mat: Theme.surface
        fillMode: Image.PreserveAspectFit
    }
    Rectangle { // the logo
        objectName: "posterLogo"
        anchors.left: parent.left
        anchors.top: parent.top
        anchors.margins: poster.width * 0.05
        width: poster.width * 0.26
        height: width
        radius: Theme.radius
        visible: poster.controller.posterLogo !== ""
        color: Theme.surface
        border.width: 1
        border.color: Theme.hairline

        Image {
            anchors.fill: parent
            anchors.margins: poster.width * 0.025
            source: poster.controller.posterLogo
            sourceSize.width: 256
            sourceSize.height: 256
            fillMode: Image.PreserveAspectFit
            asynchronous: true
        }
    }
    Rectangle { // the price, clear of the title at the top
        objectName: "posterPrice"
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.rightMargin: poster.width * 0.05
        anchors.topMargin: poster.height * 0.38
        width: poster.width * 0.34
        height: width
        radius: width / 2
        visible: poster.controller.posterPrice !== ""
        color: Theme.amber
        border.width: 3
        border.color: Theme.surface
        rotation: -8

        Text {
            anchors.fill: parent
            anchors.margins: parent.width * 0.12
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            text: poster.controller.posterPrice
            color: Theme.ink
            fontSizeMode: Text.Fit
            minimumPixelSize: 9
            wrapMode: Text.NoWrap
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: poster.width * 0.1
            font.weight: Font.Bold
        }
    }
    Rectangle { // phrase and hours, between the drawing and the maker's name at the foot
        objectName: "posterBand"
        anchors.bottom: parent.bottom
        anchors.bottomMargin: poster.height * 0.1
        width: parent.width
        height: words.implicitHeight + 2 * Theme.spaceM
        visible: poster.written
        color: Qt.rgba(Theme.bottle.r, Theme.bottle.g, Theme.bottle.b, 1)

        Column {
            id: words

            x: Theme.spaceM
            width: parent.width - 2 * x
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.spaceXS

            Text {
                width: parent.width
                visible: text !== ""
                horizontalAlignment: Text.AlignHCenter
                text: poster.controller.posterPhrase
                color: Theme.inverseInk
                wrapMode: Text.Wrap
                maximumLineCount: 4
                elide: Text.ElideRight
                font.family: Theme.fontFamily
                font.pixelSize: Math.max(13, poster.width * 0.068)
                font.weight: Font.Bold
            }
            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                visible: poster.controller.posterHours !== ""
                spacing: 6

                Icon { anchors.verticalCenter: parent.verticalCenter; name: "clock"; size: 16; colour: Theme.amber }
                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    width: Math.min(implicitWidth, words.width - 24)
                    text: poster.controller.posterHours
                    color: Theme.inverseInk
                    elide: Text.ElideRight
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontSmall
                }
            }
        }
    }
}
