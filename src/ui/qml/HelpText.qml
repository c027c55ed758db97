import QtQuick

// A quiet explanation under a title or a field. tone "danger" says what is wrong.
Text {
    property string tone: "neutral"

    color: tone === "neutral" ? Theme.mutedInk : Theme.toneInk(tone)
    font.family: Theme.fontFamily
    font.pixelSize: Theme.fontSmall
    lineHeight: 1.15
    wrapMode: Text.Wrap
    visible: text !== ""

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
