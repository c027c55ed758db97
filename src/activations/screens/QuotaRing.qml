import QtQuick
import QtQuick.Shapes
import Kavor.Ui

// A quota as a ring that fills up, beside it a text that says what is left.
Row {
    id: quota

    property int total: 0
    property int made: 0
    property int side: 64
    property bool inverse: false
    readonly property bool full: made >= total
    property string text: ""

    spacing: Theme.spaceM

    Accessible.role: Accessible.StaticText
    Accessible.name: "Cupo: " + made + " de " + total + ", " + text

    Item {
        width: quota.side
        height: quota.side

        Shape {
            id: ring

            readonly property real line: quota.side * 0.13
            readonly property real sweep: quota.total > 0 ? 360 * Math.min(1, quota.made / quota.total) : 360

            anchors.fill: parent

            ShapePath {
                strokeWidth: ring.line
                strokeColor: quota.inverse ? Theme.bottleLight : Theme.hairline
                fillColor: "transparent"

                PathAngleArc {
                    centerX: quota.side / 2
                    centerY: quota.side / 2
                    radiusX: (quota.side - ring.line) / 2
                    radiusY: radiusX
                    startAngle: -90
                    sweepAngle: 360
                }
            }
            ShapePath {
                strokeWidth: ring.line
                strokeColor: ring.sweep <= 0 ? "transparent" : quota.full ? Theme.danger : Theme.amber
                fillColor: "transparent"
                capStyle: ShapePath.RoundCap

                PathAngleArc {
                    centerX: quota.side / 2
                    centerY: quota.side / 2
                    radiusX: (quota.side - ring.line) / 2
                    radiusY: radiusX
                    startAngle: -90
                    sweepAngle: ring.sweep
                }
            }
        }
        Text {
            anchors.centerIn: parent
            text: quota.made + "/" + quota.total
            color: quota.inverse ? Theme.inverseInk : Theme.ink
            font.family: Theme.fontFamily
            font.pixelSize: Math.min(quota.side * 0.26, quota.side * 1.2 / Math.max(1, text.length))
            font.weight: Font.Bold
        }
    }
    Text {
        objectName: "quotaText"
        anchors.verticalCenter: parent.verticalCenter
        text: quota.text
        color: quota.inverse ? Theme.inverseInk : quota.full ? Theme.dangerDark : Theme.ink
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontLarge
        font.weight: Font.Medium
    }
}
