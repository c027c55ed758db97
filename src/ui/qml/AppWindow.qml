import QtQuick
import QtQuick.Window

// The client's window: paper ground, and the one place that tells Theme how large it is.
Window {
    id: window

    color: Theme.paper
    title: "Kavor"

    Binding { target: Theme; property: "windowWidth"; value: window.width }
    Binding { target: Theme; property: "windowHeight"; value: window.height }
}
