#include "screens/AttributeTableModel.h"

#include "device/Background.h"
#include "device/PhotoPicker.h"
#include "interaction/QtText.h"
#include "screens/PictureText.h"
#include "screens/ResourceImages.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace kavor {

namespace {

constexpr Int priceAttributeType = 3;
constexpr int longestImageSide = 800; // pixels

const QString attributeCell = QStringLiteral("attributeCell");
const QString imageAttributeCell = QStringLiteral("imageAttributeCell");
const QString pickerAttributeCell = QStringLiteral("pickerAttributeCell");

QString kindOf(const AttributeRow& row) {
    if (!row.attribute.values.empty())
        return pickerAttributeCell;
    return row.type && row.type->format == "image" ? imageAttributeCell : attributeCell;
}

QString errorOf(const AttributeRow& row) {
    if (!row.type || !row.type->regex || !row.given.value || kindOf(row) != attributeCell)
        return {};
    const QRegularExpression expression(fromUtf8(*row.type->regex));
    if (!expression.isValid() || expression.match(fromUtf8(*row.given.value)).hasMatch())
        return {};
    return QStringLiteral("El formato para este campo es ") +
           fromUtf8(row.type->description.value_or(row.type->name));
}

QStringList choicesOf(const AttributeRow& row) {
    QStringList choices;
    for (const Attribute::SortableElement& element : row.attribute.values)
        choices << fromUtf8(element.value);
    return choices;
}

int choiceOf(const AttributeRow& row) {
    const auto& choices = row.attribute.values;
    const auto found = std::ranges::find_if(choices, [&](const Attribute::SortableElement& element) {
        return element.identifier == row.given.valueListId;
    });
    return found == choices.end() ? -1 : int(found - choices.begin());
}

// Whether a value may stand in its row: a choice that is no longer offered is none.
bool isOffered(const AttributeRow& row, const AttributeValue& value) {
    const auto& choices = row.attribute.values;
    return choices.empty() || !value.valueListId ||
           std::ranges::find(choices, *value.valueListId, &Attribute::SortableElement::identifier) !=
               choices.end();
}

} // namespace

AttributeTableModel::AttributeTableModel(PhotoPicker& photos, Logo logo, QObject* parent)
    : RowListModel(parent)
    , photos_(photos)
    , logo_(std::move(logo)) {}

void AttributeTableModel::ask(Int ownerId, const std::vector<Attribute>& attributes,
                              const std::vector<AttributeRow::Type>& types,
                              const std::vector<AttributeValue>& values) {
    if (std::exchange(ownerId_, ownerId) != ownerId)
        photosInTheMaking_.clear();
    std::vector<AttributeRow> wanted;
    for (const Attribute& attribute : attributes) {
        AttributeRow row{ownerId, attribute, std::nullopt, {attribute.id, std::nullopt, std::nullopt}};
        std::ranges::stable_sort(row.attribute.values, {}, &Attribute::SortableElement::position);
        const auto type = std::ranges::find(types, attribute.typeId, &AttributeRow::Type::id);
        if (type != types.end())
            row.type = *type;
        const auto value = std::ranges::find(values, attribute.id, &AttributeValue::attributeId);
        if (value != values.end() && isOffered(row, *value))
            row.given = *value;
        wanted.push_back(std::move(row));
    }
    rows_.show(std::move(wanted));
}

std::vector<AttributeValue> AttributeTableModel::values() const {
    std::vector<AttributeValue> result;
    for (const AttributeRow& row : rows_.all()) {
        if (row.given.value || row.given.valueListId)
            result.push_back(row.given);
    }
    return result;
}

void AttributeTableModel::setValue(int row, std::optional<std::string> value, std::optional<Int> choice) {
    AttributeRow content = *rows_.at(row);
    content.given.value = std::move(value);
    content.given.valueListId = choice;
    rows_.set(row, std::move(content), {ValueRole, ErrorRole, ChoiceRole, SwitchRole, ImageRole});
    emit edited();
}

void AttributeTableModel::type(int row, const QString& text) {
    if (const AttributeRow* content = rows_.at(row))
        setValue(row, text.isEmpty() ? std::nullopt : std::optional(text.toStdString()),
                 content->given.valueListId);
}

void AttributeTableModel::choose(int row, int choice) {
    const AttributeRow* content = rows_.at(row);
    if (!content || choice < 0 || choice >= int(content->attribute.values.size()))
        return;
    const Attribute::SortableElement chosen = content->attribute.values[std::size_t(choice)];
    setValue(row, chosen.value, chosen.identifier);
}

void AttributeTableModel::switchImage(int row, bool on) {
    const AttributeRow* content = rows_.at(row);
    if (!content)
        return;
    if (!on)
        return setImage(row, {});
    if (const std::string logo = logo_(); !logo.empty())
        return setImage(row, logo);
    photos_.pick(this, [this, owner = ownerId_,
                        attribute = content->attribute.id](const std::optional<QImage>& photo) {
        if (photo && owner == ownerId_)
            takePhoto(attribute, *photo);
    });
}

void AttributeTableModel::takePhoto(Int attribute, const QImage& photo) {
    runInBackground(
        photosInTheMaking_[attribute].begin(), [photo] { return picture_text::of(photo, longestImageSide); },
        [this, attribute](const std::string& picture) {
            if (const int row = rowOf(attribute); row >= 0)
                setImage(row, picture);
        });
}

int AttributeTableModel::rowOf(Int attribute) const {
    const auto found =
        std::ranges::find(rows_.all(), attribute, [](const AttributeRow& row) { return row.attribute.id; });
    return found == rows_.all().end() ? -1 : int(found - rows_.all().begin());
}

void AttributeTableModel::setImage(int row, const std::string& picture) {
    photosInTheMaking_.erase(rows_.at(row)->attribute.id);
    setValue(row, picture.empty() ? std::nullopt : std::optional(picture), rows_.at(row)->given.valueListId);
}

QVariant AttributeTableModel::data(const QModelIndex& index, int role) const {
    const AttributeRow* row = rows_.at(index);
    if (!row)
        return {};
    const std::string value = row->given.value.value_or(std::string());
    switch (role) {
    case KindRole:
        return kindOf(*row);
    case LabelRole:
        return fromUtf8(row->attribute.name);
    case MaximumLengthRole:
        return int(row->attribute.maxLength);
    case NumericRole:
        return row->attribute.typeId == priceAttributeType;
    case ValueRole:
        return fromUtf8(value);
    case ErrorRole:
        return errorOf(*row);
    case ChoicesRole:
        return choicesOf(*row);
    case ChoiceRole:
        return choiceOf(*row);
    case SwitchRole:
        return row->given.value.has_value();
    case ImageRole:
        return kindOf(*row) == imageAttributeCell ? dataImageUrl(value) : QString();
    default:
        return {};
    }
}

QHash<int, QByteArray> AttributeTableModel::roleNames() const {
    return {{KindRole, "kind"},       {LabelRole, "label"},   {MaximumLengthRole, "maximumLength"},
            {NumericRole, "numeric"}, {ValueRole, "value"},   {ErrorRole, "error"},
            {ChoicesRole, "choices"}, {ChoiceRole, "choice"}, {SwitchRole, "switchOn"},
            {ImageRole, "image"}};
}

} // namespace kavor
