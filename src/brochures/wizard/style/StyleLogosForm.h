#pragma once

#include "brochures/wizard/style/StyleContext.h"
#include "screens/PickerRows.h"

#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <array>
#include <vector>

namespace kavor {

// The three pickers of the brand logos on the cover. A printed style without logos has no pickers.
class StyleLogosForm : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the style step")
    // logoSelectorHideableViews
    Q_PROPERTY(bool visible READ isVisible NOTIFY changed)
    Q_PROPERTY(QStringList logos READ logos NOTIFY changed)
    Q_PROPERTY(int firstBrandPicker READ firstBrandPicker NOTIFY changed)
    Q_PROPERTY(int secondBrandPicker READ secondBrandPicker NOTIFY changed)
    Q_PROPERTY(int thirdBrandPicker READ thirdBrandPicker NOTIFY changed)
    // The pictures of the three chosen logos.
    Q_PROPERTY(QStringList chosenImages READ chosenImages NOTIFY changed)

public:
    using QObject::QObject;

    // Offers the logos of the current printed style; clears those of the draft when it has none.
    void setStyle(const StyleContext& context, const Brochures::Style* style);
    // Writes the rows of the pickers into the draft.
    void serialize();

    // A choice in the first (0), second or third picker.
    Q_INVOKABLE void choose(int picker, int row);

    [[nodiscard]] bool isVisible() const { return !logos_.empty(); }
    [[nodiscard]] const QStringList& logos() const { return offered_.names(); }
    [[nodiscard]] int firstBrandPicker() const { return rows_[0]; }
    [[nodiscard]] int secondBrandPicker() const { return rows_[1]; }
    [[nodiscard]] int thirdBrandPicker() const { return rows_[2]; }
    [[nodiscard]] QStringList chosenImages() const;

signals:
    void changed();
    // The draft has a new choice.
    void edited();

private:
    [[nodiscard]] int rowOf(Int logo, int otherwise) const;

    StyleContext context_;
    std::vector<Brochures::Logo> logos_;
    PickerRows offered_; // of them
    std::array<int, 3> rows_{};
};

} // namespace kavor
