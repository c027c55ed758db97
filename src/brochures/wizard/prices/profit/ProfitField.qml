import QtQuick
import Kavor.Ui
import Kavor.Screens

// One number of the profit account. In the table its caption stands over the column.
PriceField {
    id: number

    required property BrochureProfitAccountViewController controller
    required property int tag
    property string caption: ""
    property bool inTable: true

    label: inTable ? "" : caption
    accessibleName: caption
    inColumn: true
    onEdited: (text) => controller.fieldEdited(tag, text)
    onFinished: (text) => controller.fieldDidEndEditing(tag, text)
}
