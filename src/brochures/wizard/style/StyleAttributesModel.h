#pragma once

#include "brochures/engine/SaveBrochuresOrder.h"
#include "brochures/wizard/style/StyleContext.h"
#include "screens/AttributeTableModel.h"

namespace kavor {

// The attributes that a style asks for, with the values of the draft.
class StyleAttributesModel : public kavor::AttributeTableModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the style step")

public:
    // The photos outlive the model.
    StyleAttributesModel(PhotoPicker& photos, QObject* parent);

    void setStyle(const StyleContext& context, const Brochures::Style* style);
    // Writes the values into the draft, as each edit does; those of styles that are no longer chosen go.
    void serialize();

private:
    using Value = SaveBrochuresOrder::Menu::MenuStyleAttribute;

    [[nodiscard]] std::string logo() const;

    StyleContext context_;
    Int styleId_ = 0;
};

} // namespace kavor
