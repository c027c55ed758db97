import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Screens

// The filter bar over the brands: a search, all or the customer's priority brands, a property.
GridLayout {
    id: bar

    required property PriorityBrandSelectorView filter
    property bool priorityVisible: false
    readonly property bool wide: width >= 640

    columns: wide ? 3 : 2
    columnSpacing: Theme.spaceM
    rowSpacing: Theme.spaceS

    SearchField {
        objectName: "searchBrandTextField"
        Layout.fillWidth: true
        Layout.columnSpan: bar.wide ? 1 : 2
        Layout.preferredWidth: 260
        placeholder: "Buscar una marca"
        text: bar.filter.searchBrandTextField
        onEdited: (text) => bar.filter.searchBrandTextField = text
    }
    PickerRow {
        objectName: "propertyPicker"
        Layout.fillWidth: true
        Layout.preferredWidth: 180
        Layout.columnSpan: !bar.wide && !bar.priorityVisible ? 2 : 1
        model: bar.filter.propertyPicker
        currentIndex: bar.filter.propertyIndex
        placeholder: "Propiedad"
        onActivated: (index) => bar.filter.propertyIndex = index
    }
    Row {
        visible: bar.priorityVisible
        spacing: Theme.spaceXS

        Chip {
            objectName: "filterAll"
            text: "Todos"
            tappable: true
            selected: !bar.filter.priorityApplied
            onClicked: bar.filter.priorityApplied = false
        }
        Chip {
            objectName: "filterPriority"
            text: bar.wide ? "Prioritarias" : "Priorit."
            accessibleName: "Prioritarias"
            icon: "star"
            tappable: true
            selected: bar.filter.priorityApplied
            onClicked: bar.filter.priorityApplied = true
        }
    }
}
