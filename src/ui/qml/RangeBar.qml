import QtQuick

// A count against its limits: amber below the minimum, green within, red above. maximum 0 means no limit.
Item {
    id: bar

    property int value: 0
    property int minimum: 0
    property int maximum: 0
    property string label: ""
    readonly property string tone: maximum > 0 && value > maximum ? "danger" : value < minimum ? "amber" : "success"
    readonly property int scaleEnd: Math.max(maximum > 0 ? maximum : Math.max(minimum, value), 1)

    implicitWidth: 220
    implicitHeight: column.implicitHeight

    Accessible.role: Accessible.ProgressBar
    Accessible.name: label + " " + summary.text

    Column {
        id: column

        width: parent.width
        spacing: 6

        Item {
            width: parent.width
            height: Math.max(caption.implicitHeight, summary.implicitHeight)

            Text {
                id: caption

                anchors.left: parent.left
                anchors.right: summary.left
                anchors.rightMargin: Theme.spaceS
                text: bar.label
                color: Theme.ink
                elide: Text.ElideRight
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontSmall
            }
            Text {
                id: summary

                anchors.right: parent.right
                text: {
                    if (bar.maximum > 0 && bar.minimum > 0 && bar.minimum !== bar.maximum)
                        return bar.value + " (de " + bar.minimum + " a " + bar.maximum + ")";
                    if (bar.maximum > 0)
                        return bar.value + " de " + bar.maximum;
                    return bar.minimum > 0 ? bar.value + " (mínimo " + bar.minimum + ")" : String(bar.value);
                }
                color: Theme.toneInk(bar.tone)
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontSmall
                font.weight: Font.Bold
            }
        }

        Item {
            width: parent.width
            height: 12

            ProgressLine {
                width: parent.width
                anchors.verticalCenter: parent.verticalCenter
                value: bar.value / bar.scaleEnd
                tone: bar.tone
            }
            Rectangle { // where the minimum stands
                x: parent.width * Math.min(1, bar.minimum / bar.scaleEnd) - 1
                width: 2
                height: parent.height
                visible: bar.minimum > 0 && bar.minimum < bar.scaleEnd
                color: Theme.ink
                opacity: 0.45
            }
        }
    }
}
