import QtQuick

// Which of a few steps one is at: `current` counts from 0.
Row {
    id: bar

    property int count: 3
    property int current: 0

    spacing: 6
    height: 6

    Accessible.role: Accessible.ProgressBar
    Accessible.name: "Paso " + (current + 1) + " de " + count

    Repeater {
        model: bar.count

        Rectangle {
            required property int index

            width: Math.max(12, (bar.width - (bar.count - 1) * bar.spacing) / Math.max(1, bar.count))
            height: 6
            radius: 3
            color: index < bar.current ? Theme.bottle : index === bar.current ? Theme.amber : Theme.hairline
        }
    }
}
