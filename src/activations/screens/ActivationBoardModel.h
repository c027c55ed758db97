#pragma once

#include "catalogue/ActivationsInformation.h"
#include "screens/RowListModel.h"

#include <QRect>
#include <QSize>
#include <QString>

#include <optional>
#include <vector>

namespace kavor {

// A badge that says how many activations are made of how many.
struct BoardBadge {
    QRect place;
    int fontSize = 0;
    QString text;
    bool hasRoom = false;

    bool operator==(const BoardBadge&) const = default;
};

// A picture on a board that can be tapped.
struct BoardControl {
    Int id = 0;
    QString name;
    QString source;
    QRect place;
    int rotate = 0; // degrees, clockwise about the middle
    bool selected = false;
    std::optional<BoardBadge> badge;

    bool operator==(const BoardControl&) const = default;
};

// The controls of a board, which is as large as the largest right and lower edge of all of them. A row each;
// places are in the board's own units.
class ActivationBoardModel : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the screen")
    Q_PROPERTY(QSize size READ size NOTIFY sizeChanged)

public:
    enum Role {
        IdRole = Qt::UserRole + 1,
        NameRole,
        SourceRole,
        PlaceRole,
        RotateRole,
        SelectedRole,
        BadgePlaceRole,
        BadgeFontSizeRole,
        BadgeTextRole, // empty without a badge
        BadgeOnRole,
    };
    using RowListModel::RowListModel;

    // Of an id that stands twice the first counts.
    void show(std::vector<BoardControl> controls);
    [[nodiscard]] const std::vector<BoardControl>& controls() const { return rows_.all(); }
    [[nodiscard]] QSize size() const { return size_; }

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

signals:
    void sizeChanged();

private:
    struct Key {
        Int operator()(const BoardControl& control) const { return control.id; }
    };

    QSize size_;
    RowList<BoardControl, Key> rows_{*this};
};

// A place of the catalogue, kept within what a window can show.
QRect boardPlace(Int x, Int y, Int width, Int height);

} // namespace kavor
