import QtQuick

// A search line with a drawing and a way to empty it.
TextRow {
    id: search

    placeholder: "Buscar"
    icon: "search"
    inputMethodHints: Qt.ImhNoPredictiveText
    field.rightPadding: Theme.touch

    IconButton {
        objectName: search.objectName + "Clear"
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        visible: search.text !== ""
        icon: "close"
        iconSize: 18
        colour: Theme.mutedInk
        text: "Borrar la búsqueda"
        activeFocusOnTab: false
        focusPolicy: Qt.ClickFocus // or it would be a stop for Tab all the same
        onClicked: {
            search.text = "";
            search.edited("");
            search.field.forceActiveFocus(Qt.OtherFocusReason);
        }
    }
}
