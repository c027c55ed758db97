import QtQuick
import Kavor.Ui
import Kavor.Screens

// A step that is still to come.
Item {
    id: view

    required property ComingSoonStep controller

    objectName: "comingSoonStep"

    EmptyState {
        anchors.fill: parent
        icon: view.controller.icon
        tone: "amber"
        title: "Próximamente"
        text: view.controller.title + " estará disponible en una próxima versión. El resto de la carta se puede completar sin este paso."
    }
}
