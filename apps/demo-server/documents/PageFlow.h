#pragma once

#include <QPainter>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <functional>
#include <vector>

namespace kavor::demo {

/// Something that is printed whole: as high as it is at least, and drawn into the place that it gets.
struct Block {
    double height = 0;
    std::function<void(QPainter&, const QRectF&)> draw;
    double elastic = height; ///< so much of the height grows where there is room
};

/// Blocks under one heading, which is printed again where they go on elsewhere.
struct Group {
    QString heading;
    std::vector<Block> blocks;
    enum class Spread {
        column, ///< in one column as far as it reaches
        even,   ///< heading over all columns, each block in the shortest one
        wide    ///< all over all columns
    };
    Spread spread = Spread::column;
    double gap = 12; ///< between two blocks
};

/// Where blocks stand on the pages that they fill, in units of which `scale` make one of the page.
struct Flow {
    static constexpr double headingHeight = 44;

    struct Place {
        int page = 0;
        QRectF area;
        const Group* group = nullptr;
        const Block* block = nullptr; ///< null: the group's heading
    };
    std::vector<Place> places;
    std::vector<double> ends; ///< of each page's content
    double scale = 1;
};

/// Lays groups into columns at least so wide, in a body of a size. On as few pages as its smallest size
/// needs, and on these as large and airy as they are well filled.
Flow flowOf(const std::vector<Group>& groups, const QSizeF& body, double leastColumn);

} // namespace kavor::demo
