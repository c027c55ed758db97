#include "activations/screens/ActivationAttributeModel.h"

#include "interaction/QtText.h"

#include <set>
#include <utility>

namespace kavor {

namespace {

constexpr Int priceAttributeType = 3;

} // namespace

void ActivationAttributeModel::ask(const std::vector<Attribute>& attributes,
                                   const std::map<Int, std::string>& values) {
    attributesToSend_ = values;
    std::vector<Row> rows;
    std::set<Int> asked;
    for (const Attribute& each : attributes) {
        if (!asked.insert(each.id).second)
            continue;
        const auto value = values.find(each.id);
        const std::string text = value == values.end() ? "" : value->second;
        rows.push_back({&each, text, text});
    }
    rows_.show(std::move(rows));
}

const ActivationAttributeModel::Row* ActivationAttributeModel::store(int row, const QString& text) {
    const Row* content = rows_.at(row);
    if (content)
        attributesToSend_[content->attribute->id] = storedValue(*content->attribute, text.toStdString());
    return content;
}

void ActivationAttributeModel::type(int row, const QString& text) {
    const Row* content = store(row, text);
    if (!content)
        return;
    Row now = *content;
    now.shown = text.toStdString();
    rows_.set(row, std::move(now), {ValueRole});
    emit edited();
}

void ActivationAttributeModel::finish(int row, const QString& text) {
    const Row* content = store(row, text);
    if (!content)
        return;
    Row now = *content;
    now.shown = attributesToSend_[now.attribute->id];
    const bool isNew = std::exchange(now.judged, now.shown) != now.shown; // a field says it twice
    const Attribute& attribute = *now.attribute;
    rows_.set(row, std::move(now), {ValueRole});
    emit edited();
    if (isNew && missesFormat(attribute, attributesToSend_[attribute.id]))
        emit formatMissed(fromUtf8(attribute.description));
}

QVariant ActivationAttributeModel::data(const QModelIndex& index, int role) const {
    const Row* row = rows_.at(index);
    if (!row)
        return {};
    switch (role) {
    case LabelRole:
        return fromUtf8(row->attribute->name);
    case ValueRole:
        return fromUtf8(row->shown);
    case HelpRole:
        return (row->attribute->required ? QStringLiteral("Obligatorio") : QStringLiteral("Opcional")) +
               (row->attribute->description.empty()
                    ? QString()
                    : QStringLiteral(" · ") + fromUtf8(row->attribute->description));
    case RequiredRole:
        return row->attribute->required;
    case HintsRole:
        return row->attribute->typeId == priceAttributeType ? int(Qt::ImhFormattedNumbersOnly)
                                                            : int(Qt::ImhNone);
    default:
        return {};
    }
}

QHash<int, QByteArray> ActivationAttributeModel::roleNames() const {
    return {{LabelRole, "label"},
            {ValueRole, "value"},
            {HelpRole, "help"},
            {RequiredRole, "required"},
            {HintsRole, "hints"}};
}

} // namespace kavor
