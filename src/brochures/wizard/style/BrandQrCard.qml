import QtQuick
import Kavor.Kit
import Kavor.Ui
import Kavor.Screens

// The QR material of a digital menu.
Card {
    id: card

    required property BrandQrForm form

    signal zoomed()

    SectionTitle { width: parent.width; icon: "qr"; text: "Material con QR" }

    PickerRow {
        objectName: "brandQrTypePicker"
        width: parent.width
        label: "Soporte"
        model: card.form.brandQrTypes
        currentIndex: card.form.brandQrTypePicker
        onActivated: (index) => card.form.chooseType(index)
    }
    PickerRow {
        objectName: "brandQrQuantityTablePicker"
        width: parent.width
        visible: !card.form.wooden
        label: "Nº vinilos mesa"
        model: card.form.tableQuantities
        currentIndex: card.form.brandQrQuantityTablePicker
        error: card.form.tableError
        onActivated: (index) => card.form.chooseQuantity(BrandQrForm.Table, index)
    }
    PickerRow {
        objectName: "brandQrQuantityDoorPicker"
        width: parent.width
        visible: !card.form.wooden
        label: "Nº vinilos puerta"
        model: card.form.doorQuantities
        currentIndex: card.form.brandQrQuantityDoorPicker
        error: card.form.doorError
        onActivated: (index) => card.form.chooseQuantity(BrandQrForm.Door, index)
    }
    PickerRow {
        objectName: "brandQrQuantityTacoPicker"
        width: parent.width
        visible: card.form.wooden
        label: "Nº tacos de madera"
        model: card.form.tacoQuantities
        currentIndex: card.form.brandQrQuantityTacoPicker
        error: card.form.tacoError
        onActivated: (index) => card.form.chooseQuantity(BrandQrForm.Taco, index)
    }
    HelpText {
        width: parent.width
        visible: card.form.brands.length === 0
        text: "Selecciona en Productos una marca que tenga material con QR."
    }
    PictureCarousel {
        id: carousel

        objectName: card.form.wooden ? "brandQrTacoCarousel" : "brandQrCarousel"
        width: parent.width
        height: visible ? 220 : 0
        visible: card.form.brands.length > 0
        text: "Marca del material con QR"
        placeholderIcon: "qr"
        model: card.form.brands
        chosen: card.form.currentBrand
        onSelected: (index) => card.form.brandQrCarouselDidChange(index)
        onTapped: card.zoomed()
    }
    AppButton {
        objectName: "zoomStyleQrButton"
        visible: carousel.visible
        text: "Ampliar"
        icon: "zoom"
        kind: "secondary"
        onClicked: card.zoomed()
    }
}
