#pragma once

#include "activations/ActivationForm.h"
#include "screens/RowListModel.h"

#include <map>
#include <string>
#include <vector>

namespace kavor {

// The attributes that an activation asks for: a row each, in the order of the catalogue, with the roles
// "label", "value", "help", "required" and "hints" (input method).
class ActivationAttributeModel : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the form of an activation")

public:
    enum Role { LabelRole = Qt::UserRole + 1, ValueRole, HelpRole, RequiredRole, HintsRole };
    using Attribute = ActivationInformation::Attribute;
    using RowListModel::RowListModel;

    // The attributes outlive the model. Of an id that stands twice the first is asked for.
    void ask(const std::vector<Attribute>& attributes, const std::map<Int, std::string>& values);
    // What is stored, by the attribute's number; those of other activations too, as they came.
    [[nodiscard]] const std::map<Int, std::string>& attributesToSend() const { return attributesToSend_; }

    // While one types.
    Q_INVOKABLE void type(int row, const QString& text);
    // The field was left.
    Q_INVOKABLE void finish(int row, const QString& text);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

signals:
    void edited();
    // A value that was just stored misses its format, which is described so.
    void formatMissed(const QString& description);

private:
    struct Row {
        const Attribute* attribute = nullptr;
        std::string shown;
        std::string judged; // as it stood when the field was left last
    };
    struct Key {
        const Attribute* operator()(const Row& row) const { return row.attribute; }
    };
    const Row* store(int row, const QString& text);

    std::map<Int, std::string> attributesToSend_;
    RowList<Row, Key> rows_{*this};
};

} // namespace kavor
