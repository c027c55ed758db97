import QtQuick

// The same entries, always as a rail.
StepMenu {
    vertical: true
}
