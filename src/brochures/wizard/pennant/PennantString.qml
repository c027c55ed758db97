import QtQuick
import Kavor.Ui

// The string of pennants as it will hang: eight places, four a row where there is no room for all.
Grid {
    id: string

    required property var pennants
    readonly property real pennantWidth: Math.floor(Math.min(112, (width - (columns - 1) * columnSpacing) / columns))

    columns: width >= 680 ? 8 : 4
    columnSpacing: Theme.spaceXS
    rowSpacing: Theme.spaceM
    horizontalItemAlignment: Grid.AlignHCenter

    Repeater {
        model: string.pennants

        Item {
            id: pennant

            required property int index
            required property var modelData
            readonly property bool empty: modelData.empty
            readonly property color cloth: empty ? Theme.sunken : index % 2 ? Theme.amberTint : Theme.bottleTint
            readonly property real body: string.pennantWidth * 1.15

            objectName: "pennant" + index
            width: string.pennantWidth
            height: body + width / 2 + 4

            Accessible.role: Accessible.StaticText
            Accessible.name: (index + 1) + ": " + (empty ? "vacío" : modelData.brand + " " + modelData.name)

            Rectangle { // the cord
                x: -string.columnSpacing
                width: parent.width + 2 * string.columnSpacing
                height: 4
                color: Theme.amberDark
            }
            Item {
                y: 4
                width: parent.width
                height: parent.height - 4
                clip: true

                Rectangle {
                    width: parent.width
                    height: pennant.body
                    color: pennant.cloth
                }
                Rectangle { // the point
                    x: (parent.width - width) / 2
                    y: pennant.body - height / 2
                    width: parent.width / Math.SQRT2
                    height: width
                    rotation: 45
                    antialiasing: true
                    color: pennant.cloth
                }
            }
            Text {
                anchors.centerIn: parent
                visible: pennant.empty
                text: pennant.index + 1
                color: Theme.mutedInk
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontTitle
                font.weight: Font.Bold
            }
            Column {
                x: 4
                y: Theme.spaceS + 4
                width: parent.width - 8
                visible: !pennant.empty
                spacing: 1

                ResourceImage {
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: Math.min(40, parent.width * 0.5)
                    height: width
                    mat: "transparent"
                    ground: pennant.cloth
                    radius: 0
                    source: pennant.modelData.image ?? ""
                    placeholderIcon: "bottle"
                    fillMode: Image.PreserveAspectFit
                }
                Text {
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    text: pennant.modelData.brand ?? ""
                    color: Theme.ink
                    elide: Text.ElideRight
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontSmall
                    font.weight: Font.Bold
                }
                Text {
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    text: pennant.modelData.name ?? ""
                    color: Theme.ink
                    elide: Text.ElideRight
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontSmall
                }
                Text {
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    visible: text !== ""
                    text: pennant.modelData.price ?? ""
                    color: Theme.bottle
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontSmall
                    font.weight: Font.Bold
                }
            }
        }
    }
}
