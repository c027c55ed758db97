import QtQuick
import Kavor.Ui
import Kavor.Kit
import Kavor.Screens

// What the style asks for.
Card {
    id: card

    required property StyleAttributesModel attributeTable

    SectionTitle { width: parent.width; icon: "edit"; text: "Datos del estilo" }
    AttributeRows { width: parent.width; attributeTable: card.attributeTable }
}
