#pragma once

#include "pointofsale/CustomerForm.h"

#include <QAbstractListModel>

#include <vector>

namespace kavor {

// Text fields of the form of the point of sale, for a view: a row each with the roles "name" (the outlet's),
// "label", "text", "error" (empty while the text is not too long), "icon" and "hints" (input method).
class CustomerFieldModel : public QAbstractListModel {
    Q_OBJECT
public:
    enum Role { NameRole = Qt::UserRole + 1, LabelRole, TextRole, ErrorRole, IconRole, HintsRole };

    // The form outlives the model.
    explicit CustomerFieldModel(const CustomerForm& form, QObject* parent = nullptr);

    // The validations outlive the model.
    void show(std::vector<CustomerField> fields, const Validations& validations);
    // A text of the form changed, or all of them.
    void textChanged(std::string_view name);
    void allTextsChanged();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    [[nodiscard]] QString errorOf(const CustomerField& field) const;

    const CustomerForm& form_;
    const Validations* validations_ = nullptr;
    std::vector<CustomerField> rows_;
};

} // namespace kavor
