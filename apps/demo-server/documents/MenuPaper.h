#pragma once

#include "Json.h"
#include "catalogue/Catalogue.h"
#include "documents/PageFlow.h"

#include <QColor>

#include <map>
#include <vector>

namespace kavor::demo {

/// What every part of a printed menu is made with. Order and catalogue outlive it.
class MenuPaper {
public:
    MenuPaper(const Json& order, const Catalogue& catalogue);

    const Json& order() const { return order_; }
    const Json& menu() const { return order_["menu"]; }
    const Catalogue& catalogue() const { return catalogue_; }
    const Style* style() const { return style_; }
    const Theme& theme() const { return theme_; }
    BrochureKind kind() const { return kind_; }
    bool withoutPrices() const { return withoutPrices_; }

    /// Prices by type.
    using Prices = std::map<int, double>;
    /// How wide the columns of prices are.
    double pricesWidth() const;
    /// The names of the price columns over a block of prices that ends at `right`; nothing for one column.
    void drawColumnNames(QPainter& painter, double right, double top) const;
    void drawPrices(QPainter& painter, const Prices& prices, const QRectF& line, double size) const;

    /// Ink for what is read second.
    QColor softInk() const;
    /// The ground of what lies on the paper.
    QColor cardGround() const;

private:
    const Json& order_;
    const Catalogue& catalogue_;
    const Style* style_;
    const Theme& theme_;
    BrochureKind kind_;
    bool withoutPrices_ = false;
    std::vector<int> columns_; ///< the price types that the menu has
};

/// The prices of a sold format.
MenuPaper::Prices pricesOf(const Json& sold);

/// The brands by their style, as cards or as a list; before them the highlighted product.
std::vector<Group> brandGroups(const MenuPaper& paper);

/// What is printed beside the brands.
std::vector<Group> drinkGroups(const MenuPaper& paper);
std::vector<Group> promotionGroups(const MenuPaper& paper);
std::vector<Group> pennantGroups(const MenuPaper& paper);

} // namespace kavor::demo
