#pragma once

#include "brochures/engine/SaveBrochuresOrder.h"
#include "brochures/wizard/style/StyleContext.h"
#include "screens/PickerRows.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <map>
#include <vector>

class QImage;

namespace kavor {

class PhotoPicker;

// The attributes that a style asks for, with the values of the draft: typed ones, choices and pictures.
class StyleAttributesModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the style step")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

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

    // The photos outlive the model.
    StyleAttributesModel(PhotoPicker& photos, QObject* parent);

    void setStyle(const StyleContext& context, const Brochures::Style* style);
    // Writes the values into the draft; those of styles that are no longer chosen go.
    void serialize();

    Q_INVOKABLE void type(int row, const QString& text);
    Q_INVOKABLE void choose(int row, int choice);
    // Puts a picture in or out: the bar's logo where there is one, otherwise a photo that the user picks.
    Q_INVOKABLE void switchImage(int row, bool on);

    [[nodiscard]] int count() const { return int(attributes_.size()); }
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

signals:
    void countChanged();
    // The draft has a new value.
    void edited();

private:
    using Value = SaveBrochuresOrder::Menu::MenuStyleAttribute;

    [[nodiscard]] const ApplicationInformation::AttributeType* typeOf(const Attribute& attribute) const;
    [[nodiscard]] QString kindOf(const Attribute& attribute) const;
    [[nodiscard]] QString errorOf(const Attribute& attribute, const Value& value) const;
    void setImage(int row, const std::string& dataText);
    void valueChanged(int row);

    PhotoPicker& photos_;
    StyleContext context_;
    Int styleId_ = 0;
    std::vector<Attribute> attributes_;
    std::vector<PickerRows> choices_;  // one for each attribute, as
    std::vector<Value> values_;        // here
    std::map<Int, bool> switchValues_; // by attribute
};

} // namespace kavor
