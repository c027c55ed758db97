#include "screens/pointofsale/CustomerFieldModel.h"

#include "base/Text.h"
#include "catalogue/Shared.h"
#include "interaction/QtText.h"

#include <utility>

namespace kavor {

namespace {

int inputMethodHints(CustomerFieldKeys keys) {
    switch (keys) {
    case CustomerFieldKeys::text:
        break;
    case CustomerFieldKeys::code:
        return Qt::ImhNoPredictiveText;
    case CustomerFieldKeys::phone:
        return Qt::ImhDialableCharactersOnly;
    case CustomerFieldKeys::mail:
        return Qt::ImhEmailCharactersOnly | Qt::ImhNoAutoUppercase;
    case CustomerFieldKeys::url:
        return Qt::ImhUrlCharactersOnly | Qt::ImhNoAutoUppercase;
    case CustomerFieldKeys::digits:
        return Qt::ImhDigitsOnly;
    }
    return 0;
}

} // namespace

CustomerFieldModel::CustomerFieldModel(const CustomerForm& form, QObject* parent)
    : QAbstractListModel(parent)
    , form_(form) {}

void CustomerFieldModel::show(std::vector<CustomerField> fields, const Validations& validations) {
    beginResetModel(); // the form is another one
    rows_ = std::move(fields);
    validations_ = &validations;
    endResetModel();
}

void CustomerFieldModel::textChanged(std::string_view name) {
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        if (rows_[row].name == name)
            emit dataChanged(index(int(row)), index(int(row)), {TextRole, ErrorRole});
    }
}

void CustomerFieldModel::allTextsChanged() {
    if (!rows_.empty())
        emit dataChanged(index(0), index(int(rows_.size()) - 1), {TextRole, ErrorRole});
}

int CustomerFieldModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(rows_.size());
}

QVariant CustomerFieldModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const CustomerField& field = rows_[std::size_t(index.row())];
    switch (role) {
    case NameRole:
        return fromUtf8(field.name);
    case LabelRole:
        return fromUtf8(field.label);
    case TextRole:
        return fromUtf8(form_.text(field.name));
    case ErrorRole:
        return errorOf(field);
    case IconRole:
        return fromUtf8(field.icon);
    case HintsRole:
        return inputMethodHints(field.keys);
    default:
        return {};
    }
}

QString CustomerFieldModel::errorOf(const CustomerField& field) const {
    if (!field.limit)
        return {};
    const Int limit = validations_->*field.limit;
    const auto length = Int(text::characterCount(form_.text(field.name)));
    return length > limit ? QStringLiteral("%1 de %2 caracteres").arg(length).arg(limit) : QString();
}

QHash<int, QByteArray> CustomerFieldModel::roleNames() const {
    return {{NameRole, "name"},   {LabelRole, "label"}, {TextRole, "text"},
            {ErrorRole, "error"}, {IconRole, "icon"},   {HintsRole, "hints"}};
}

} // namespace kavor
