#include "documents/PageFlow.h"

#include <algorithm>

namespace kavor::demo {

namespace {

constexpr double columnGap = 16;
constexpr double groupGap = 10;

class Setter {
public:
    Setter(const QSizeF& body, double scale, double air, double leastColumn)
        : size_(body / scale)
        , air_(air)
        , ends_(std::max<size_t>(1, size_t((size_.width() + columnGap + 0.5) / (leastColumn + columnGap))),
                0.0) {
        flow_.scale = scale;
    }

    void add(const Group& group) {
        if (group.spread != Group::Spread::column) {
            level();
        }
        bool headed = group.heading.isEmpty();
        size_t column = shortest();
        for (const Block& block : group.blocks) {
            const double height =
                std::min(block.height + block.elastic * (air_ - 1), size_.height() - Flow::headingHeight);
            if (group.spread == Group::Spread::even && headed) {
                column = shortest();
            }
            if (!headed || ends_[column] + height > size_.height()) {
                column = columnFor(height + (group.heading.isEmpty() ? 0 : Flow::headingHeight));
                putHeading(column, group);
                headed = true;
            }
            flow_.places.push_back({page(), areaAt(column, height, group.spread), &group, &block});
            ends_[column] += height + group.gap;
            if (group.spread == Group::Spread::wide) {
                level();
            }
        }
        ends_[column] += groupGap;
        if (group.spread != Group::Spread::column) {
            level();
        }
    }

    Flow flow() {
        flow_.ends.push_back(end());
        return flow_;
    }

private:
    int page() const { return int(flow_.ends.size()); }
    double end() const { return *std::ranges::max_element(ends_); }
    void level() { std::ranges::fill(ends_, end()); }
    size_t shortest() const { return size_t(std::ranges::min_element(ends_) - ends_.begin()); }

    /// The shortest column with room for so much, on a new page when none has it.
    size_t columnFor(double height) {
        const size_t column = shortest();
        if (ends_[column] + height <= size_.height()) {
            return column;
        }
        flow_.ends.push_back(end());
        std::ranges::fill(ends_, 0.0);
        return 0;
    }

    void putHeading(size_t column, const Group& group) {
        if (group.heading.isEmpty()) {
            return;
        }
        const auto spread = group.spread == Group::Spread::even ? Group::Spread::wide : group.spread;
        flow_.places.push_back({page(), areaAt(column, Flow::headingHeight, spread), &group, nullptr});
        ends_[column] += Flow::headingHeight;
        if (spread == Group::Spread::wide) {
            level();
        }
    }

    QRectF areaAt(size_t column, double height, Group::Spread spread) const {
        const double width = (size_.width() - columnGap * double(ends_.size() - 1)) / double(ends_.size());
        return spread == Group::Spread::wide
                   ? QRectF(0, ends_[column], size_.width(), height)
                   : QRectF((width + columnGap) * double(column), ends_[column], width, height);
    }

    QSizeF size_;
    double air_;
    std::vector<double> ends_; ///< where each column ends
    Flow flow_;
};

Flow set(const std::vector<Group>& groups, const QSizeF& body, double leastColumn, double scale, double air) {
    Setter setter(body, scale, air, leastColumn);
    for (const Group& group : groups) {
        setter.add(group);
    }
    return setter.flow();
}

/// How full the least filled page is; of the last one nobody expects it.
double fill(const Flow& flow, double height) {
    double least = height;
    for (size_t page = 0; page + 1 < flow.ends.size(); ++page) {
        least = std::min(least, flow.ends[page] * flow.scale);
    }
    return least / height;
}

} // namespace

Flow flowOf(const std::vector<Group>& groups, const QSizeF& body, double leastColumn) {
    // In twentieths: a page that a few lines would begin is saved by setting them a little smaller.
    constexpr int smallest = 18, usual = 20, largest = 38, airiest = 30;
    constexpr double wellFilled = 0.88;
    const auto flowAt = [&](int scale, int air) {
        return set(groups, body, leastColumn, scale / 20.0, air / 20.0);
    };
    const size_t pages = flowAt(smallest, usual).ends.size();
    int chosen = smallest;
    double best = 0;
    for (int scale = largest; scale >= smallest && best < wellFilled; --scale) {
        const Flow flow = flowAt(scale, usual);
        if (flow.ends.size() <= pages && fill(flow, body.height()) > best) {
            best = fill(flow, body.height());
            chosen = scale;
        }
    }
    int air = airiest;
    while (air > usual && flowAt(chosen, air).ends.size() > pages) {
        --air;
    }
    return flowAt(chosen, air);
}

} // namespace kavor::demo
