#pragma once

#include "base/Int.h"
#include "screens/RowListModel.h"

#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace kavor {

// Something to choose: a brand, a format, a colour, a typography.
struct TextileChoice {
    QString key;
    QString title;
    QString detail;
    QString image;
    QString colour;
    QVariantMap lettering; // of a typography
    bool selected = false;
    bool operator==(const TextileChoice&) const = default;
};

// Roles "key", "title", "detail", "image", "colour", "lettering", "chosen".
class TextileChoiceModel : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the step")
public:
    using RowListModel::RowListModel;

    void show(std::vector<TextileChoice> rows) { rows_.show(std::move(rows)); }
    [[nodiscard]] const std::vector<TextileChoice>& rows() const { return rows_.all(); }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    struct Key {
        QString operator()(const TextileChoice& row) const { return row.key; }
    };
    RowList<TextileChoice, Key> rows_{*this};
};

// A size of the selection with the units that its field shows.
struct TextileSizeRow {
    Int size = 0;
    QString code;
    QString name;
    QString text;
    UInt units = 0;
    bool operator==(const TextileSizeRow&) const = default;
};

// Roles "size", "code", "name", "units" (the text), "positive".
class TextileSizeModel : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the step")
public:
    using RowListModel::RowListModel;

    void show(std::vector<TextileSizeRow> rows) { rows_.show(std::move(rows)); }
    [[nodiscard]] const std::vector<TextileSizeRow>& rows() const { return rows_.all(); }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    struct Key {
        Int operator()(const TextileSizeRow& row) const { return row.size; }
    };
    RowList<TextileSizeRow, Key> rows_{*this};
};

// A line of the cart.
struct TextileCartRow {
    QString key;
    QString title;
    QString detail;
    QStringList sizes;   // "S: 4 uds. "
    QString units;       // of the line
    QVariantMap garment; // as GarmentPicture takes it
    bool selected = false;
    bool operator==(const TextileCartRow&) const = default;
};

// Roles "key", "title", "detail", "sizes", "units", "garment", "chosen".
class TextileCartModel : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the step")
public:
    using RowListModel::RowListModel;

    void show(std::vector<TextileCartRow> rows) { rows_.show(std::move(rows)); }
    [[nodiscard]] const std::vector<TextileCartRow>& rows() const { return rows_.all(); }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    struct Key {
        QString operator()(const TextileCartRow& row) const { return row.key; }
    };
    RowList<TextileCartRow, Key> rows_{*this};
};

} // namespace kavor
