import QtQuick
import Kavor.Ui

// "Cancelar" for whoever has waited too long: shows itself when `waiting` has lasted for `patience` milliseconds.
AppButton {
    id: wayOut

    property bool waiting: false
    property int patience: 5000
    property bool late: false

    objectName: "wayOut"
    visible: waiting && late
    kind: "secondary"
    text: "Cancelar"
    onWaitingChanged: late = false

    Timer {
        interval: wayOut.patience
        running: wayOut.waiting
        onTriggered: wayOut.late = true
    }
}
