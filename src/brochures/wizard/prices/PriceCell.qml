import QtQuick
import Kavor.Ui

// A row of a PriceTable. `fields` holds its price fields, column by column.
Item {
    id: cell

    required property int index
    property list<PriceField> fields
    property bool last: false // the last row of the table

    // Enter was pressed in a price: the table knows where its column goes on.
    signal priceReturned(int column)

    function priceField(column: int): PriceField {
        return fields[column];
    }
}
