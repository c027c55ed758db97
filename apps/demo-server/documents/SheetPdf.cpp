#include "documents/SheetPdf.h"

#include "catalogue/Content.h"
#include "documents/PdfSheet.h"
#include "documents/Report.h"
#include "drawing/Covers.h"
#include "drawing/Emblems.h"
#include "drawing/Tools.h"
#include "drawing/Vessels.h"

#include <algorithm>
#include <optional>

namespace kavor::demo {

namespace {

constexpr int left = Qt::AlignLeft | Qt::AlignVCenter;
constexpr double edge = 44;       ///< of the paper
constexpr double footHeight = 96; ///< logos, validity and taxes
constexpr int defaultBox = 24;    ///< bottles

/// "2026-06-01" as a Spaniard writes it.
QString dayText(const QString& date) {
    const QStringList parts = date.split('-');
    return parts.size() == 3 ? parts[2] + "/" + parts[1] + "/" + parts[0] : date;
}

QString validityText(const Json& order) {
    const QString from = member(order, "date_from"), to = member(order, "date_to");
    if (from.isEmpty() && to.isEmpty()) {
        return "Oferta sin fecha de caducidad";
    }
    return from.isEmpty() ? "Oferta válida hasta el " + dayText(to)
           : to.isEmpty() ? "Oferta válida desde el " + dayText(from)
                          : "Oferta válida del " + dayText(from) + " al " + dayText(to);
}

QImage pictureIn(const QString& dataText) {
    const auto comma = dataText.indexOf(',');
    return comma < 0 ? QImage()
                     : QImage::fromData(QByteArray::fromBase64(dataText.mid(comma + 1).toLatin1()));
}

/// One product of a module.
struct Goods {
    const Brand* brand = nullptr;
    const Format* format = nullptr;
    int boxes = 0;

    int bottles() const { return boxes * format->bottlesPerBox.value_or(0); }
};

class Sheet {
public:
    Sheet(const Json& order, const Catalogue& catalogue)
        : order_(order)
        , catalogue_(catalogue)
        , theme_(themes()[size_t(themeOf(order))])
        , sheet_(member(order, "title"), false) {}

    QByteArray make() {
        beginPage();
        const bool onePerPage = order_["show_one_module_per_page"].get<bool>();
        const double height = onePerPage ? bottom() - y_ - 12 : heightOfModules();
        bool first = true;
        for (const Json& module : order_["items"]) {
            if (!first && (onePerPage || y_ + height > bottom())) {
                sheet_.newPage();
                beginPage();
            }
            first = false;
            drawModule(module, QRectF(edge, y_, width(), height));
            y_ += height + 14;
        }
        if (order_["items"].empty()) {
            pen(theme_.ink);
            drawFitted(painter(), QRectF(edge, y_ + 60, width(), 40), Qt::AlignCenter, "Sin módulos",
                       face(Face::body, 22));
        }
        return sheet_.finish();
    }

private:
    static int themeOf(const Json& order) {
        const auto styles = sheetStyles();
        const auto style = std::ranges::find(styles, order["style_id"].get<int>(), &SheetStyle::id);
        return style == styles.end() ? 0 : style->theme;
    }
    QPainter& painter() { return sheet_.painter(); }
    double width() const { return sheet_.page().width() - 2 * edge; }
    void pen(int rgb) { painter().setPen(colour(rgb)); }

    /// Where the modules of a page end; a free text stands above the foot.
    double bottom() const {
        return sheet_.page().height() - footHeight - (member(order_, "free_text").isEmpty() ? 12 : 78);
    }

    /// Few modules share the page; of many, as many as fit.
    double heightOfModules() const {
        constexpr double least = 176, most = 236, head = 204;
        const double room = bottom() - head;
        const auto count = double(order_["items"].size());
        return count == 1 ? room - 12 : std::clamp(room / count - 14, least, most);
    }

    void beginPage() {
        drawPaper(painter(), sheet_.page(), theme_, false);
        drawHead();
        drawFoot();
        y_ = 204;
    }

    void drawHead() {
        painter().setPen(Qt::NoPen);
        painter().setBrush(colour(theme_.ink));
        painter().drawRect(QRectF(0, 0, sheet_.page().width(), 176));
        painter().setBrush(colour(theme_.accent));
        painter().drawRect(QRectF(0, 176, sheet_.page().width(), 8));
        pen(theme_.paper);
        drawFitted(painter(), QRectF(edge, 22, width(), 70), Qt::AlignCenter, member(order_, "title"),
                   theme_.script ? face(Face::script, 60) : face(Face::title, 52, true));
        drawFitted(painter(), QRectF(edge, 92, width(), 34), Qt::AlignCenter, member(order_, "sub_title"),
                   face(Face::body, 24));
        const QRectF band(sheet_.page().width() / 2 - 220, 132, 440, 32);
        painter().setPen(Qt::NoPen);
        painter().setBrush(colour(theme_.accent));
        painter().drawRoundedRect(band, 16, 16);
        painter().setPen(inkOn(colour(theme_.accent)));
        drawFitted(painter(), band.adjusted(14, 0, -14, 0), Qt::AlignCenter, validityText(order_),
                   face(Face::body, 18, true));
    }

    void drawFoot() {
        const double top = sheet_.page().height() - footHeight;
        if (const QString words = member(order_, "free_text"); !words.isEmpty()) {
            pen(theme_.ink);
            drawFitted(painter(), QRectF(edge, top - 70, width(), 60), Qt::AlignCenter | Qt::TextWordWrap,
                       words, face(Face::body, 18));
        }
        painter().setPen(QPen(colour(theme_.accent), 2));
        painter().drawLine(QPointF(edge, top), QPointF(edge + width(), top));
        if (order_["include_logo_nrv"].get<bool>()) {
            drawWordmark(painter(), QRectF(edge, top + 16, 190, 60), catalogue_.brands().front().look);
        }
        if (const QImage logo = distribution(); !logo.isNull()) {
            const QSizeF size = QSizeF(logo.size()).scaled(190, 64, Qt::KeepAspectRatio);
            painter().drawImage(
                QRectF(QPointF(edge + width() - size.width(), top + 14 + (64 - size.height()) / 2), size),
                logo);
        }
        painter().setPen(mixed(colour(theme_.ink), colour(theme_.paper), 0.3));
        drawFitted(painter(), QRectF(edge + 210, top + 30, width() - 420, 28), Qt::AlignCenter,
                   order_["taxes_included"].get<bool>() ? "Impuestos incluidos" : "Impuestos no incluidos",
                   face(Face::body, 16));
    }

    QImage distribution() const {
        if (const QString sent = member(order_, "distribution_logo"); !sent.isEmpty()) {
            return pictureIn(sent);
        }
        return member(order_, "distribution_logo_url").endsWith("/logos/distribuidora.png")
                   ? distributorLogo()
                   : QImage();
    }

    std::optional<Goods> goods(const Json& module, const char* product, const char* boxes) const {
        const int id = module.value(product, 0);
        const Goods found{catalogue_.brandOfFormat(id), catalogue_.format(id), module.value(boxes, 0)};
        return found.brand && found.format ? std::optional(found) : std::nullopt;
    }

    void drawModule(const Json& module, const QRectF& card) {
        painter().setPen(QPen(colour(theme_.accent), 2));
        painter().setBrush(mixed(colour(theme_.paper), Qt::white, 0.6));
        painter().drawRoundedRect(card, 16, 16);
        const auto first = goods(module, "product1_id", "product1_box");
        const auto second = goods(module, "product2_id", "product2_box");
        const bool large = card.height() > 300;
        const double scale = large ? 1.9 : 1;
        const double side = large ? std::min((card.width() - 100) / 2, card.height() * 0.45)
                                  : std::min(card.height() - 36, second ? 156.0 : 200.0);
        double x = large ? card.center().x() - (second ? side + 24 : side / 2) : card.left() + 14;
        const double top = large ? card.top() + 40 : card.top() + (card.height() - side) / 2;
        for (const auto& each : {first, second}) {
            if (each) {
                drawBoxes(*each, QRectF(x, top, side, side), scale);
                x += side + (large ? 48 : 26);
            }
        }
        if (first && second) { // between the two
            pen(theme_.ink);
            const double gap = large ? 48 : 26;
            drawFitted(painter(), QRectF(x - side - 2 * gap, top, gap, side), Qt::AlignCenter, "+",
                       face(Face::round, 26 * scale, true));
        }
        const QRectF words = large ? QRectF(card.left() + 40, top + side + 30, card.width() - 80,
                                            card.bottom() - top - side - 60)
                                   : QRectF(x, card.top() + 12, card.right() - x - 16, card.height() - 24);
        drawWords(module, first, second, words, large);
    }

    /// The box, and how many of it.
    void drawBoxes(const Goods& each, const QRectF& area, double scale) {
        drawBox(painter(), area, each.brand->look, each.format->bottlesPerBox.value_or(defaultBox));
        const double height = 34 * scale;
        const QRectF badge(area.right() - height * 1.4, area.bottom() - height, height * 1.4, height);
        painter().setPen(Qt::NoPen);
        painter().setBrush(colour(theme_.ink));
        painter().drawRoundedRect(badge, height / 2, height / 2);
        pen(theme_.paper);
        drawFitted(painter(), badge.adjusted(4, 0, -4, 0), Qt::AlignCenter, QString("×%1").arg(each.boxes),
                   face(Face::round, 20 * scale, true));
    }

    void drawWords(const Json& module, const std::optional<Goods>& first, const std::optional<Goods>& second,
                   const QRectF& area, bool large) {
        const double scale = large ? 1.7 : 1;
        const int flags = large ? int(Qt::AlignCenter) : left;
        double y = area.top();
        const auto write = [&](const QString& words, double size, bool bold, double height) {
            if (!words.isEmpty()) {
                drawFitted(painter(), QRectF(area.left(), y, area.width(), height), flags, words,
                           face(bold ? Face::round : Face::body, size, bold));
                y += height;
            }
        };
        pen(theme_.ink);
        for (const auto& each : {first, second}) {
            if (each) {
                write(QString("%1 %2 %3 · %4")
                          .arg(each->boxes)
                          .arg(each->boxes == 1 ? "caja" : "cajas", text(each->brand->name),
                               text(each->format->icon)),
                      19 * scale, true, 25 * scale);
            }
        }
        const QString reference = member(module, "code_promotion");
        painter().setPen(mixed(colour(theme_.ink), colour(theme_.paper), 0.3));
        write(reference.isEmpty() ? QString() : "Ref. " + reference, 16 * scale, false, 22 * scale);
        drawPrice(module["price"].get<double>(), first, second,
                  QRectF(area.left(), std::max(y + 4, area.bottom() - 58 * scale), area.width(), 54 * scale),
                  large);
    }

    /// The price, and beside it what a bottle costs where all that is offered comes in bottles.
    void drawPrice(double price, const std::optional<Goods>& first, const std::optional<Goods>& second,
                   const QRectF& line, bool large) {
        const double pill = std::min(large ? 300.0 : 150.0, line.width() * 0.5);
        const double begin = large ? line.center().x() - pill : line.left();
        const QRectF area(begin, line.top(), pill, line.height());
        painter().setPen(Qt::NoPen);
        painter().setBrush(colour(theme_.accent));
        painter().drawRoundedRect(area, area.height() / 2, area.height() / 2);
        painter().setPen(inkOn(colour(theme_.accent)));
        drawFitted(painter(), area.adjusted(12, 0, -12, 0), Qt::AlignCenter, euros(price),
                   face(Face::round, large ? 50 : 30, true));
        int bottles = 0;
        for (const auto& each : {first, second}) {
            if (each && (!each->format->isBottle || each->bottles() == 0)) {
                return;
            }
            bottles += each ? each->bottles() : 0;
        }
        if (bottles == 0) {
            return;
        }
        pen(theme_.ink);
        drawFitted(painter(),
                   QRectF(area.right() + 14, line.top(), line.right() - area.right() - 14, line.height()),
                   left, euros(price / bottles) + " por botella", face(Face::body, large ? 30 : 18));
    }

    const Json& order_;
    const Catalogue& catalogue_;
    const Theme& theme_;
    PdfSheet sheet_;
    double y_ = 0;
};

} // namespace

QByteArray sellingSheetPdf(const Json& order, const Catalogue& catalogue) {
    return Sheet(order, catalogue).make();
}

QImage distributorLogo() {
    QImage image(480, 160, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour(0x0E5A8A));
    painter.drawRoundedRect(QRectF(4, 4, 472, 152), 28, 28);
    painter.setBrush(colour(0xF2B441));
    painter.drawEllipse(QRectF(26, 36, 88, 88));
    painter.setPen(colour(0xFFFFFF));
    drawFitted(painter, QRectF(132, 24, 330, 64), left, "Ribera Alta", face(Face::title, 52, true));
    drawFitted(painter, QRectF(132, 90, 330, 40), left, "Distribuciones", face(Face::body, 30));
    return image;
}

} // namespace kavor::demo
