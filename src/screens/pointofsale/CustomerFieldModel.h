#pragma once

#include "pointofsale/CustomerForm.h"
#include "screens/RowListModel.h"

#include <vector>

namespace kavor {

// Text fields of the form of the point of sale, for a view: a row each with the roles "name" (the outlet's),
// "label", "text", "error" (empty while the text is not too long), "icon" and "hints" (input method).
class CustomerFieldModel : public RowListModel {
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

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    struct Key {
        std::string_view operator()(const CustomerField& field) const { return field.name; }
    };
    [[nodiscard]] QString errorOf(const CustomerField& field) const;

    const CustomerForm& form_;
    const Validations* validations_ = nullptr;
    RowList<CustomerField, Key> rows_{*this};
};

} // namespace kavor
