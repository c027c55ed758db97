import QtQuick

// A small counter; hidden at zero unless it carries a text of its own.
Rectangle {
    id: badge

    property int count: 0
    property string text: count > 99 ? "99+" : count > 0 ? String(count) : ""
    property string tone: "amber"

    visible: text !== ""
    implicitWidth: Math.max(implicitHeight, label.implicitWidth + 12)
    implicitHeight: 20
    radius: height / 2
    color: Theme.toneStrong(tone)

    Text {
        id: label

        anchors.centerIn: parent
        text: badge.text
        color: badge.tone === "amber" ? Theme.ink : Theme.inverseInk
        font.family: Theme.fontFamily
        font.pixelSize: 12
        font.weight: Font.Bold
    }
}
