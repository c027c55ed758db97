#include "documents/MenuPdf.h"

#include "catalogue/Content.h"
#include "catalogue/Dice.h"
#include "documents/PdfSheet.h"
#include "drawing/Covers.h"
#include "drawing/Emblems.h"
#include "drawing/Motifs.h"
#include "drawing/QrCode.h"
#include "drawing/Tools.h"
#include "drawing/Vessels.h"

#include <algorithm>
#include <map>
#include <set>

namespace kavor::demo {

namespace {

/// The title of a menu in the languages of the catalogue, in the order of their ids.
const char* titleIn(int kind, int language) {
    static const std::map<Family, std::vector<const char*>> titles = {
        {Family::beer,
         {"Carta de Cervezas", "Carta de Cerveses", "Beer Menu", "Carta de Cervexas", "Garagardo Karta",
          "Carte des Bières", "Bierkarte"}},
        {Family::wine,
         {"Carta de Vinos", "Carta de Vins", "Wine List", "Carta de Viños", "Ardo Karta", "Carte des Vins",
          "Weinkarte"}},
        {Family::market,
         {"Carta de Bebidas", "Carta de Begudes", "Drinks Menu", "Carta de Bebidas", "Edari Karta",
          "Carte des Boissons", "Getränkekarte"}},
    };
    const auto& words = titles.at(familyOfKind(kind));
    if (kind == int(BrochureKind::menu) && language <= 1) {
        return "Carta de Menú";
    }
    return words[size_t(std::clamp(language, 1, int(words.size())) - 1)];
}

struct Group {
    std::string name;
    std::vector<const Json*> items;
};

class MenuWriter {
public:
    MenuWriter(const Json& order, const Catalogue& catalogue, const std::string& publicAddress)
        : order_(order)
        , menu_(order["menu"])
        , customer_(menu_["customer"])
        , catalogue_(catalogue)
        , address_(publicAddress)
        , style_(catalogue.style(menu_.value("style", menu_.value("style_digital_id", 0))))
        , theme_(themes()[style_ ? size_t(style_->theme) : 0])
        , kind_(BrochureKind(menu_["order_type"].get<int>()))
        , sheet_(text(titleIn(int(kind_), 1)) + " - " + text(customer_["name"].get<std::string>()),
                 style_ && isLandscape(*style_)) {
        if (menu_.contains("product_featured_id")) {
            featured_ = menu_["product_featured_id"].get<int>();
        }
        withoutPrices_ = menu_.value("without_price_beer", false);
        columns_ = priceColumns();
    }

    QByteArray write() {
        const CoverText words = coverText();
        drawCoverFront(sheet_.painter(), sheet_.page(), kind_, theme_, words);
        startPage();
        drawFeatured();
        drawGroups();
        drawDrinks();
        drawPromotions();
        drawPennants();
        sheet_.newPage();
        drawCoverBack(sheet_.painter(), sheet_.page(), kind_, theme_, words);
        drawBackQr();
        return sheet_.finish();
    }

private:
    static constexpr double margin = 52;

    QPainter& painter() { return sheet_.painter(); }
    QRectF page() const { return sheet_.page(); }
    double bottom() const { return page().bottom() - 70; }

    std::vector<int> priceColumns() const {
        std::set<int> found;
        for (const Json& item : menu_["items"]) {
            for (const Json& sold : item["sub_items"]) {
                for (const Json& price : sold["sub_item_prices"]) {
                    found.insert(price["price_type"].get<int>());
                }
            }
        }
        return {found.begin(), found.end()};
    }

    std::string customerText(const char* key) const { return customer_.value(key, ""); }

    CoverText coverText() const {
        CoverText words;
        words.title = titleIn(int(kind_), menu_["language1_id"].get<int>());
        if (menu_.contains("language2_id")) {
            words.title += std::string("\n") + titleIn(int(kind_), menu_["language2_id"].get<int>());
        }
        words.bar = customerText("name");
        words.tagline = customerText("placeLocality").empty() ? "Fría, bien tirada y en buena compañía"
                                                              : customerText("placeLocality");
        for (const Json& attribute : menu_.value("menu_style_attributes", Json::array())) {
            if (attribute.contains("value") && !attribute["value"].get<std::string>().empty()) {
                words.tagline = attribute["value"].get<std::string>();
            }
        }
        for (const Json& logo : menu_.value("bottles", Json::array())) {
            if (const Brand* brand = catalogue_.brand(logo["id"].get<int>() - logoIdOf(0))) {
                words.logos.push_back(&brand->look);
            }
        }
        const std::string logo = customerText("image_logo");
        if (const size_t comma = logo.find(','); comma != std::string::npos) {
            words.barLogo.loadFromData(
                QByteArray::fromBase64(QByteArray::fromStdString(logo.substr(comma + 1))));
        }
        for (const char* key : {"free_text_1", "free_text_2", "free_text_3", "local_phone", "url",
                                "instagram", "twitter", "facebook"}) {
            if (!customerText(key).empty()) {
                const std::string label = std::string(key) == "local_phone" ? "Tel. " : "";
                words.backLines.push_back(label + customerText(key));
            }
        }
        return words;
    }

    void startPage() {
        sheet_.newPage();
        drawPaper(painter(), page(), theme_, false);
        painter().setPen(Qt::NoPen);
        painter().setBrush(colour(theme_.ink));
        painter().drawRect(QRectF(0, 0, page().width(), 74));
        painter().setBrush(colour(theme_.accent));
        painter().drawRect(QRectF(0, 74, page().width(), 6));
        painter().setPen(colour(theme_.paper));
        drawFitted(painter(), QRectF(margin, 14, page().width() - 2 * margin, 48),
                   Qt::AlignLeft | Qt::AlignVCenter,
                   text(titleIn(int(kind_), menu_["language1_id"].get<int>())),
                   theme_.script ? face(Face::script, 38) : face(Face::title, 30, true));
        drawFitted(painter(), QRectF(page().width() * 0.5, 16, page().width() * 0.5 - margin, 46),
                   Qt::AlignRight | Qt::AlignVCenter, text(customerText("name")), face(Face::body, 20));
        painter().setPen(mixed(colour(theme_.ink), colour(theme_.paper), 0.3));
        drawFitted(painter(), QRectF(margin, page().bottom() - 46, page().width() - 2 * margin, 22),
                   Qt::AlignCenter, footer(), face(Face::body, 15));
        y_ = 104;
    }

    QString footer() const {
        return withoutPrices_ ? QStringLiteral("Consulta nuestros precios en la barra")
                              : QStringLiteral("Precios en euros, IVA incluido");
    }

    void need(double height) {
        if (y_ + height > bottom()) {
            startPage();
        }
    }

    std::vector<Group> groups() const {
        std::vector<Group> found;
        for (const Json& item : menu_["items"]) {
            const std::string name = shownBrand(item, catalogue_).style;
            auto group = std::ranges::find(found, name, &Group::name);
            if (group == found.end()) {
                found.push_back({name, {}});
                group = found.end() - 1;
            }
            group->items.push_back(&item);
        }
        return found;
    }

    void drawHeading(const QString& words) {
        painter().setPen(colour(theme_.ink));
        drawFitted(painter(), QRectF(margin, y_, page().width() - 2 * margin, 36),
                   Qt::AlignLeft | Qt::AlignVCenter, words,
                   theme_.script ? face(Face::script, 30) : face(Face::title, 24, true));
        painter().setPen(QPen(colour(theme_.accent), 2));
        painter().drawLine(QPointF(margin, y_ + 39), QPointF(page().right() - margin, y_ + 39));
        y_ += 48;
    }

    /// The names of the price columns over a block of prices that ends at `right`.
    void drawColumnNames(double right, double top) {
        if (withoutPrices_ || columns_.size() < 2) {
            return;
        }
        painter().setPen(mixed(colour(theme_.ink), colour(theme_.paper), 0.3));
        for (size_t i = 0; i < columns_.size(); ++i) {
            const double x = right - priceWidth * double(columns_.size() - i);
            drawFitted(painter(), QRectF(x, top, priceWidth, 15), Qt::AlignRight | Qt::AlignVCenter,
                       text(priceName(columns_[i])), face(Face::body, 12, true));
        }
    }

    void drawPrices(const Json& sold, double right, double top, double size, double width = priceWidth) {
        if (withoutPrices_) {
            return;
        }
        painter().setPen(colour(theme_.ink));
        for (const Json& price : sold["sub_item_prices"]) {
            const auto column =
                std::ranges::find(columns_, price["price_type"].get<int>()) - columns_.begin();
            const double x = right - width * double(columns_.size() - size_t(column));
            drawFitted(painter(), QRectF(x + 4, top, width - 4, size * 1.4),
                       Qt::AlignRight | Qt::AlignVCenter, euros(price["price"].get<double>()),
                       face(Face::body, size, true));
        }
    }

    double pricesWidth() const { return withoutPrices_ ? 0 : priceWidth * double(columns_.size()); }

    void drawSold(const Json& sold, const QRectF& line) {
        const bool isNew = sold["is_new"].get<bool>();
        constexpr double tagWidth = 40;
        painter().setPen(colour(theme_.ink));
        const QString name = text(soldFormatName(sold, catalogue_));
        const double room = line.width() - pricesWidth() - (isNew ? tagWidth + 6 : 0);
        const QFont font = face(Face::body, 15);
        const double width = std::min(room, QFontMetricsF(font).horizontalAdvance(name));
        drawFitted(painter(), QRectF(line.left(), line.top(), room, line.height()),
                   Qt::AlignLeft | Qt::AlignVCenter, name, font);
        if (isNew) {
            const QRectF tag(line.left() + width + 4, line.top() + 4, tagWidth, line.height() - 8);
            painter().setPen(Qt::NoPen);
            painter().setBrush(colour(theme_.accent));
            painter().drawRoundedRect(tag, 7, 7);
            painter().setPen(inkOn(colour(theme_.accent)));
            drawFitted(painter(), tag, Qt::AlignCenter, "nuevo", face(Face::body, 11, true));
        }
        drawPrices(sold, line.right(), line.top(), 15);
    }

    void drawBitterness(const Json& item, const QPointF& place) {
        const Brand* brand = catalogue_.brand(item["brand"].get<int>());
        if (!brand || !brand->bitterness) {
            return;
        }
        for (int i = 0; i < 4; ++i) {
            const bool on = i < *brand->bitterness;
            drawMotif(painter(), QRectF(place.x() + i * 15, place.y(), 14, 14), Motif::hop,
                      colour(on ? theme_.accent : theme_.ink, on ? 255 : 50),
                      colour(theme_.ink, on ? 255 : 50));
        }
    }

    double cardHeight(const Json& item) const {
        return std::max(128.0, 64 + 23.0 * double(item["sub_items"].size()));
    }

    /// A bottle stands for its brand better than a glass does.
    static Vessel shownVessel(const std::vector<Vessel>& vessels) {
        for (const Vessel wanted :
             {Vessel::bottle, Vessel::wineBottle, Vessel::softBottle, Vessel::largeBottle, Vessel::magnum,
              Vessel::smallBottle, Vessel::pint, Vessel::tallGlass}) {
            if (std::ranges::find(vessels, wanted) != vessels.end()) {
                return wanted;
            }
        }
        return vessels.front();
    }

    void drawCard(const Json& item, const QRectF& card) {
        const ShownBrand brand = shownBrand(item, catalogue_);
        QColor ground = mixed(colour(theme_.paper), theme_.dark ? Qt::black : Qt::white, 0.55);
        painter().setPen(QPen(colour(theme_.accent, 150), 1.2));
        painter().setBrush(ground);
        painter().drawRoundedRect(card, 12, 12);
        const double x = card.left() + 64;
        if (!brand.vessels.empty()) {
            const double height = std::min(card.height() - 16, 140.0);
            drawVessel(painter(), QRectF(card.left() + 4, card.center().y() - height / 2, 58, height),
                       brand.look, shownVessel(brand.vessels));
        }
        painter().setPen(colour(theme_.ink));
        drawFitted(painter(), QRectF(x, card.top() + 7, card.right() - x - 76, 28),
                   Qt::AlignLeft | Qt::AlignVCenter, text(brand.name), face(Face::round, 22, true));
        drawBitterness(item, QPointF(card.right() - 70, card.top() + 13));
        const std::string description = item.value("description", "");
        painter().setPen(mixed(colour(theme_.ink), colour(theme_.paper), 0.3));
        drawFitted(painter(), QRectF(x, card.top() + 34, card.right() - x - 10 - pricesWidth(), 18),
                   Qt::AlignLeft | Qt::AlignVCenter, text(description.empty() ? brand.style : description),
                   face(Face::body, 13));
        drawColumnNames(card.right() - 10, card.top() + 37);
        double line = card.top() + 55;
        for (const Json& sold : item["sub_items"]) {
            drawSold(sold, QRectF(x, line, card.right() - 10 - x, 22));
            line += 23;
        }
    }

    void drawGroups() {
        const bool list =
            menu_.value("format_visualize_id", 1) == 2 || menu_.value("wine_format_visualize_id", 1) == 3;
        if (list) {
            for (const Group& group : groups()) {
                need(110);
                drawHeading(text(group.name));
                drawList(group);
            }
            return;
        }
        ends_.assign(page().width() > page().height() ? 3 : 2, y_);
        for (const Group& group : groups()) {
            bool headed = false;
            size_t column = 0;
            for (const Json* item : group.items) {
                const double height = cardHeight(*item);
                if (!headed || ends_[column] + height > bottom()) {
                    column = columnFor(height + 48);
                    drawColumnHeading(column, text(group.name.empty() ? "De la casa" : group.name));
                    headed = true;
                }
                drawCard(*item, QRectF(columnLeft(column), ends_[column], columnWidth(), height));
                ends_[column] += height + 12;
            }
            ends_[column] += 10;
        }
        y_ = *std::ranges::max_element(ends_) + 4;
    }

    double columnWidth() const {
        return (page().width() - 2 * margin - gap * double(ends_.size() - 1)) / double(ends_.size());
    }
    double columnLeft(size_t column) const { return margin + (columnWidth() + gap) * double(column); }

    /// The shortest column with room for so much, on a new page when none has it.
    size_t columnFor(double height) {
        const auto shortest = std::ranges::min_element(ends_);
        if (*shortest + height <= bottom()) {
            return size_t(shortest - ends_.begin());
        }
        startPage();
        std::ranges::fill(ends_, y_);
        return 0;
    }

    void drawColumnHeading(size_t column, const QString& words) {
        const double left = columnLeft(column), top = ends_[column];
        painter().setPen(colour(theme_.ink));
        drawFitted(painter(), QRectF(left, top, columnWidth(), 32), Qt::AlignLeft | Qt::AlignVCenter, words,
                   theme_.script ? face(Face::script, 26) : face(Face::title, 22, true));
        painter().setPen(QPen(colour(theme_.accent), 2));
        painter().drawLine(QPointF(left, top + 35), QPointF(left + columnWidth(), top + 35));
        ends_[column] += 44;
    }

    void drawList(const Group& group) {
        for (const Json* item : group.items) {
            const double height = 30 + 22.0 * double((*item)["sub_items"].size());
            need(height);
            const ShownBrand brand = shownBrand(*item, catalogue_);
            drawMark(painter(), QRectF(margin, y_, 30, 30), brand.look);
            painter().setPen(colour(theme_.ink));
            drawFitted(painter(), QRectF(margin + 40, y_, 340, 28), Qt::AlignLeft | Qt::AlignVCenter,
                       text(brand.name), face(Face::round, 20, true));
            drawColumnNames(page().right() - margin, y_ + 12);
            double line = y_ + 28;
            for (const Json& sold : (*item)["sub_items"]) {
                drawSold(sold, QRectF(margin + 40, line, page().width() - 2 * margin - 40, 21));
                line += 22;
            }
            y_ += height + 4;
        }
        y_ += 8;
    }

    /// The highlighted product stands over all others, larger than they.
    void drawFeatured() {
        if (!featured_) {
            return;
        }
        for (const Json& item : menu_["items"]) {
            for (const Json& sold : item["sub_items"]) {
                if (sold["product"] == *featured_) {
                    return drawFeaturedPanel(item, sold);
                }
            }
        }
    }

    void drawFeaturedPanel(const Json& item, const Json& sold) {
        const ShownBrand brand = shownBrand(item, catalogue_);
        const Format* format = catalogue_.format(*featured_);
        const QRectF panel(margin, y_, page().width() - 2 * margin, 236);
        QLinearGradient ground(panel.topLeft(), panel.bottomRight());
        ground.setColorAt(0, colour(brand.look.base));
        ground.setColorAt(1, mixed(colour(brand.look.base), Qt::black, 0.35));
        painter().setPen(QPen(colour(theme_.accent), 3));
        painter().setBrush(ground);
        painter().drawRoundedRect(panel, 18, 18);
        drawVessel(painter(), QRectF(panel.left() + 24, panel.top() + 12, 120, 212), brand.look,
                   format ? format->vessel : Vessel::bottle);
        drawEmblem(painter(), QRectF(panel.right() - 190, panel.top() + 18, 166, 150), brand.look);
        const QColor ink = inkOn(colour(brand.look.base));
        const double left = panel.left() + 164, width = panel.width() - 164 - 200;
        const QRectF ribbon(left, panel.top() + 20, 128, 28);
        painter().setPen(Qt::NoPen);
        painter().setBrush(colour(theme_.accent));
        painter().drawRoundedRect(ribbon, 14, 14);
        painter().setPen(inkOn(colour(theme_.accent)));
        drawFitted(painter(), ribbon, Qt::AlignCenter, "La destacada", face(Face::body, 16, true));
        painter().setPen(ink);
        drawFitted(painter(), QRectF(left, panel.top() + 56, width, 62), Qt::AlignLeft | Qt::AlignVCenter,
                   text(brand.name), face(Face::script, 54));
        drawFitted(painter(), QRectF(left, panel.top() + 120, width, 26), Qt::AlignLeft | Qt::AlignVCenter,
                   text(brand.style + " · " + soldFormatName(sold, catalogue_)), face(Face::body, 20));
        if (!withoutPrices_) {
            QString prices;
            for (const Json& price : sold["sub_item_prices"]) {
                prices += prices.isEmpty() ? "" : "     ";
                prices +=
                    columns_.size() > 1 ? text(priceName(price["price_type"].get<int>())) + " " : QString();
                prices += euros(price["price"].get<double>());
            }
            drawFitted(painter(), QRectF(left, panel.top() + 160, panel.width() - 190, 44),
                       Qt::AlignLeft | Qt::AlignVCenter, prices, face(Face::round, 30, true));
        }
        y_ += panel.height() + 18;
    }

    std::string drinkName(const Json& element) const {
        if (element.contains("product_format_name")) {
            return element["product_format_name"].get<std::string>();
        }
        for (const DrinkCategory& category : drinkCategories()) {
            for (const DrinkProduct& product : category.products) {
                if (product.id == element["product_format_id"]) {
                    return product.name;
                }
            }
        }
        return {};
    }

    std::string drinkCategoryName(const Json& category) const {
        if (category.contains("category_name")) {
            return category["category_name"].get<std::string>();
        }
        for (const DrinkCategory& known : drinkCategories()) {
            if (known.id == category.value("category_id", 0)) {
                return known.name;
            }
        }
        return "Otras bebidas";
    }

    /// By position, what the user added behind what the catalogue has.
    static std::vector<const Json*> inOrder(const Json& list, const char* name, const char* position) {
        std::vector<const Json*> sorted;
        for (const Json& each : list) {
            sorted.push_back(&each);
        }
        std::ranges::stable_sort(sorted, {}, [&](const Json* each) {
            return std::pair(each->contains(name), each->value(position, 0));
        });
        return sorted;
    }

    void drawDrinks() {
        const Json categories = menu_.value("other_drinks", Json::array());
        for (const Json* category : inOrder(categories, "category_name", "category_position")) {
            need(110);
            drawHeading(text(drinkCategoryName(*category)));
            const std::string description = category->value("description", "");
            if (!description.empty()) {
                drawRemark(description);
                y_ += 6;
            }
            for (const Json* element :
                 inOrder((*category)["other_products"], "product_format_name", "product_format_position")) {
                drawDrink(*element);
            }
            y_ += 10;
        }
    }

    void drawDrink(const Json& element) {
        std::map<std::string, std::map<int, double>> formats;
        for (const Json& price : element["sub_item_prices"]) {
            auto& prices = formats[price["format_name"].get<std::string>()];
            if (price.contains("price")) {
                prices[price["price_type"].get<int>()] = price["price"].get<double>();
            }
        }
        const std::string description = element.value("description", "");
        for (const auto& [format, prices] : formats) {
            need(44);
            painter().setPen(colour(theme_.ink));
            QString name = text(drinkName(element));
            name += format.empty() ? QString() : "  (" + text(format) + ")";
            drawFitted(painter(), QRectF(margin + 6, y_, page().width() * 0.55, 24),
                       Qt::AlignLeft | Qt::AlignVCenter, name, face(Face::body, 18));
            QString shown;
            for (const auto& [type, price] : prices) {
                shown += shown.isEmpty() ? "" : "   ·   ";
                shown += prices.size() > 1 ? text(priceName(type)) + " " + euros(price) : euros(price);
            }
            drawFitted(painter(), QRectF(page().width() * 0.5, y_, page().width() * 0.5 - margin, 24),
                       Qt::AlignRight | Qt::AlignVCenter, shown, face(Face::body, 17, true));
            y_ += 25;
        }
        if (!description.empty()) {
            drawRemark(description);
        }
    }

    void drawRemark(const std::string& words) {
        painter().setPen(mixed(colour(theme_.ink), colour(theme_.paper), 0.3));
        drawFitted(painter(), QRectF(margin + 6, y_ - 3, page().width() * 0.6, 17),
                   Qt::AlignLeft | Qt::AlignVCenter, text(words), face(Face::body, 13));
        y_ += 17;
    }

    void drawPromotions() {
        for (const Json& promotion : menu_.value("promotions", Json::array())) {
            need(96);
            const QRectF panel(margin, y_, page().width() - 2 * margin, 80);
            painter().setPen(QPen(colour(theme_.accent), 2, Qt::DashLine));
            painter().setBrush(mixed(colour(theme_.accent), colour(theme_.paper), 0.82));
            painter().drawRoundedRect(panel, 14, 14);
            drawMotif(painter(), QRectF(panel.left() + 12, panel.top() + 8, 64, 64), Motif::star,
                      colour(theme_.accent), colour(theme_.ink));
            painter().setPen(colour(theme_.ink));
            drawFitted(painter(), QRectF(panel.left() + 92, panel.top() + 10, panel.width() - 108, 34),
                       Qt::AlignLeft | Qt::AlignVCenter, text(promotion["promotion_name"].get<std::string>()),
                       face(Face::round, 24, true));
            std::string words = promotion["brand_name"].get<std::string>();
            for (const Json& attribute : promotion["attributes"]) {
                words += " · " + attribute["value"].get<std::string>();
            }
            drawFitted(painter(), QRectF(panel.left() + 92, panel.top() + 44, panel.width() - 108, 24),
                       Qt::AlignLeft | Qt::AlignVCenter, text(words), face(Face::body, 17));
            y_ += 92;
        }
    }

    void drawPennants() {
        const Json products = menu_.value("product_pennant", Json::array());
        if (!order_.value("with_pennant", false) || products.empty()) {
            return;
        }
        startPage();
        const Style* style = catalogue_.style(menu_.value("style_pennant_id", 0));
        const Theme& theme = style ? themes()[size_t(style->theme)] : theme_;
        drawHeading("Banderines");
        std::vector<const Look*> marks;
        for (const Json& product : products) {
            if (const Brand* brand = catalogue_.brandOfFormat(product["product_id"].get<int>())) {
                marks.push_back(&brand->look);
            }
        }
        drawBunting(painter(), QRectF(margin, y_ + 10, page().width() - 2 * margin, 180), theme, marks);
        y_ += 220;
        for (const Json& product : products) {
            need(60);
            drawPennantLine(product["product_id"].get<int>());
        }
    }

    void drawPennantLine(int formatId) {
        const Brand* brand = catalogue_.brandOfFormat(formatId);
        const Format* format = catalogue_.format(formatId);
        if (!brand || !format) {
            return;
        }
        drawMark(painter(), QRectF(margin, y_, 46, 46), brand->look);
        painter().setPen(colour(theme_.ink));
        drawFitted(painter(), QRectF(margin + 60, y_, 420, 46), Qt::AlignLeft | Qt::AlignVCenter,
                   text(brand->name + "  ·  " + format->icon), face(Face::round, 22, true));
        if (!menu_.value("without_price_pennant", false)) {
            drawPrices(soldOf(formatId), page().right() - margin, y_ + 10, 18, 88);
        }
        y_ += 54;
    }

    Json soldOf(int formatId) const {
        for (const Json& item : menu_["items"]) {
            for (const Json& sold : item["sub_items"]) {
                if (sold["product"] == formatId) {
                    return sold;
                }
            }
        }
        return {{"sub_item_prices", Json::array()}};
    }

    void drawBackQr() {
        const bool asked = menu_.contains("brand_qr_id") || order_.value("with_digital_menu_print", false);
        if (!asked || !order_.value("with_digital_menu", false)) {
            return;
        }
        const double band = page().height() * 0.16, side = band * 0.74;
        const QRectF square(page().right() - margin - side, page().bottom() - band / 2 - side / 2, side,
                            side);
        painter().setPen(QPen(colour(theme_.accent), 4));
        painter().setBrush(Qt::white);
        painter().drawRoundedRect(square.adjusted(-6, -6, 6, 6), 10, 10);
        drawQrCode(painter(), square, address_, colour(theme_.dark ? theme_.paper : theme_.ink));
        painter().setPen(colour(theme_.paper));
        drawFitted(painter(), QRectF(margin, square.top(), page().width() - 2 * margin - side - 20, 24),
                   Qt::AlignRight | Qt::AlignVCenter, "Lee la carta en tu móvil", face(Face::body, 18));
    }

    static constexpr double priceWidth = 56;
    static constexpr double gap = 16;

    const Json& order_;
    const Json& menu_;
    const Json& customer_;
    const Catalogue& catalogue_;
    std::string address_;
    const Style* style_;
    const Theme& theme_;
    BrochureKind kind_;
    PdfSheet sheet_;
    std::optional<int> featured_;
    bool withoutPrices_ = false;
    std::vector<int> columns_;
    double y_ = 0;
    std::vector<double> ends_; ///< where each column of cards ends
};

} // namespace

ShownBrand shownBrand(const Json& item, const Catalogue& catalogue) {
    ShownBrand shown;
    if (const Brand* brand = catalogue.brand(item["brand"].get<int>())) {
        shown.name = brand->name;
        shown.style = brand->style;
        shown.look = brand->look;
        for (const Json& sold : item["sub_items"]) {
            if (const Format* format = catalogue.format(sold["product"].get<int>())) {
                shown.vessels.push_back(format->vessel);
            }
        }
        return shown;
    }
    // A brand of the user's own borrows colours from a known one.
    shown.name = item.value("name", "");
    shown.look =
        catalogue.brands()[size_t(markOf(shown.name) % std::min<size_t>(catalogue.brands().size(), 36))].look;
    shown.look.name = shown.name;
    shown.vessels.push_back(Vessel::bottle);
    return shown;
}

std::string soldFormatName(const Json& sold, const Catalogue& catalogue) {
    const Format* format = catalogue.format(sold["product"].get<int>());
    std::string name = format ? format->icon : "Formato propio";
    if (sold.contains("quantity")) {
        const size_t digit = name.find_first_of("0123456789");
        name = (digit == std::string::npos ? name + " " : name.substr(0, digit)) + sold["quantity"].dump() +
               " cl";
    }
    return name;
}

QByteArray menuPdf(const Json& order, const Catalogue& catalogue, const std::string& publicAddress) {
    return MenuWriter(order, catalogue, publicAddress).write();
}

} // namespace kavor::demo
