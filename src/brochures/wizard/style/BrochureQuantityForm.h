#pragma once

#include "brochures/wizard/style/StyleContext.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <array>
#include <vector>

namespace kavor {

// The number of brochures, once for each price column: pickers where the kind lists quantities, text fields
// otherwise.
class BrochureQuantityForm : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the style step")
    // numberOfBrochuresStackView
    Q_PROPERTY(bool visible READ isVisible NOTIFY changed)
    Q_PROPERTY(bool secondVisible READ isSecondVisible NOTIFY changed)
    Q_PROPERTY(QString minimumAndMaximumNumberOfBrochureLabel READ minimumAndMaximumNumberOfBrochureLabel
                   NOTIFY changed)
    Q_PROPERTY(QString numberOfBrochuresLabel READ numberOfBrochuresLabel NOTIFY changed)
    Q_PROPERTY(QString numberOfBrochuresSecondLabel READ numberOfBrochuresSecondLabel NOTIFY changed)
    // The rows of the pickers; empty when the text fields are used.
    Q_PROPERTY(QStringList quantities READ quantities NOTIFY changed)
    Q_PROPERTY(int selectorQuantity1Picker READ selectorQuantity1Picker NOTIFY changed)
    Q_PROPERTY(int selectorQuantity2Picker READ selectorQuantity2Picker NOTIFY changed)
    Q_PROPERTY(QString numberBrochuresTextField READ numberBrochuresTextField NOTIFY changed)
    // What is wrong with the quantity on show, beside its field; empty when nothing is. A number that may
    // still grow into the range while it is typed is not wrong yet.
    Q_PROPERTY(QString numberBrochuresError READ numberBrochuresError NOTIFY changed)
    Q_PROPERTY(QString secondPriceNumberBrochuresError READ secondPriceNumberBrochuresError NOTIFY changed)
    Q_PROPERTY(
        QString secondPriceNumberBrochuresTextField READ secondPriceNumberBrochuresTextField NOTIFY changed)

public:
    using QObject::QObject;

    void appear(const StyleContext& context);
    // Writes the quantities on show into the draft.
    void serialize();

    // A choice in the first (0) or second (1) picker, and a text in the first or second field.
    Q_INVOKABLE void choose(int picker, int row);
    Q_INVOKABLE void type(int field, const QString& text);
    // The first or second field was left.
    Q_INVOKABLE void leave(int field);

    [[nodiscard]] bool isVisible() const;
    [[nodiscard]] bool isSecondVisible() const { return secondVisible_; }
    [[nodiscard]] QString minimumAndMaximumNumberOfBrochureLabel() const;
    [[nodiscard]] QString numberOfBrochuresLabel() const;
    [[nodiscard]] QString numberOfBrochuresSecondLabel() const;
    [[nodiscard]] QStringList quantities() const;
    [[nodiscard]] QString numberBrochuresError() const { return errorOf(0); }
    [[nodiscard]] QString secondPriceNumberBrochuresError() const { return errorOf(1); }
    // -1 while the draft holds a quantity that the picker doesn't offer.
    [[nodiscard]] int selectorQuantity1Picker() const { return rows_[0]; }
    [[nodiscard]] int selectorQuantity2Picker() const { return rows_[1]; }
    [[nodiscard]] QString numberBrochuresTextField() const { return texts_[0]; }
    [[nodiscard]] QString secondPriceNumberBrochuresTextField() const { return texts_[1]; }

signals:
    void changed();
    // The draft has a new quantity.
    void edited();

private:
    [[nodiscard]] const std::vector<Int>& range() const { return context_.parameters().rangeOrderQuantity; }
    [[nodiscard]] Int quantity(std::size_t column) const;
    [[nodiscard]] QString errorOf(std::size_t column) const;
    [[nodiscard]] QString kindWord() const;

    StyleContext context_;
    bool secondVisible_ = false;
    std::array<Int, 2> numbers_{}; // as they stand in the draft, 0 for none
    std::array<int, 2> rows_{};
    int typing_ = -1; // the field being typed into
    std::array<QString, 2> texts_;
};

} // namespace kavor
