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
    : RowListModel(parent)
    , form_(form) {}

void CustomerFieldModel::show(std::vector<CustomerField> fields, const Validations& validations) {
    validations_ = &validations;
    rows_.show(std::move(fields));
}

void CustomerFieldModel::textChanged(std::string_view name) {
    for (int row = 0; row < count(); ++row) {
        if (rows_.at(row)->name == name)
            emit dataChanged(index(row), index(row), {TextRole, ErrorRole});
    }
}

void CustomerFieldModel::allTextsChanged() {
    rows_.repaint({TextRole, ErrorRole});
}

QVariant CustomerFieldModel::data(const QModelIndex& index, int role) const {
    const CustomerField* field = rows_.at(index);
    if (!field)
        return {};
    switch (role) {
    case NameRole:
        return fromUtf8(field->name);
    case LabelRole:
        return fromUtf8(field->label);
    case TextRole:
        return fromUtf8(form_.text(field->name));
    case ErrorRole:
        return errorOf(*field);
    case IconRole:
        return fromUtf8(field->icon);
    case HintsRole:
        return inputMethodHints(field->keys);
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
