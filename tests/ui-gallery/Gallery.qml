import QtQuick
import Kavor.Ui

AppWindow {
    id: window

    property string page: "basics"
    readonly property var entries: [
        { id: "basics", text: "Piezas", icon: "layers" },
        { id: "form", text: "Formulario", icon: "edit", done: true },
        { id: "lists", text: "Listas e imágenes", icon: "list", badge: 3 },
        { id: "pdf", text: "Vista previa", icon: "preview" },
        { id: "empty", text: "Página vacía", icon: "orders" },
        { id: "error", text: "Documento roto", icon: "warning" },
        { id: "soon", text: "Próximamente", icon: "clock" },
        { id: "picker", text: "Lista", icon: "chevron-down" },
        { id: "veil", text: "Velo", icon: "cloud-upload" },
        { id: "banner", text: "Avisos", icon: "bell" },
        { id: "off", text: "No disponible", icon: "lock", enabled: false }
    ]

    width: 1024
    height: 768
    visible: true

    AppBar {
        id: bar

        width: parent.width
        title: "Carta de Cervezas"
        subtitle: "Bar La Ola, código 00418"
        backVisible: true
        offline: true
        offlineText: Theme.compact ? "" : "Sin conexión"

        IconButton { inverse: true; icon: "save"; text: "Guardar"; visible: !Theme.compact }
        IconButton { inverse: true; icon: "orders"; text: "Pedidos"; badge: 4 }
    }
    StepMenu {
        id: menu

        anchors.top: bar.bottom
        width: vertical ? implicitWidth : parent.width
        height: vertical ? parent.height - bar.height : implicitHeight
        model: window.entries.map((entry) => Object.assign({}, entry, { selected: entry.id === window.page }))
        onTapped: (id) => window.page = id
    }
    Loader {
        anchors.top: menu.vertical ? bar.bottom : menu.bottom
        anchors.left: menu.vertical ? menu.right : parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        source: {
            switch (window.page) {
            case "form":
            case "picker": return "GalleryForm.qml";
            case "lists": return "GalleryLists.qml";
            case "basics": return "GalleryBasics.qml";
            }
            return "GalleryOverlays.qml";
        }
    }

    Veil {
        anchors.fill: parent
        shown: window.page === "veil"
        leavable: true
        patience: 100
        text: "Descargando el catálogo…"
        detail: "84 de 120"
        progress: 0.7
    }
    BannerHost { id: banner }
    Toast { id: toast }
    AlertHost { presenter: galleryAlerts }

    onPageChanged: {
        if (page === "banner") {
            banner.show("Pedidos enviados", "Se han enviado 2 pedidos pendientes.");
            toast.show("Se ha recuperado la carta en curso");
        } else if (banner.shown) {
            banner.dismiss();
        }
    }
}
