#include "documents/TextilePdf.h"

#include "catalogue/Content.h"
#include "catalogue/Sections.h"
#include "documents/Report.h"
#include "drawing/Goods.h"
#include "drawing/Tools.h"

#include <algorithm>
#include <array>
#include <map>
#include <vector>

namespace kavor::demo {

namespace {

const Json* recordOf(const Json& list, const Json& id) {
    const auto found = std::ranges::find_if(list, [&id](const Json& record) { return record["id"] == id; });
    return found == list.end() ? nullptr : &*found;
}

QString nameOf(const Json& list, const Json& id) {
    const Json* record = recordOf(list, id);
    return record ? member(*record, "name") : QString();
}

QFont typographyOf(const Json& sent, double pixels) {
    QFont font = face(Face::body, pixels);
    for (const TextileFont& known : installedFonts()) {
        if (known.id == sent.value("typography_id", 0)) {
            font.setFamilies({known.name});
        }
    }
    return font;
}

/// The sizes of one brand, type, model and colour, in the order of the lines.
struct Combination {
    const Json* article = nullptr; ///< the first of them
    std::vector<std::pair<QString, std::int64_t>> sizes;
    std::int64_t units = 0;
};

std::vector<Combination> combinationsOf(const Json& sent, const Json& textile) {
    std::vector<Combination> found;
    std::map<std::array<int, 4>, size_t> places;
    for (const Json& line : sent["lines"]) {
        const Json* article = recordOf(textile["textil"], line["textil_id"]);
        if (!article) {
            continue;
        }
        std::array<int, 4> key{};
        std::ranges::transform(std::array{"brand_id", "type_id", "model_id", "color_id"}, key.begin(),
                               [article](const char* member) { return (*article)[member].get<int>(); });
        const auto [place, isNew] = places.try_emplace(key, found.size());
        if (isNew) {
            found.push_back({article, {}, 0});
        }
        Combination& combination = found[place->second];
        const auto quantity = line["quantity"].get<std::int64_t>();
        const Json* size = recordOf(textile["textil_size"], (*article)["size_id"]);
        combination.sizes.emplace_back(size ? member(*size, "code") : QString("?"), quantity);
        combination.units += quantity;
    }
    return found;
}

/// Where a garment bears its text, in parts of its drawing.
QRectF printedArea(int type) {
    switch (type) {
    case 2:
        return {0.30, 0.48, 0.40, 0.13};
    case 3:
        return {0.33, 0.65, 0.34, 0.16};
    case 4:
        return {0.30, 0.20, 0.40, 0.12};
    default:
        return {0.28, 0.63, 0.44, 0.14};
    }
}

class TextileWriter {
public:
    TextileWriter(const Json& order, const Catalogue& catalogue)
        : sent_(order["order"])
        , customer_(order.value("customer", Json::object()))
        , catalogue_(catalogue)
        , textile_(catalogue.textile())
        , report_("Pedido textil", member(customer_, "name"), 0) {}

    QByteArray write() {
        drawBar();
        drawText();
        report_.heading("Prendas");
        std::int64_t units = 0;
        const auto combinations = combinationsOf(sent_, textile_);
        for (const Combination& each : combinations) {
            drawCard(each);
            units += each.units;
        }
        report_.line(QString("%1 %2")
                         .arg(combinations.size())
                         .arg(combinations.size() == 1 ? "referencia" : "referencias"),
                     QString("%1 unidades").arg(units));
        if (const QString comment = member(sent_, "orderComment"); !comment.isEmpty()) {
            report_.heading("Comentario");
            report_.paragraph(comment);
        }
        return report_.finish();
    }

private:
    void drawBar() {
        report_.heading("Punto de venta");
        report_.line(member(customer_, "name"), member(customer_, "tevo"));
        report_.line(member(customer_, "contact"), member(customer_, "telephone"));
        report_.line(member(customer_, "email"));
        const QString town = member(customer_, "placePostalCode") + " " + member(customer_, "placeLocality");
        report_.line(town.trimmed(), member(customer_, "placeProvinceName"));
        report_.y() += 10;
    }

    void drawText() {
        report_.heading("Texto para estampar");
        report_.painter().setPen(colour(report_.theme().ink));
        drawFitted(report_.painter(), QRectF(Report::margin, report_.y(), report_.width(), 64),
                   Qt::AlignCenter, member(sent_, "message"), typographyOf(sent_, 44));
        report_.y() += 78;
    }

    void drawCard(const Combination& combination) {
        constexpr double height = 210;
        report_.need(height + 14);
        QPainter& painter = report_.painter();
        const QRectF card(Report::margin, report_.y(), report_.width(), height);
        painter.setPen(QPen(colour(report_.theme().accent), 1.5));
        painter.setBrush(mixed(colour(report_.theme().paper), Qt::white, 0.6));
        painter.drawRoundedRect(card, 14, 14);
        drawPrinted(*combination.article, QRectF(card.left() + 8, card.top() + 8, 194, 194));
        const Json& article = *combination.article;
        const double left = card.left() + 216;
        const double width = card.right() - left - 16;
        painter.setPen(colour(report_.theme().ink));
        const Brand* brand = catalogue_.brand(article["brand_id"].get<int>());
        drawFitted(painter, QRectF(left, card.top() + 16, width, 32), Qt::AlignLeft | Qt::AlignVCenter,
                   nameOf(textile_["textil_type"], article["type_id"]) + " " +
                       (brand ? text(brand->name) : ""),
                   face(Face::round, 24, true));
        drawFitted(painter, QRectF(left, card.top() + 50, width, 26), Qt::AlignLeft | Qt::AlignVCenter,
                   nameOf(textile_["textil_model"], article["model_id"]) + " · " +
                       nameOf(textile_["textil_color"], article["color_id"]),
                   face(Face::body, 18));
        drawMatrix(combination, QRectF(left, card.top() + 92, width, 62));
        painter.setPen(colour(report_.theme().ink));
        drawFitted(painter, QRectF(left, card.bottom() - 40, width, 26), Qt::AlignRight | Qt::AlignVCenter,
                   QString("%1 uds.").arg(combination.units), face(Face::body, 20, true));
        report_.y() += height + 14;
    }

    /// The garment with the order's text on it, light on dark cloth and dark on light.
    void drawPrinted(const Json& article, const QRectF& area) {
        QPainter& painter = report_.painter();
        const int type = article["type_id"].get<int>();
        const auto tone =
            std::ranges::find(garmentColours(), article["color_id"].get<int>(), &GarmentColour::id);
        const Brand* brand = catalogue_.brand(article["brand_id"].get<int>());
        if (tone == garmentColours().end() || !brand) {
            return;
        }
        drawGarment(painter, area, type, tone->colour, brand->look);
        const QRectF part = printedArea(type);
        const QRectF printed(area.left() + part.left() * area.width(),
                             area.top() + part.top() * area.height(), part.width() * area.width(),
                             part.height() * area.height());
        painter.setPen(inkOn(colour(tone->colour)));
        drawFitted(painter, printed, Qt::AlignCenter, member(sent_, "message"),
                   typographyOf(sent_, printed.height() * 0.8));
    }

    /// A cell for each size: its code above its units.
    void drawMatrix(const Combination& combination, const QRectF& area) {
        QPainter& painter = report_.painter();
        const double width =
            std::min(72.0, area.width() / double(std::max<size_t>(combination.sizes.size(), 1)));
        QRectF cell(area.left(), area.top(), width, area.height() / 2);
        for (const auto& [code, quantity] : combination.sizes) {
            painter.setPen(QPen(colour(report_.theme().accent), 1));
            painter.setBrush(colour(report_.theme().accent));
            painter.drawRect(cell);
            painter.setPen(inkOn(colour(report_.theme().accent)));
            drawFitted(painter, cell.adjusted(3, 0, -3, 0), Qt::AlignCenter, code,
                       face(Face::body, 16, true));
            const QRectF below = cell.translated(0, cell.height());
            painter.setPen(QPen(colour(report_.theme().accent), 1));
            painter.setBrush(Qt::white);
            painter.drawRect(below);
            painter.setPen(colour(report_.theme().ink));
            drawFitted(painter, below.adjusted(3, 0, -3, 0), Qt::AlignCenter, QString::number(quantity),
                       face(Face::body, 18));
            cell.translate(width, 0);
        }
    }

    const Json& sent_;
    const Json customer_;
    const Catalogue& catalogue_;
    const Json& textile_;
    Report report_;
};

} // namespace

QByteArray textilePdf(const Json& order, const Catalogue& catalogue) {
    return TextileWriter(order, catalogue).write();
}

} // namespace kavor::demo
