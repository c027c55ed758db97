#pragma once

#include "screens/RowListModel.h"

#include <QString>

#include <string>
#include <vector>

namespace kavor {

// A field for an address.
struct EmailRow {
    int number = 0; // in the order in which fields were added
    QString text;

    struct Key {
        int operator()(const EmailRow& row) const { return row.number; }
    };
    bool operator==(const EmailRow&) const = default;
};

// The addresses that receive the result, a field each; there is always one to type into.
class EmailListModel : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the form")

public:
    enum Role { TextRole = Qt::UserRole + 1, ErrorRole };

    explicit EmailListModel(QObject* parent = nullptr);

    void show(const std::vector<std::string>& emails);
    // The fields as typed, empty ones included.
    [[nodiscard]] std::vector<std::string> texts() const;

    Q_INVOKABLE void edit(int row, const QString& text);
    // Nothing while the last field is empty.
    Q_INVOKABLE void add();
    Q_INVOKABLE void remove(int row);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

signals:
    // The user typed, added or removed.
    void edited();

private:
    RowList<EmailRow, EmailRow::Key> rows_{*this};
    int lastNumber_ = 0;
};

} // namespace kavor
