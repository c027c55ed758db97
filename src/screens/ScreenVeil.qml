import QtQuick
import Kavor.Ui
import Kavor.Kit

// The veil of a screen.
Veil {
    required property VeilState veilState

    shown: veilState.visible
    text: veilState.text
    progress: veilState.progress
    leavable: veilState.leavable
    onAbandoned: veilState.leave()
}
