#pragma once

#include "screens/RowListModel.h"

#include <QString>

namespace kavor {

// A sheet in the list, a draft or one that was sent.
struct SheetListRow {
    QString key; // of a draft its plain name, of a sent sheet its number
    QString name;
    QString title;
    QString state;       // "vigente", "caducada" or empty
    QString details;     // "3 módulos · Del 01/06/2024 al 30/06/2024"
    QString description; // all of it, as one reads it out
    QString date;        // when it was changed or made
    QString image;

    struct Key {
        const QString& operator()(const SheetListRow& row) const { return row.key; }
    };
    bool operator==(const SheetListRow&) const = default;
};

// The drafts, or the sheets that were sent.
class SheetListModel : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the list")

public:
    enum Role {
        KeyRole = Qt::UserRole + 1,
        NameRole,
        TitleRole,
        StateRole,
        DetailsRole,
        DescriptionRole,
        DateRole,
        ImageRole
    };

    using RowListModel::RowListModel;

    void show(std::vector<SheetListRow> rows) { rows_.show(std::move(rows)); }
    [[nodiscard]] const std::vector<SheetListRow>& rows() const { return rows_.all(); }

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    RowList<SheetListRow, SheetListRow::Key> rows_{*this};
};

} // namespace kavor
