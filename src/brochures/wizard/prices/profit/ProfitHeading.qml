import QtQuick
import Kavor.Ui

// The head of a column: its caption, and how its rows are sorted.
Tappable {
    id: heading

    property string caption: ""
    property string picture: "sort_both"
    property bool leading: false // stands at the left of its column

    accessibleName: "Ordenar por " + caption
    padding: 0

    background: Item {
        FocusRing { shown: heading.visualFocus; corner: 8 }
    }
    contentItem: Item {
        implicitWidth: row.implicitWidth
        implicitHeight: row.implicitHeight

        Row {
            id: row

            x: heading.leading ? 0 : parent.width - width - Theme.spaceXS
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.spaceXS

            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: heading.caption
                color: heading.hot || heading.picture !== "sort_both" ? Theme.bottle : Theme.mutedInk
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontSmall
                font.weight: Font.Bold
            }
            Icon {
                anchors.verticalCenter: parent.verticalCenter
                name: heading.picture
                size: 16
                weight: 2
                colour: heading.picture !== "sort_both" ? Theme.bottle : Theme.mutedInk
            }
        }
    }
}
