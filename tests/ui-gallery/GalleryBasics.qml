import QtQuick
import QtQuick.Layouts
import Kavor.Ui

FormPage {
    id: page

    SectionTitle { text: "Botones"; detail: "4 clases"; Layout.fillWidth: true; Layout.columnSpan: page.columns }
    Flow {
        Layout.fillWidth: true
        Layout.columnSpan: page.columns
        spacing: Theme.spaceM

        AppButton { text: "Enviar a imprimir"; icon: "print" }
        AppButton { text: "Vista previa"; icon: "preview"; kind: "secondary" }
        AppButton { text: "Eliminar"; icon: "trash"; kind: "danger" }
        AppButton { text: "Ahora no"; kind: "plain" }
        AppButton { text: "Enviando"; busy: true }
        AppButton { text: "Sin permiso"; enabled: false }
        IconButton { icon: "refresh"; text: "Actualizar"; framed: true }
        IconButton { icon: "star"; text: "Destacar"; filled: true; colour: Theme.amber; framed: true; checked: true }
        IconButton { icon: "flip"; text: "Girar" }
    }
    Flow {
        Layout.fillWidth: true
        Layout.columnSpan: page.columns
        spacing: Theme.spaceS

        Chip { text: "Sincronizado"; dot: Theme.synced }
        Chip { text: "En este equipo"; dot: Theme.local }
        Chip { text: "Pendiente de envío"; dot: Theme.pending }
        Chip { text: "En plazo"; tone: "success"; icon: "check" }
        Chip { text: "Últimas unidades"; tone: "amber"; icon: "warning" }
        Chip { text: "Agotado"; tone: "danger"; icon: "circle-close" }
        Chip { text: "Novedad"; tone: "bottle"; icon: "tag" }
    }
    Flow {
        Layout.fillWidth: true
        Layout.columnSpan: page.columns
        spacing: Theme.spaceS

        Chip { text: "Todas"; tappable: true; selected: true }
        Chip { text: "Lager"; tappable: true }
        Chip { text: "Tostada"; tappable: true }
        Chip { text: "Sin alcohol"; tappable: true; icon: "glass" }
        Badge { count: 7 }
        Badge { count: 120; tone: "danger" }
        Spinner {}
    }
    Card {
        Layout.fillWidth: true
        Layout.alignment: Qt.AlignTop
        SectionTitle { width: parent.width; text: "Límites de marcas" }
        RangeBar { width: parent.width; label: "Marcas"; value: 2; minimum: 4; maximum: 12 }
        RangeBar { width: parent.width; label: "Formatos"; value: 9; minimum: 4; maximum: 12 }
        RangeBar { width: parent.width; label: "Destacados"; value: 5; maximum: 4 }
        ProgressLine { width: parent.width; value: 0.35 }
        StepperBar { width: parent.width; count: 5; current: 2 }
    }
    Card {
        Layout.fillWidth: true
        Layout.alignment: Qt.AlignTop
        tappable: true
        selected: true
        Icon { name: "beer"; size: 40; colour: Theme.bottle }
        SectionTitle { width: parent.width; text: "Carta de Cervezas" }
        HelpText { width: parent.width; text: "Hasta doce marcas, con dos columnas de precios y un producto destacado." }
    }
    SectionTitle { text: "Dibujos"; Layout.fillWidth: true; Layout.columnSpan: page.columns }
    Flow {
        Layout.fillWidth: true
        Layout.columnSpan: page.columns
        spacing: Theme.spaceM

        Repeater {
            model: ["beer", "bottle", "brochure", "flyer", "chalkboard", "tablecloth", "video", "insert", "wine",
                "poster", "sellingsheet", "tshirt", "party", "promotions", "ordersheet", "drinks", "glass", "flag",
                "pennant", "refresh", "orders", "user", "mailbox", "play", "logout", "search", "close", "check",
                "plus", "minus", "trash", "star", "warning", "info", "print", "eye", "save", "cloud", "offline",
                "settings", "tag", "palette", "send", "eraser", "reset", "edit", "flip", "zoom", "sort_both",
                "sort_ascendant", "sort_descendant", "camera", "location", "qr", "phone"]

            Icon {
                required property string modelData
                name: modelData
                size: 28
                colour: Theme.bottle
            }
        }
    }
}
