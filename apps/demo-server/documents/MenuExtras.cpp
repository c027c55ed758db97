#include "catalogue/Content.h"
#include "documents/MenuPaper.h"
#include "documents/PdfSheet.h"
#include "documents/PromotionPdf.h"
#include "drawing/Covers.h"
#include "drawing/Goods.h"
#include "drawing/Motifs.h"
#include "drawing/PosterArt.h"
#include "drawing/Tools.h"

#include <QFontMetricsF>

#include <algorithm>
#include <utility>

namespace kavor::demo {

namespace {

constexpr int left = Qt::AlignLeft | Qt::AlignVCenter;

/// A list of the menu, which may be left out.
const Json& listOf(const Json& menu, const char* key) {
    static const Json none = Json::array();
    const auto found = menu.find(key);
    return found == menu.end() ? none : *found;
}

const DrinkCategory* knownCategory(const Json& category) {
    const auto found =
        std::ranges::find(drinkCategories(), category.value("category_id", 0), &DrinkCategory::id);
    return found == drinkCategories().end() ? nullptr : &*found;
}

QString categoryName(const Json& category) {
    if (category.contains("category_name")) {
        return text(category["category_name"].get<std::string>());
    }
    const DrinkCategory* known = knownCategory(category);
    return known ? QString(known->name) : QStringLiteral("Otras bebidas");
}

QString drinkName(const Json& element) {
    if (element.contains("product_format_name")) {
        return text(element["product_format_name"].get<std::string>());
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

/// The prices of a drink by the names of its formats, in the order of the order.
std::vector<std::pair<QString, MenuPaper::Prices>> formatsOf(const Json& element) {
    std::vector<std::pair<QString, MenuPaper::Prices>> formats;
    for (const Json& price : element["sub_item_prices"]) {
        const QString name = text(price["format_name"].get<std::string>());
        auto format = std::ranges::find(formats, name, [](const auto& known) { return known.first; });
        if (format == formats.end()) {
            format = formats.insert(format, {name, {}});
        }
        if (price.contains("price")) {
            format->second[price["price_type"].get<int>()] = price["price"].get<double>();
        }
    }
    return formats;
}

constexpr double drinkLine = 25, descriptionLine = 16, formatLine = 21;

double drinkHeight(const Json& element) {
    const size_t formats = formatsOf(element).size();
    return drinkLine + (element.value("description", "").empty() ? 0 : descriptionLine) +
           (formats > 1 ? formatLine * double(formats) : 0);
}

/// A name, and behind it a word that is read second.
void drawNamed(QPainter& painter, const MenuPaper& paper, const QRectF& line, const QString& name,
               const QString& word) {
    const double room = line.width() - paper.pricesWidth() - 6;
    const QFont font = face(Face::body, 17, true), small = face(Face::body, 14);
    const double second = word.isEmpty() ? 0 : QFontMetricsF(small).horizontalAdvance(word) + 10;
    const double first =
        std::min(room - std::min(second, room / 3), QFontMetricsF(font).horizontalAdvance(name));
    painter.setPen(colour(paper.theme().ink));
    drawFitted(painter, QRectF(line.left(), line.top(), first, line.height()), left, name, font);
    painter.setPen(paper.softInk());
    drawFitted(painter, QRectF(line.left() + first + 8, line.top() + 1, room - first - 8, line.height()),
               left, word, small);
}

void drawDrink(QPainter& painter, const MenuPaper& paper, const Json& element, const QRectF& area) {
    const auto formats = formatsOf(element);
    const bool one = formats.size() == 1;
    QRectF line(area.left() + 4, area.top(), area.width() - 4, drinkLine);
    drawNamed(painter, paper, line, drinkName(element), one ? formats.front().first : QString());
    if (one) {
        paper.drawPrices(painter, formats.front().second, line, 16);
    }
    line.moveTop(line.bottom() - 4);
    const std::string description = element.value("description", "");
    if (!description.empty()) {
        painter.setPen(paper.softInk());
        drawFitted(painter, QRectF(line.left(), line.top(), line.width() - paper.pricesWidth() - 6, 17), left,
                   text(description), face(Face::body, 13));
        line.translate(0, descriptionLine);
    }
    line.translate(0, 2);
    for (const auto& [name, prices] : formats) {
        if (one) {
            continue;
        }
        const QRectF row(line.left() + 14, line.top(), line.width() - 14, formatLine);
        painter.setPen(colour(paper.theme().ink));
        drawFitted(painter, row.adjusted(0, 0, -paper.pricesWidth(), 0), left, name, face(Face::body, 15));
        paper.drawPrices(painter, prices, row, 15);
        line.translate(0, formatLine);
    }
}

/// What the category says of itself, and the names of the price columns.
std::optional<Block> categoryNote(const MenuPaper& paper, const Json& category) {
    std::string words = category.value("description", "");
    const DrinkCategory* known = knownCategory(category);
    if (words.empty() && known && known->description) {
        words = known->description;
    }
    if (words.empty() && (paper.withoutPrices() || paper.pricesWidth() < 100)) {
        return std::nullopt;
    }
    return Block{17,
                 [&paper, words](QPainter& painter, const QRectF& area) {
                     painter.setPen(paper.softInk());
                     drawFitted(
                         painter,
                         QRectF(area.left() + 4, area.top(), area.width() - 10 - paper.pricesWidth(), 17),
                         left, text(words), face(Face::body, 14));
                     paper.drawColumnNames(painter, area.right(), area.top() + 1);
                 },
                 0};
}

/// A pill of words, which answers where it ends.
double drawPill(QPainter& painter, const QRectF& area, const QString& words, const QColor& ground) {
    const QFont font = face(Face::body, area.height() * 0.58, true);
    const double width = std::min(area.width(), QFontMetricsF(font).horizontalAdvance(words) + 24);
    const QRectF pill(area.left(), area.top(), width, area.height());
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
    painter.setPen(inkOn(ground));
    drawFitted(painter, pill.adjusted(8, 0, -8, 0), Qt::AlignCenter, words, font);
    return pill.right();
}

/// Brand, name, phrase, and price with hours at the foot.
void drawPromotionWords(QPainter& painter, const MenuPaper& paper, const Json& promotion,
                        const PosterWords& words, const QRectF& area) {
    constexpr int top = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
    const bool foot = !words.price.isEmpty() || !words.hours.isEmpty();
    const double room = area.height() - 22 - (foot ? 32 : 0);
    painter.setPen(paper.softInk());
    drawFitted(painter, QRectF(area.left(), area.top(), area.width(), 18), left,
               text(promotion["brand_name"].get<std::string>()), face(Face::body, 14));
    painter.setPen(colour(paper.theme().ink));
    const double name = words.phrase.isEmpty() ? room : room * 0.56;
    drawFitted(painter, QRectF(area.left(), area.top() + 20, area.width(), name), top,
               text(promotion["promotion_name"].get<std::string>()), face(Face::round, 21, true));
    drawFitted(painter, QRectF(area.left(), area.top() + 22 + name, area.width(), room - name - 2), top,
               words.phrase.isEmpty() ? QString() : QStringLiteral("«%1»").arg(words.phrase),
               face(Face::script, 19));
    QRectF pill(area.left(), area.bottom() - 26, area.width(), 26);
    if (!words.price.isEmpty()) {
        pill.setLeft(drawPill(painter, pill, words.price, colour(paper.theme().accent)) + 6);
    }
    if (!words.hours.isEmpty()) {
        drawPill(painter, pill, words.hours,
                 mixed(colour(paper.theme().ink), colour(paper.theme().paper), 0.25));
    }
}

void drawPromotion(QPainter& painter, const MenuPaper& paper, const Json& promotion, const QRectF& area) {
    const Theme& theme = paper.theme();
    painter.setPen(QPen(colour(theme.accent), 2, Qt::DashLine));
    painter.setBrush(mixed(colour(theme.accent), colour(theme.paper), 0.86));
    painter.drawRoundedRect(area, 14, 14);
    const double height = area.height() - 20, width = std::min(height * 0.707, area.width() * 0.34);
    const QRectF picture(area.left() + 10, area.top() + 10, width, height);
    const Poster* poster = posterOf(promotion["promotion_id"].get<int>());
    PosterWords words;
    if (poster) {
        words = posterWords(*poster, promotion["attributes"], paper.menu()["language1_id"].get<int>());
        drawPoster(painter, picture, *poster, poster->look(paper.catalogue().brands()), words);
    } else {
        drawMotif(painter, picture, Motif::star, colour(theme.accent), colour(theme.ink));
    }
    drawPromotionWords(
        painter, paper, promotion, words,
        QRectF(picture.right() + 12, area.top() + 10, area.right() - picture.right() - 22, height));
}

/// A chosen product: the brand, its format and what it costs.
struct Pennant {
    const Brand* brand = nullptr;
    const Format* format = nullptr;
    MenuPaper::Prices prices;
};

MenuPaper::Prices pricesOfFormat(const Json& menu, int formatId) {
    for (const Json& item : menu["items"]) {
        for (const Json& sold : item["sub_items"]) {
            if (sold["product"] == formatId) {
                return pricesOf(sold);
            }
        }
    }
    return {};
}

std::vector<Pennant> chosenPennants(const MenuPaper& paper) {
    std::map<int, Pennant> byPosition;
    for (const Json& product : listOf(paper.menu(), "product_pennant")) {
        const int id = product["product_id"].get<int>();
        const Brand* brand = paper.catalogue().brandOfFormat(id);
        const Format* format = paper.catalogue().format(id);
        if (brand && format) {
            byPosition[product["position"].get<int>()] = {brand, format, pricesOfFormat(paper.menu(), id)};
        }
    }
    std::vector<Pennant> chosen;
    chosen.reserve(byPosition.size());
    for (auto& [ignored, pennant] : byPosition) {
        chosen.push_back(std::move(pennant));
    }
    return chosen;
}

/// The string of pennants, each with its product below.
void drawPennants(QPainter& painter, const MenuPaper& paper, const std::vector<Pennant>& chosen,
                  const QRectF& area) {
    const Style* style = paper.catalogue().style(paper.menu().value("style_pennant_id", 0));
    const Theme& theme = style ? themes()[size_t(style->theme)] : paper.theme();
    std::vector<const Look*> marks;
    marks.reserve(chosen.size());
    for (const Pennant& pennant : chosen) {
        marks.push_back(&pennant.brand->look);
    }
    const double step = area.width() / double(chosen.size());
    const double flags = std::min(area.height() - 62, step * 1.9);
    drawBunting(painter, QRectF(area.left(), area.top() + 4, area.width(), flags), theme, marks,
                int(chosen.size()));
    QRectF cell(area.left(), area.bottom() - 58, step, 20);
    for (const Pennant& pennant : chosen) {
        const QRectF line = cell.adjusted(3, 0, -3, 0);
        painter.setPen(colour(paper.theme().ink));
        drawFitted(painter, line, Qt::AlignCenter, text(pennant.brand->name), face(Face::round, 16, true));
        painter.setPen(paper.softInk());
        drawFitted(painter, line.translated(0, 18), Qt::AlignCenter, text(pennant.format->icon),
                   face(Face::body, 14));
        if (!paper.menu().value("without_price_pennant", false)) {
            QStringList prices;
            for (const auto& [type, price] : pennant.prices) {
                prices << euros(price);
            }
            painter.setPen(colour(paper.theme().ink));
            drawFitted(painter, line.translated(0, 37), Qt::AlignCenter, prices.join(" · "),
                       face(Face::body, 16, true));
        }
        cell.translate(step, 0);
    }
}

void drawBanner(QPainter& painter, const MenuPaper& paper, const PennantBrand& banner, const QRectF& area) {
    std::vector<const Look*> looks;
    looks.reserve(banner.brandPlaces.size());
    for (const int place : banner.brandPlaces) {
        looks.push_back(&brandAt(paper.catalogue().brands(), Family::beer, place).look);
    }
    const double height = std::min(area.height(), 150.0);
    const QRectF picture(area.left(), area.top(), height * 1.5, height);
    drawPennantBrand(painter, picture, banner, looks);
    const QRectF words(picture.right() + 16, area.top() + 12, area.right() - picture.right() - 16, 34);
    painter.setPen(colour(paper.theme().ink));
    drawFitted(painter, words, left, banner.name, face(Face::round, 22, true));
    painter.setPen(paper.softInk());
    drawFitted(painter, words.translated(0, 36).adjusted(0, 0, 0, 20),
               Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, banner.description, face(Face::body, 16));
}

/// By position, what the user added behind what the catalogue has.
std::vector<const Json*> inOrder(const Json& list, const char* name, const char* position) {
    std::vector<const Json*> sorted;
    for (const Json& each : list) {
        sorted.push_back(&each);
    }
    std::ranges::stable_sort(sorted, {}, [&](const Json* each) {
        return std::pair(each->contains(name), each->value(position, 0));
    });
    return sorted;
}

} // namespace

std::vector<Group> drinkGroups(const MenuPaper& paper) {
    std::vector<Group> groups;
    for (const Json* category :
         inOrder(listOf(paper.menu(), "other_drinks"), "category_name", "category_position")) {
        Group group{.heading = categoryName(*category), .blocks = {}, .gap = 3};
        if (auto note = categoryNote(paper, *category)) {
            group.blocks.push_back(std::move(*note));
        }
        for (const Json* element :
             inOrder((*category)["other_products"], "product_format_name", "product_format_position")) {
            group.blocks.push_back({drinkHeight(*element),
                                    [&paper, element](QPainter& painter, const QRectF& area) {
                                        drawDrink(painter, paper, *element, area);
                                    },
                                    24});
        }
        groups.push_back(std::move(group));
    }
    return groups;
}

std::vector<Group> promotionGroups(const MenuPaper& paper) {
    Group group{.heading = QStringLiteral("Promociones"), .blocks = {}, .spread = Group::Spread::even};
    for (const Json& promotion : listOf(paper.menu(), "promotions")) {
        group.blocks.push_back({150, [&paper, &promotion](QPainter& painter, const QRectF& area) {
                                    drawPromotion(painter, paper, promotion, area);
                                }});
    }
    return group.blocks.empty() ? std::vector<Group>() : std::vector<Group>{std::move(group)};
}

std::vector<Group> pennantGroups(const MenuPaper& paper) {
    Group group{.heading = QStringLiteral("Banderines"), .blocks = {}, .spread = Group::Spread::wide};
    const std::vector<Pennant> chosen = chosenPennants(paper);
    if (paper.order().value("with_pennant", false) && !chosen.empty()) {
        group.blocks.push_back({200, [&paper, chosen](QPainter& painter, const QRectF& area) {
                                    drawPennants(painter, paper, chosen, area);
                                }});
    }
    const int banner = paper.menu().value("pennant_brand_id", 0);
    const auto wanted = std::ranges::find(pennantBrands(), banner, &PennantBrand::id);
    if (wanted != pennantBrands().end()) {
        group.blocks.push_back({150, [&paper, &banner = *wanted](QPainter& painter, const QRectF& area) {
                                    drawBanner(painter, paper, banner, area);
                                }});
    }
    return group.blocks.empty() ? std::vector<Group>() : std::vector<Group>{std::move(group)};
}

} // namespace kavor::demo
