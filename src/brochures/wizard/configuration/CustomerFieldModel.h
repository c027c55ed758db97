#pragma once

#include "brochures/wizard/configuration/CustomerForm.h"

#include <QAbstractListModel>

#include <vector>

namespace kavor {

// The text fields of one or more blocks of the form, for the view: a row each with the roles "name" (the
// outlet's), "label", "text", "error" (empty while the text is not too long), "icon" and "hints" (input
// method).
class CustomerFieldModel : public QAbstractListModel {
    Q_OBJECT
public:
    enum Role { NameRole = Qt::UserRole + 1, LabelRole, TextRole, ErrorRole, IconRole, HintsRole };

    // Form and validations outlive the model.
    CustomerFieldModel(const CustomerForm& form, const Validations& validations, QObject* parent);

    // Shows the fields of a block, at most the given number of them.
    void append(CustomerFieldGroup group, std::size_t atMost);
    // A text of the form changed, or all of them.
    void textChanged(std::string_view name);
    void allTextsChanged();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    [[nodiscard]] QString errorOf(const CustomerField& field) const;

    const CustomerForm& form_;
    const Validations& validations_;
    std::vector<const CustomerField*> rows_;
};

} // namespace kavor
