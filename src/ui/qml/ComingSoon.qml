import QtQuick

// Stands where a step is still to come.
EmptyState {
    icon: "clock"
    tone: "amber"
    title: "Próximamente"
}
