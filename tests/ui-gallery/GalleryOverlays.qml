import QtQuick
import Kavor.Ui

Item {
    PdfPreview {
        objectName: "pdf"
        anchors.fill: parent
        visible: window.page === "pdf" || window.page === "error"
        source: galleryFolder + (window.page === "pdf" ? "/menu.pdf" : "/picture0.png")
    }
    EmptyState {
        anchors.fill: parent
        visible: window.page === "empty" || window.page === "banner" || window.page === "veil"
        icon: "orders"
        title: "Todavía no hay pedidos"
        text: "Los pedidos que guarde o envíe aparecen aquí, también cuando no hay conexión."
        actionText: "Nueva carta"
        actionIcon: "plus"
    }
    ComingSoon {
        anchors.fill: parent
        visible: window.page === "soon"
        text: "Las bebidas se podrán añadir en una próxima versión."
    }
}
