#include "brochures/wizard/style/StyleAttributesModel.h"

#include "brochures/engine/BrochureIntermediateData.h"

namespace kavor {

StyleAttributesModel::StyleAttributesModel(PhotoPicker& photos, QObject* parent)
    : AttributeTableModel(
          photos, [this] { return logo(); }, parent) {
    connect(this, &AttributeTableModel::edited, this, &StyleAttributesModel::serialize);
}

std::string StyleAttributesModel::logo() const {
    const auto& customer = context_.draft->customerInformation;
    return customer ? customer->imageLogo.value_or(std::string()) : std::string();
}

void StyleAttributesModel::setStyle(const StyleContext& context, const Brochures::Style* style) {
    context_ = context;
    styleId_ = style ? style->id : 0;
    std::vector<AttributeValue> stored;
    for (const Value& value : context.draft->valuesMenuStyleAttributes.value_or(std::vector<Value>())) {
        if (value.menuStyleId == styleId_)
            stored.push_back({value.attributeId, value.value, value.valueListId});
    }
    ask(styleId_, style ? style->attributesList : std::vector<Attribute>(),
        context.catalogue->information().attributesTypes, stored);
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
    for (const AttributeValue& given : values())
        kept.push_back({given.attributeId, styleId_, given.value, given.valueListId});
    if (kept.empty())
        draft.valuesMenuStyleAttributes.reset();
    else
        draft.valuesMenuStyleAttributes = std::move(kept);
}

} // namespace kavor
