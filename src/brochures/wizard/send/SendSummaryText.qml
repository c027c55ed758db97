import QtQuick
import Kavor.Ui

// One of the texts of the summary: a line each, hidden while empty. A text of what is missing is drawn in red.
Column {
    id: summary

    property string text: ""
    property bool warning: false
    property real fontSize: Theme.fontBody

    visible: text !== ""
    spacing: Theme.spaceXS

    Repeater {
        model: summary.text.trim().split("\n")

        Item {
            required property string modelData

            width: summary.width
            height: line.implicitHeight

            Icon {
                y: 1
                visible: summary.warning
                name: "warning"
                size: 18
                colour: Theme.danger
            }
            Text {
                id: line

                x: summary.warning ? 26 : 0
                width: parent.width - x
                text: parent.modelData
                textFormat: Text.PlainText
                color: summary.warning ? Theme.dangerDark : Theme.ink
                wrapMode: Text.Wrap
                lineHeight: 1.2
                font.family: Theme.fontFamily
                font.pixelSize: summary.fontSize
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
    }
}
