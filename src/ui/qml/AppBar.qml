import QtQuick
import QtQuick.Layouts

// The bar at the head of a screen: back, title, the offline sign, actions at the right (as children).
Rectangle {
    id: bar

    default property alias actions: actionRow.data
    property string title: ""
    property string subtitle: ""
    property bool backVisible: false
    property string backText: "Volver"
    property bool offline: false
    property string offlineText: "Sin conexión"

    signal backTapped()

    implicitHeight: 64
    implicitWidth: 320
    color: Theme.bottle

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: bar.backVisible ? Theme.spaceS : Theme.pageMargin
        anchors.rightMargin: Theme.spaceS
        spacing: Theme.spaceS

        IconButton {
            objectName: "backButton"
            visible: bar.backVisible
            inverse: true
            icon: "back"
            text: bar.backText
            onClicked: bar.backTapped()
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 0

            Text {
                objectName: "appBarTitle"
                Layout.fillWidth: true
                text: bar.title
                color: Theme.inverseInk
                elide: Text.ElideRight
                font.family: Theme.fontFamily
                font.pixelSize: Theme.compact ? Theme.fontLarge : Theme.fontTitle
                font.weight: Font.Bold
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Text {
                Layout.fillWidth: true
                visible: text !== ""
                text: bar.subtitle
                color: Theme.inverseMuted
                elide: Text.ElideRight
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontSmall
            }
        }
        Chip {
            objectName: "offlineChip"
            visible: bar.offline
            inverse: true
            icon: "offline"
            text: bar.offlineText
        }
        Row {
            id: actionRow

            Layout.alignment: Qt.AlignVCenter
            spacing: 0
        }
    }
}
