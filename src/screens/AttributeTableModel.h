#pragma once

#include "catalogue/ApplicationInformation.h"
#include "interaction/PendingRun.h"
#include "screens/RowListModel.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kavor {

class PhotoPicker;

// What the user gave for an attribute: a text or a picture, or a choice with its text.
struct AttributeValue {
    Int attributeId = 0;
    std::optional<std::string> value;
    std::optional<Int> valueListId;
};

// An attribute that a style or promotion asks for.
struct AttributeRow {
    using Type = ApplicationInformation::AttributeType;

    Int ownerId = 0;               // of what asks for it
    Attribute attribute = {};      // its choices by position
    std::optional<Type> type = {}; // where the catalogue has it
    AttributeValue given = {};

    struct Key {
        std::pair<Int, Int> operator()(const AttributeRow& row) const {
            return {row.ownerId, row.attribute.id};
        }
    };
};

// The attributes that something asks for, as rows of a form (AttributeRows.qml): typed texts and prices,
// choices and pictures.
class AttributeTableModel : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the screen that asks")

public:
    enum Role {
        KindRole = Qt::UserRole + 1, // "attributeCell", "imageAttributeCell" or "pickerAttributeCell"
        LabelRole,
        MaximumLengthRole,
        NumericRole,
        ValueRole,
        ErrorRole,
        ChoicesRole,
        ChoiceRole,
        SwitchRole,
        ImageRole,
    };
    // The bar's logo as picture text; empty for none.
    using Logo = std::function<std::string()>;

    // The photos outlive the model.
    AttributeTableModel(PhotoPicker& photos, Logo logo, QObject* parent);

    // Asks for the attributes of an owner, with the values that there are; the others are empty.
    void ask(Int ownerId, const std::vector<Attribute>& attributes,
             const std::vector<AttributeRow::Type>& types, const std::vector<AttributeValue>& values);
    // What the user gave, in the order of the rows; without the empty ones.
    [[nodiscard]] std::vector<AttributeValue> values() const;

    Q_INVOKABLE void type(int row, const QString& text);
    Q_INVOKABLE void choose(int row, int choice);
    // Puts a picture in or out: the bar's logo where there is one, otherwise a photo that the user picks.
    Q_INVOKABLE void switchImage(int row, bool on);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

signals:
    // The user gave another value.
    void edited();

private:
    // The row of an attribute; -1 when nobody asks for it.
    [[nodiscard]] int rowOf(Int attribute) const;
    // Shows a photo once it is made small enough to travel.
    void takePhoto(Int attribute, const QImage& photo);
    void setImage(int row, const std::string& picture);
    void setValue(int row, std::optional<std::string> value, std::optional<Int> choice);

    PhotoPicker& photos_;
    Logo logo_;
    Int ownerId_ = 0;
    std::map<Int, PendingRun>
        photosInTheMaking_; // by attribute; another picture for it, or none, ends its run
    RowList<AttributeRow, AttributeRow::Key> rows_{*this};
};

} // namespace kavor
