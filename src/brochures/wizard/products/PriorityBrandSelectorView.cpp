#include "brochures/wizard/products/PriorityBrandSelectorView.h"

#include "base/Text.h"
#include "brochures/wizard/StepSupport.h"

namespace kavor {

PriorityBrandSelectorView::PriorityBrandSelectorView(const std::vector<Brochures::BrandProperty>& properties,
                                                     ApplicationFather family,
                                                     PriorityFilterDelegate& delegate, QObject* parent)
    : QObject(parent)
    , delegate_(delegate)
    , propertyPicker_(QStringLiteral("Todos")) {
    for (const Brochures::BrandProperty& property : properties) {
        if (property.applicationFather != family)
            continue;
        propertyPicker_ << fromUtf8(property.name);
        propertyIds_.push_back(property.id);
    }
}

void PriorityBrandSelectorView::tell() {
    emit changed();
    delegate_.brandFilterDidChange();
}

void PriorityBrandSelectorView::setAppliedFilter(Filter filter) {
    if (std::exchange(appliedFilter_, filter) != filter)
        tell();
}

void PriorityBrandSelectorView::setPropertyIndex(int index) {
    if (index >= 0 && index < propertyPicker_.size() && std::exchange(propertyIndex_, index) != index)
        tell();
}

void PriorityBrandSelectorView::setSearchBrandTextField(const QString& search) {
    if (searchBrandTextField_ == search)
        return;
    searchBrandTextField_ = search;
    tell();
}

BrandFilter PriorityBrandSelectorView::brandFilter() const {
    BrandFilter filter;
    filter.priorityOnly = appliedFilter_ == Filter::priority;
    if (propertyIndex_ > 0)
        filter.propertyId = propertyIds_[std::size_t(propertyIndex_) - 1];
    filter.search = text::sanitised(searchBrandTextField_.toStdString());
    return filter;
}

} // namespace kavor
