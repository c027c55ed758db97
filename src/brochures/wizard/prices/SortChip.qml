import QtQuick
import Kavor.Ui

// A button that sorts the rows below it; its drawing says how.
Chip {
    property string by: "" // what it sorts by, in a sentence

    tappable: true
    accessibleName: "Ordenar por " + by
}
