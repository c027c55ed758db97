import QtQuick
import Kavor.Ui

// A budget: what is left of it and how much was ordered; the bar only when that can be told.
Card {
    id: card

    property string title: ""
    property string available: ""
    property string initial: ""
    property string orders: ""
    property real share: -1

    SectionTitle {
        width: parent.width
        text: card.title
        detail: card.orders + (card.orders === "1" ? " pedido" : " pedidos")
    }
    Text {
        width: parent.width
        text: card.available
        color: Theme.ink
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontTitle
        font.weight: Font.Bold
        elide: Text.ElideRight
    }
    ProgressLine {
        objectName: "budgetBar"
        width: parent.width
        visible: card.share >= 0
        value: card.share
        tone: card.share < 0.15 ? "danger" : "amber"
    }
    HelpText {
        width: parent.width
        text: "Disponible de " + card.initial
    }
}
