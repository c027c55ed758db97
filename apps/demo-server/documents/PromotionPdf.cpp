#include "documents/PromotionPdf.h"

#include "catalogue/Content.h"
#include "documents/PdfSheet.h"
#include "documents/Report.h"
#include "drawing/Tools.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace kavor::demo {

namespace {

const Support* supportOf(const Poster& poster, int id) {
    const auto found = std::ranges::find(supports(), id - poster.supportId(0), &Support::id);
    return found == supports().end() ? nullptr : &*found;
}

QString languageName(int id) {
    const auto found = std::ranges::find(languages(), id, &Language::id);
    return found == languages().end() ? QString() : QString(found->name);
}

/// The last page: what was ordered, for whom and when it holds.
class Summary {
public:
    Summary(PdfSheet& sheet, const Json& order, const Poster& poster, const Look& look)
        : order_(order)
        , poster_(poster)
        , look_(look)
        , report_(sheet, poster.texts.front().title, text(look.name),
                  themes()[size_t(poster.theme)].dark ? 0 : poster.theme) {}

    void write() {
        writeBar();
        writeFormats();
        writeAttributes();
        writeValidity();
        writeMails();
        if (const QString comment = member(order_, "comment"); !comment.isEmpty()) {
            report_.heading("Comentario para soporte");
            report_.paragraph(comment);
        }
    }

private:
    void writeBar() {
        const Json& customer = order_["customer"];
        report_.heading("Establecimiento");
        const QString code = member(customer, "cod_tevo");
        report_.line(member(customer, "name"), code.isEmpty() ? QString() : "Código cliente " + code);
        report_.y() += 8;
    }

    void writeFormats() {
        report_.heading("Formatos");
        const double height = order_["supports"].size() > 3 ? 38 : 84;
        for (const Json& wanted : order_["supports"]) {
            if (const Support* support = supportOf(poster_, wanted["id"].get<int>())) {
                report_.need(height + 8);
                writeFormat(*support, wanted["language_id"].get<int>(), height);
                report_.y() += height + 8;
            }
        }
    }

    /// The poster in small, and its format and language beside it; in two lines where there is room.
    void writeFormat(const Support& support, int language, double height) {
        constexpr int flags = Qt::AlignLeft | Qt::AlignVCenter;
        constexpr double lineHeight = 26;
        const double column = height * 1.3;
        const QSizeF size = QSizeF(support.width, support.height).scaled(column, height, Qt::KeepAspectRatio);
        drawPoster(report_.painter(),
                   QRectF(QPointF(Report::margin + 6 + (column - size.width()) / 2,
                                  report_.y() + (height - size.height()) / 2),
                          size),
                   poster_, look_, posterWords(poster_, order_["attributes"], language));
        const bool two = height >= 2 * lineHeight;
        const double left = Report::margin + column + 24, width = report_.width() - column - 24;
        const QRectF line(left, report_.y() + (height - lineHeight * (two ? 2 : 1)) / 2, width, lineHeight);
        report_.painter().setPen(colour(report_.theme().ink));
        drawFitted(report_.painter(), line.adjusted(0, 0, two ? -140 : -width * 0.6, 0), flags, support.name,
                   face(Face::round, 19, true));
        drawFitted(report_.painter(), line, Qt::AlignRight | Qt::AlignVCenter, languageName(language),
                   face(Face::body, 17, true));
        report_.painter().setPen(mixed(colour(report_.theme().ink), colour(report_.theme().paper), 0.3));
        drawFitted(report_.painter(),
                   two ? line.translated(0, lineHeight) : line.adjusted(width * 0.42, 0, -100, 0), flags,
                   support.description, face(Face::body, 16));
    }

    void writeAttributes() {
        const bool logo = order_.contains("image_logo");
        if (order_["attributes"].empty() && !logo) {
            return;
        }
        report_.heading("Personalización");
        const std::vector<PosterAttribute> asked = poster_.attributes();
        for (const Json& given : order_["attributes"]) {
            const auto attribute = std::ranges::find(asked, given["id"].get<int>(), &PosterAttribute::id);
            const QString value = member(given, "value");
            const auto price = typedPrice(value.toStdString());
            const bool isPrice = attribute != asked.end() && attribute->kind == AttributeKind::price;
            report_.line(attribute == asked.end() ? "Dato" : attribute->name,
                         isPrice && price ? euros(*price) : value);
        }
        if (logo) {
            report_.line("Logotipo del local", "Incluido");
        }
        report_.y() += 8;
    }

    void writeValidity() {
        const QString from = member(order_, "date_from"), to = member(order_, "date_to");
        report_.heading("Vigencia");
        report_.line("Fechas", from.isEmpty() && to.isEmpty() ? "sin límite"
                               : to.isEmpty()                 ? "desde el " + from
                               : from.isEmpty()               ? "hasta el " + to
                                                              : "del " + from + " al " + to);
        const bool shown = order_["show_menu"].get<bool>();
        report_.line("Se muestra en la carta online", shown ? "Sí" : "No");
        writeDays();
    }

    void writeDays() {
        constexpr std::array names = {"L", "M", "X", "J", "V", "S", "D"};
        constexpr double size = 40;
        report_.need(size + 12);
        double x = Report::margin + 6;
        const Theme& theme = report_.theme();
        for (size_t day = 0; day < names.size(); ++day) {
            const bool on = order_["show_promotion_day_" + std::to_string(day + 1)].get<bool>();
            const QRectF circle(x, report_.y() + 4, size, size);
            report_.painter().setPen(QPen(colour(theme.accent), 2));
            report_.painter().setBrush(on ? QBrush(colour(theme.accent)) : QBrush(Qt::NoBrush));
            report_.painter().drawEllipse(circle);
            report_.painter().setPen(on ? inkOn(colour(theme.accent)) : colour(theme.ink, 110));
            drawFitted(report_.painter(), circle, Qt::AlignCenter, names[day], face(Face::round, 18, on));
            x += size + 12;
        }
        report_.y() += size + 18;
    }

    void writeMails() {
        if (order_["emails"].empty()) {
            return;
        }
        report_.heading("Se envía a");
        QStringList addresses;
        for (const Json& mail : order_["emails"]) {
            addresses << member(mail, "email");
        }
        report_.paragraph(addresses.join("  ·  "));
    }

    const Json& order_;
    const Poster& poster_;
    const Look& look_;
    Report report_;
};

} // namespace

QImage pictureOf(const std::string& dataText) {
    const size_t comma = dataText.find(',');
    return comma == std::string::npos ? QImage()
                                      : QImage::fromData(QByteArray::fromBase64(
                                            QByteArray::fromStdString(dataText.substr(comma + 1))));
}

std::optional<double> typedPrice(const std::string& typed) {
    std::string digits;
    const bool comma = typed.find(',') != std::string::npos;
    for (const char letter : typed) {
        if (letter == ',') {
            digits += '.';
        } else if (letter == '.' ? !comma : letter != ' ') { // a point before a comma parts thousands
            digits += letter;
        }
    }
    double price = 0;
    const char* last = digits.data() + digits.size();
    const auto [end, error] = std::from_chars(digits.data(), last, price, std::chars_format::fixed);
    const bool plain = digits.find_first_not_of("0123456789.") == std::string::npos;
    return plain && error == std::errc() && end == last ? std::optional(price) : std::nullopt;
}

PosterWords posterWords(const Poster& poster, const Json& attributes, int language) {
    PosterWords words;
    words.language = language;
    QStringList hours;
    const std::vector<PosterAttribute> asked = poster.attributes();
    for (const Json& given : attributes) {
        const auto attribute = std::ranges::find(asked, given["id"].get<int>(), &PosterAttribute::id);
        const std::string value = given["value"].get<std::string>();
        if (attribute == asked.end() || value.empty()) {
            continue;
        }
        switch (attribute->kind) {
        case AttributeKind::words:
            words.phrase = text(value);
            break;
        case AttributeKind::logo:
            words.logo = pictureOf(value);
            break;
        case AttributeKind::price:
            words.price = euros(typedPrice(value).value_or(0));
            break;
        case AttributeKind::list:
            hours << text(value);
            break;
        case AttributeKind::hour:
            hours << text(value) + " h";
            break;
        }
    }
    words.hours = hours.join(" · ");
    return words;
}

QByteArray promotionPdf(const Json& order, const Catalogue& catalogue) {
    const Poster* poster = posterOf(order["promotion_id"].get<int>());
    if (!poster) {
        poster = &posters().front();
    }
    const Look look = poster->look(catalogue.brands());
    std::optional<PdfSheet> sheet;
    for (const Json& wanted : order["supports"]) {
        const Support* support = supportOf(*poster, wanted["id"].get<int>());
        if (!support) {
            continue;
        }
        const QSizeF size(support->width, support->height);
        sheet ? sheet->newPage(size) : void(sheet.emplace(poster->texts.front().title, size));
        PosterWords words = posterWords(*poster, order["attributes"], wanted["language_id"].get<int>());
        words.bar = member(order["customer"], "name");
        words.logo = pictureOf(order.value("image_logo", ""));
        drawPoster(sheet->painter(), sheet->page(), *poster, look, words);
    }
    if (!sheet) {
        return {};
    }
    Summary(*sheet, order, *poster, look).write();
    return sheet->finish();
}

} // namespace kavor::demo
