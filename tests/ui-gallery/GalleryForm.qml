import QtQuick
import QtQuick.Layouts
import Kavor.Ui

FormPage {
    id: page

    readonly property bool listOpen: window.page === "picker"

    onListOpenChanged: {
        if (listOpen)
            openTimer.start();

    }
    Component.onCompleted: {
        if (listOpen)
            openTimer.start();
    }

    Timer { id: openTimer; interval: 100; onTriggered: zone.open() }

    SectionTitle { text: "Datos del bar"; icon: "store"; Layout.fillWidth: true; Layout.columnSpan: page.columns }
    TextRow { Layout.fillWidth: true; label: "Nombre del establecimiento"; text: "Bar La Ola"; maximumLength: 12 }
    TextRow { Layout.fillWidth: true; label: "Teléfono"; placeholder: "600 000 000"; icon: "phone"; inputMethodHints: Qt.ImhDialableCharactersOnly }
    TextRow { Layout.fillWidth: true; label: "Correo"; text: "laola@"; error: "El correo no es válido."; icon: "mail" }
    TextRow { Layout.fillWidth: true; label: "Contraseña"; text: "secreto"; secret: true; icon: "lock" }
    PickerRow {
        id: zone
        objectName: "zone"
        Layout.fillWidth: true
        label: "Idioma"
        model: ["Castellano", "Catalán", "Euskera", "Gallego", "Inglés"]
        currentIndex: 1
        icon: "language"
        onActivated: (index) => currentIndex = index
    }
    PickerRow { Layout.fillWidth: true; label: "Tamaño"; model: ["A5", "A4"]; enabled: true }
    QuantityField { Layout.fillWidth: true; label: "Ejemplares"; value: 4; minimum: 1; maximum: 10; onEdited: (v) => value = v }
    RowLayout {
        Layout.fillWidth: true
        spacing: Theme.spaceM
        PriceField { Layout.fillWidth: true; label: "Caña"; displayText: "2,50 €"; editText: "2,5" }
        PriceField { Layout.fillWidth: true; label: "Tercio"; displayText: ""; editText: "" }
        PriceField { Layout.fillWidth: true; label: "Jarra"; displayText: "12,00 €"; editText: "12"; error: "Muy alto" }
    }
    Card {
        Layout.fillWidth: true
        Layout.columnSpan: page.columns
        spacing: 0
        SwitchRow { width: parent.width; label: "Mostrar el código QR"; help: "El cliente ve la carta en su teléfono."; checked: true; onToggled: (on) => checked = on }
        SwitchRow { width: parent.width; label: "Sin precios"; onToggled: (on) => checked = on }
        SwitchRow { width: parent.width; label: "Con banderín"; help: "No disponible en este formato."; enabled: false }
    }
    TextAreaRow { Layout.fillWidth: true; Layout.columnSpan: page.columns; label: "Observaciones"; placeholder: "Escriba aquí lo que la imprenta deba saber" }
    SearchField { Layout.fillWidth: true; Layout.columnSpan: page.columns; text: "tostada" }
}
