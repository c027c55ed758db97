import QtQuick
import Kavor.Ui
import Kavor.Kit

// Where the point of sale is, by hand or as the device knows it.
CustomerFields {
    id: card

    title: "Dirección"
    icon: "location"
    fields: form.placeFields

    AppButton {
        objectName: "locateDevice"
        width: parent.width
        text: "Usar mi ubicación"
        icon: "location"
        kind: "secondary"
        onClicked: card.form.locateDeviceAndFillFields()
    }
}
