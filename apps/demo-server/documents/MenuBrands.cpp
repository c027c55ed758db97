#include "catalogue/Content.h"
#include "documents/MenuPaper.h"
#include "documents/MenuPdf.h"
#include "documents/PdfSheet.h"
#include "drawing/Emblems.h"
#include "drawing/Motifs.h"
#include "drawing/Tools.h"
#include "drawing/Vessels.h"

#include <QFontMetricsF>

#include <algorithm>

namespace kavor::demo {

namespace {

constexpr int left = Qt::AlignLeft | Qt::AlignVCenter;

void drawTag(QPainter& painter, const QRectF& tag, const QString& words, const Theme& theme, double size) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour(theme.accent));
    painter.drawRoundedRect(tag, tag.height() / 2, tag.height() / 2);
    painter.setPen(inkOn(colour(theme.accent)));
    drawFitted(painter, tag.adjusted(2, 0, -2, 0), Qt::AlignCenter, words, face(Face::body, size, true));
}

void drawSold(QPainter& painter, const MenuPaper& paper, const Json& sold, const QRectF& line) {
    const bool isNew = sold["is_new"].get<bool>();
    constexpr double tagWidth = 40, tagHeight = 15;
    const double size = std::clamp(line.height() * 0.65, 15.0, line.width() > 220 ? 18.0 : 15.0);
    painter.setPen(colour(paper.theme().ink));
    const QString name = text(soldFormatName(sold, paper.catalogue()));
    const double room = line.width() - paper.pricesWidth() - (isNew ? tagWidth + 6 : 0);
    const QFont font = face(Face::body, size);
    const double width = std::min(room, QFontMetricsF(font).horizontalAdvance(name));
    drawFitted(painter, QRectF(line.left(), line.top(), room, line.height()), left, name, font);
    if (isNew) {
        drawTag(painter,
                QRectF(line.left() + width + 4, line.center().y() - tagHeight / 2, tagWidth, tagHeight),
                "nuevo", paper.theme(), 11);
    }
    paper.drawPrices(painter, pricesOf(sold), line, size);
}

void drawSoldLines(QPainter& painter, const MenuPaper& paper, const Json& item, const QRectF& area) {
    const double step = area.height() / double(std::max<size_t>(1, item["sub_items"].size()));
    double top = area.top();
    for (const Json& sold : item["sub_items"]) {
        drawSold(painter, paper, sold, QRectF(area.left(), top, area.width(), step));
        top += step;
    }
}

void drawBitterness(QPainter& painter, const MenuPaper& paper, const Json& item, const QPointF& place) {
    const Brand* brand = paper.catalogue().brand(item["brand"].get<int>());
    if (!brand || !brand->bitterness) {
        return;
    }
    const Theme& theme = paper.theme();
    for (int i = 0; i < 4; ++i) {
        const bool on = i < *brand->bitterness;
        drawMotif(painter, QRectF(place.x() + i * 15, place.y(), 14, 14), Motif::hop,
                  colour(on ? theme.accent : theme.ink, on ? 255 : 50), colour(theme.ink, on ? 255 : 50));
    }
}

void drawCard(QPainter& painter, const MenuPaper& paper, const Json& item, const QRectF& card) {
    const ShownBrand brand = shownBrand(item, paper.catalogue());
    painter.setPen(QPen(colour(paper.theme().accent, 150), 1.2));
    painter.setBrush(paper.cardGround());
    painter.drawRoundedRect(card, 12, 12);
    const double width = std::min(58.0 * card.height() / 133, card.width() * 0.2);
    const double x = card.left() + width + 12;
    if (!brand.vessels.empty()) {
        const double height = std::min(card.height() - 16, 220.0);
        drawVessel(painter, QRectF(card.left() + 6, card.center().y() - height / 2, width, height),
                   brand.look, shownVessel(brand.vessels));
    }
    painter.setPen(colour(paper.theme().ink));
    drawFitted(painter, QRectF(x, card.top() + 7, card.right() - x - 76, 28), left, text(brand.name),
               face(Face::round, 22, true));
    drawBitterness(painter, paper, item, QPointF(card.right() - 70, card.top() + 13));
    const std::string description = item.value("description", "");
    painter.setPen(paper.softInk());
    drawFitted(painter, QRectF(x, card.top() + 34, card.right() - x - 10 - paper.pricesWidth(), 18), left,
               text(description.empty() ? brand.style : description), face(Face::body, 13));
    paper.drawColumnNames(painter, card.right() - 10, card.top() + 37);
    drawSoldLines(painter, paper, item,
                  QRectF(QPointF(x, card.top() + 54), QPointF(card.right() - 10, card.bottom() - 8)));
}

void drawListEntry(QPainter& painter, const MenuPaper& paper, const Json& item, const QRectF& area) {
    const ShownBrand brand = shownBrand(item, paper.catalogue());
    drawMark(painter, QRectF(area.left(), area.top(), 30, 30), brand.look);
    painter.setPen(colour(paper.theme().ink));
    drawFitted(painter, QRectF(area.left() + 40, area.top(), area.width() - 40 - paper.pricesWidth(), 28),
               left, text(brand.name), face(Face::round, 20, true));
    paper.drawColumnNames(painter, area.right(), area.top() + 12);
    drawSoldLines(painter, paper, item, area.adjusted(40, 29, 0, 0));
}

void drawFeatured(QPainter& painter, const MenuPaper& paper, const Json& item, const Json& sold,
                  const QRectF& panel) {
    const Theme& theme = paper.theme();
    const ShownBrand brand = shownBrand(item, paper.catalogue());
    const Format* format = paper.catalogue().format(sold["product"].get<int>());
    QLinearGradient ground(panel.topLeft(), panel.bottomRight());
    ground.setColorAt(0, colour(brand.look.base));
    ground.setColorAt(1, mixed(colour(brand.look.base), Qt::black, 0.35));
    painter.setPen(QPen(colour(theme.accent), 3));
    painter.setBrush(ground);
    painter.drawRoundedRect(panel, 18, 18);
    // In a narrow panel the words need the place of the badge.
    const double badge = panel.width() > 520 ? 200 : 16;
    drawVessel(painter, QRectF(panel.left() + 24, panel.top() + 12, 120, panel.height() - 24), brand.look,
               format ? format->vessel : Vessel::bottle);
    if (badge > 100) {
        drawEmblem(painter, QRectF(panel.right() - 190, panel.top() + 18, 166, 150), brand.look);
    }
    const double x = panel.left() + 164, width = panel.right() - x - badge;
    drawTag(painter, QRectF(x, panel.top() + 20, 128, 28), "La destacada", theme, 16);
    painter.setPen(inkOn(colour(brand.look.base)));
    drawFitted(painter, QRectF(x, panel.top() + 56, width, 62), left, text(brand.name),
               face(Face::script, 54));
    drawFitted(painter, QRectF(x, panel.top() + 120, width, 26), left,
               text(brand.style + " · " + soldFormatName(sold, paper.catalogue())), face(Face::body, 20));
    if (paper.withoutPrices()) {
        return;
    }
    QStringList shown;
    const MenuPaper::Prices prices = pricesOf(sold);
    for (const auto& [type, price] : prices) {
        shown << (prices.size() > 1 ? text(priceName(type)) + " " : QString()) + euros(price);
    }
    drawFitted(painter, QRectF(x, panel.top() + 160, panel.right() - x - 24, 44), left, shown.join("     "),
               face(Face::round, 30, true));
}

/// The highlighted product stands over all others, larger than they.
std::optional<Group> featuredGroup(const MenuPaper& paper) {
    const int featured = paper.menu().value("product_featured_id", 0);
    for (const Json& item : paper.menu()["items"]) {
        for (const Json& sold : item["sub_items"]) {
            if (featured != 0 && sold["product"] == featured) {
                const auto draw = [&paper, &item, &sold](QPainter& painter, const QRectF& area) {
                    drawFeatured(painter, paper, item, sold, area);
                };
                return Group{.heading = {}, .blocks = {{236, draw}}, .spread = Group::Spread::wide};
            }
        }
    }
    return std::nullopt;
}

} // namespace

std::vector<Group> brandGroups(const MenuPaper& paper) {
    const bool list = paper.menu().value("format_visualize_id", 1) == 2 ||
                      paper.menu().value("wine_format_visualize_id", 1) == 3;
    const auto spread = list ? Group::Spread::wide : Group::Spread::column;
    std::vector<Group> groups;
    if (auto featured = featuredGroup(paper)) {
        groups.push_back(std::move(*featured));
    }
    const size_t first = groups.size();
    for (const Json& item : paper.menu()["items"]) {
        const std::string style = shownBrand(item, paper.catalogue()).style;
        const QString name = style.empty() ? QStringLiteral("De la casa") : text(style);
        auto group = std::find_if(groups.begin() + std::ptrdiff_t(first), groups.end(),
                                  [&name](const Group& known) { return known.heading == name; });
        if (group == groups.end()) {
            group = groups.insert(group, Group{.heading = name, .blocks = {}, .spread = spread});
        }
        const auto formats = double(item["sub_items"].size());
        const double height = list ? 31 + 22 * formats : std::max(133.0, 64 + 23 * formats);
        group->blocks.push_back({height, [&paper, &item, list](QPainter& painter, const QRectF& area) {
                                     (list ? drawListEntry : drawCard)(painter, paper, item, area);
                                 }});
    }
    return groups;
}

} // namespace kavor::demo
