#include "documents/MenuPaper.h"

#include "catalogue/Content.h"
#include "documents/PdfSheet.h"
#include "drawing/Tools.h"

#include <algorithm>
#include <set>

namespace kavor::demo {

namespace {

constexpr double priceWidth = 56;

std::vector<int> priceTypes(const Json& menu) {
    std::set<int> found;
    const auto add = [&found](const Json& records, const char* inner) {
        for (const Json& record : records) {
            for (const Json& element : record[inner]) {
                for (const Json& price : element["sub_item_prices"]) {
                    found.insert(price["price_type"].get<int>());
                }
            }
        }
    };
    add(menu["items"], "sub_items");
    add(menu.value("other_drinks", Json::array()), "other_products");
    return {found.begin(), found.end()};
}

} // namespace

MenuPaper::MenuPaper(const Json& order, const Catalogue& catalogue)
    : order_(order)
    , catalogue_(catalogue)
    , style_(catalogue.style(menu().value("style", menu().value("style_digital_id", 0))))
    , theme_(themes()[style_ ? size_t(style_->theme) : 0])
    , kind_(BrochureKind(menu()["order_type"].get<int>()))
    , withoutPrices_(menu().value("without_price_beer", false))
    , columns_(priceTypes(menu())) {}

double MenuPaper::pricesWidth() const {
    return withoutPrices_ ? 0 : priceWidth * double(columns_.size());
}

void MenuPaper::drawColumnNames(QPainter& painter, double right, double top) const {
    if (withoutPrices_ || columns_.size() < 2) {
        return;
    }
    painter.setPen(softInk());
    for (size_t i = 0; i < columns_.size(); ++i) {
        const double x = right - priceWidth * double(columns_.size() - i);
        drawFitted(painter, QRectF(x, top, priceWidth, 15), Qt::AlignRight | Qt::AlignVCenter,
                   text(priceName(columns_[i])), face(Face::body, 12, true));
    }
}

void MenuPaper::drawPrices(QPainter& painter, const Prices& prices, const QRectF& line, double size) const {
    if (withoutPrices_) {
        return;
    }
    painter.setPen(colour(theme_.ink));
    for (const auto& [type, price] : prices) {
        const auto column = std::ranges::find(columns_, type) - columns_.begin();
        const double x = line.right() - priceWidth * double(columns_.size() - size_t(column));
        drawFitted(painter, QRectF(x + 4, line.top(), priceWidth - 4, line.height()),
                   Qt::AlignRight | Qt::AlignVCenter, euros(price), face(Face::body, size, true));
    }
}

QColor MenuPaper::softInk() const {
    return mixed(colour(theme_.ink), colour(theme_.paper), 0.3);
}

QColor MenuPaper::cardGround() const {
    return mixed(colour(theme_.paper), theme_.dark ? Qt::black : Qt::white, 0.55);
}

MenuPaper::Prices pricesOf(const Json& sold) {
    MenuPaper::Prices prices;
    for (const Json& price : sold["sub_item_prices"]) {
        if (price.contains("price")) {
            prices[price["price_type"].get<int>()] = price["price"].get<double>();
        }
    }
    return prices;
}

} // namespace kavor::demo
