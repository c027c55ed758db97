#pragma once

#include "brochures/wizard/products/BrandListModel.h"

#include <QObject>
#include <QStringList>

namespace kavor {

// Told when the filter bar of the brands changes.
class PriorityFilterDelegate {
public:
    virtual ~PriorityFilterDelegate() = default;
    virtual void brandFilterDidChange() = 0;
};

// The filter bar over the list of brands: all or the customer's priority brands, a property, a search text.
class PriorityBrandSelectorView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the product step")
    // Whether appliedFilter is "priority".
    Q_PROPERTY(bool priorityApplied READ isPriorityApplied WRITE setPriorityApplied NOTIFY changed)
    // The rows of propertyPicker; the first one is "Todos".
    Q_PROPERTY(QStringList propertyPicker READ propertyPicker CONSTANT)
    Q_PROPERTY(int propertyIndex READ propertyIndex WRITE setPropertyIndex NOTIFY changed)
    Q_PROPERTY(
        QString searchBrandTextField READ searchBrandTextField WRITE setSearchBrandTextField NOTIFY changed)

public:
    enum class Filter { all, priority };

    // Offers the properties of one family. The delegate outlives the bar.
    PriorityBrandSelectorView(const std::vector<Brochures::BrandProperty>& properties,
                              ApplicationFather family, PriorityFilterDelegate& delegate, QObject* parent);

    [[nodiscard]] bool isPriorityApplied() const { return appliedFilter_ == Filter::priority; }
    [[nodiscard]] const QStringList& propertyPicker() const { return propertyPicker_; }
    [[nodiscard]] int propertyIndex() const { return propertyIndex_; }
    [[nodiscard]] const QString& searchBrandTextField() const { return searchBrandTextField_; }
    void setAppliedFilter(Filter filter);
    void setPriorityApplied(bool on) { setAppliedFilter(on ? Filter::priority : Filter::all); }
    void setPropertyIndex(int index);
    void setSearchBrandTextField(const QString& search);

    // What the three say together.
    [[nodiscard]] BrandFilter brandFilter() const;

signals:
    void changed();

private:
    void tell();

    PriorityFilterDelegate& delegate_;
    QStringList propertyPicker_;
    std::vector<Int> propertyIds_; // of the rows from the second on
    Filter appliedFilter_ = Filter::all;
    int propertyIndex_ = 0;
    QString searchBrandTextField_;
};

} // namespace kavor
