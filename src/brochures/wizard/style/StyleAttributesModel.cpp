#include "brochures/wizard/style/StyleAttributesModel.h"

#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/StepSupport.h"
#include "device/PhotoPicker.h"
#include "resources/PictureText.h"
#include "screens/ResourceImages.h"

#include <QImage>
#include <QRegularExpression>

#include <algorithm>

namespace kavor {

namespace {

constexpr Int priceAttributeType = 3;
constexpr int longestImageSide = 800; // pixels

const QString attributeCell = QStringLiteral("attributeCell");
const QString imageAttributeCell = QStringLiteral("imageAttributeCell");
const QString pickerAttributeCell = QStringLiteral("pickerAttributeCell");

} // namespace

StyleAttributesModel::StyleAttributesModel(PhotoPicker& photos, QObject* parent)
    : QAbstractListModel(parent)
    , photos_(photos) {}

void StyleAttributesModel::setStyle(const StyleContext& context, const Brochures::Style* style) {
    beginResetModel(); // another style has other rows
    context_ = context;
    styleId_ = style ? style->id : 0;
    attributes_ = style ? style->attributesList : std::vector<Attribute>();
    choices_.clear();
    values_.clear();
    switchValues_.clear();
    const auto stored = context.draft->valuesMenuStyleAttributes.value_or(std::vector<Value>());
    for (const Attribute& attribute : attributes_) {
        choices_.emplace_back().appendByPosition(attribute.values, &Attribute::SortableElement::identifier,
                                                 &Attribute::SortableElement::value);
        const auto found = std::ranges::find_if(stored, [&](const Value& value) {
            return value.menuStyleId == styleId_ && value.attributeId == attribute.id;
        });
        values_.push_back(found == stored.end() ? Value{attribute.id, styleId_, std::nullopt, std::nullopt}
                                                : *found);
        switchValues_[attribute.id] = values_.back().value.has_value();
    }
    endResetModel();
    emit countChanged();
}

void StyleAttributesModel::serialize() {
    BrochureIntermediateData& draft = *context_.draft;
    const auto other =
        context_.isSectionStyleDigital ? draft.selectedStyleIdentifier : draft.selectedStyleDigitalIdentifier;
    std::vector<Value> kept;
    for (const Value& value : draft.valuesMenuStyleAttributes.value_or(std::vector<Value>())) {
        if (value.menuStyleId == other && value.menuStyleId != styleId_)
            kept.push_back(value);
    }
    std::ranges::copy_if(values_, std::back_inserter(kept),
                         [](const Value& value) { return value.value || value.valueListId; });
    if (kept.empty())
        draft.valuesMenuStyleAttributes.reset();
    else
        draft.valuesMenuStyleAttributes = std::move(kept);
}

void StyleAttributesModel::valueChanged(int row) {
    serialize();
    emit dataChanged(index(row), index(row), {ValueRole, ErrorRole, ChoiceRole, SwitchRole, ImageRole});
    emit edited();
}

void StyleAttributesModel::type(int row, const QString& text) {
    if (row < 0 || row >= count())
        return;
    values_[std::size_t(row)].value = text.isEmpty() ? std::nullopt : std::optional(text.toStdString());
    valueChanged(row);
}

void StyleAttributesModel::choose(int row, int choice) {
    if (row < 0 || row >= count())
        return;
    const PickerRows& choices = choices_[std::size_t(row)];
    if (!choices.has(choice))
        return;
    values_[std::size_t(row)].value = choices.names()[choice].toStdString();
    values_[std::size_t(row)].valueListId = choices.idAt(choice);
    valueChanged(row);
}

void StyleAttributesModel::switchImage(int row, bool on) {
    if (row < 0 || row >= count())
        return;
    if (!on)
        return setImage(row, {});
    const auto& customer = context_.draft->customerInformation;
    if (customer && customer->imageLogo && !customer->imageLogo->empty())
        return setImage(row, *customer->imageLogo);
    photos_.pick(this, [this, style = styleId_, row](const std::optional<QImage>& image) {
        if (image && style == styleId_)
            setImage(row, pngDataText(*image, longestImageSide));
    });
}

void StyleAttributesModel::setImage(int row, const std::string& dataText) {
    Value& value = values_[std::size_t(row)];
    value.value = dataText.empty() ? std::nullopt : std::optional(dataText);
    switchValues_[value.attributeId] = !dataText.empty();
    valueChanged(row);
}

const ApplicationInformation::AttributeType* StyleAttributesModel::typeOf(const Attribute& attribute) const {
    const auto& types = context_.catalogue->information().attributesTypes;
    const auto found = std::ranges::find(types, attribute.typeId, &ApplicationInformation::AttributeType::id);
    return found == types.end() ? nullptr : &*found;
}

QString StyleAttributesModel::kindOf(const Attribute& attribute) const {
    if (!attribute.values.empty())
        return pickerAttributeCell;
    const auto* type = typeOf(attribute);
    return type && type->format == "image" ? imageAttributeCell : attributeCell;
}

QString StyleAttributesModel::errorOf(const Attribute& attribute, const Value& value) const {
    const auto* type = typeOf(attribute);
    if (!type || !type->regex || !value.value || kindOf(attribute) != attributeCell)
        return {};
    const QRegularExpression expression(fromUtf8(*type->regex));
    if (!expression.isValid() || expression.match(fromUtf8(*value.value)).hasMatch())
        return {};
    return QStringLiteral("El formato para este campo es ") +
           fromUtf8(type->description.value_or(type->name));
}

int StyleAttributesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant StyleAttributesModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= count())
        return {};
    const Attribute& attribute = attributes_[std::size_t(index.row())];
    const Value& value = values_[std::size_t(index.row())];
    switch (role) {
    case KindRole:
        return kindOf(attribute);
    case LabelRole:
        return fromUtf8(attribute.name);
    case MaximumLengthRole:
        return int(attribute.maxLength);
    case NumericRole:
        return attribute.typeId == priceAttributeType;
    case ValueRole:
        return fromUtf8(value.value.value_or(std::string()));
    case ErrorRole:
        return errorOf(attribute, value);
    case ChoicesRole:
        return choices_[std::size_t(index.row())].names();
    case ChoiceRole:
        return choices_[std::size_t(index.row())].rowOf(value.valueListId);
    case SwitchRole:
        return switchValues_.contains(attribute.id) && switchValues_.at(attribute.id);
    case ImageRole:
        return kindOf(attribute) == imageAttributeCell ? dataImageUrl(value.value.value_or(std::string()))
                                                       : QString();
    default:
        return {};
    }
}

QHash<int, QByteArray> StyleAttributesModel::roleNames() const {
    return {{KindRole, "kind"},       {LabelRole, "label"},   {MaximumLengthRole, "maximumLength"},
            {NumericRole, "numeric"}, {ValueRole, "value"},   {ErrorRole, "error"},
            {ChoicesRole, "choices"}, {ChoiceRole, "choice"}, {SwitchRole, "switchOn"},
            {ImageRole, "image"}};
}

} // namespace kavor
