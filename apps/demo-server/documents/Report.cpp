#include "documents/Report.h"

#include "drawing/Covers.h"
#include "drawing/Tools.h"

#include <QFontMetricsF>

#include <algorithm>

namespace kavor::demo {

Report::Report(const QString& title, const QString& subtitle, int theme)
    : own_(std::make_unique<PdfSheet>(title, false))
    , sheet_(*own_)
    , theme_(themes()[size_t(theme)])
    , title_(title)
    , subtitle_(subtitle) {
    drawHead();
}

Report::Report(PdfSheet& sheet, const QString& title, const QString& subtitle, int theme)
    : sheet_(sheet)
    , theme_(themes()[size_t(theme)])
    , title_(title)
    , subtitle_(subtitle) {
    sheet_.newPage(QSizeF(210, 297));
    drawHead();
}

void Report::need(double height) {
    if (y_ + height > sheet_.page().bottom() - 50) {
        sheet_.newPage();
        drawHead();
    }
}

void Report::heading(const QString& words) {
    need(80);
    painter().setPen(colour(theme_.ink));
    drawFitted(painter(), QRectF(margin, y_, width(), 32), Qt::AlignLeft | Qt::AlignVCenter, words,
               face(Face::round, 22, true));
    painter().setPen(QPen(colour(theme_.accent), 2));
    painter().drawLine(QPointF(margin, y_ + 35), QPointF(margin + width(), y_ + 35));
    y_ += 44;
}

void Report::line(const QString& left, const QString& right) {
    if (left.isEmpty() && right.isEmpty()) {
        return;
    }
    need(26);
    painter().setPen(colour(theme_.ink));
    drawFitted(painter(), QRectF(margin + 6, y_, right.isEmpty() ? width() - 6 : width() * 0.6, 24),
               Qt::AlignLeft | Qt::AlignVCenter, left, face(Face::body, 17));
    drawFitted(painter(), QRectF(margin + width() * 0.62, y_, width() * 0.38, 24),
               Qt::AlignRight | Qt::AlignVCenter, right, face(Face::body, 17, true));
    y_ += 26;
}

void Report::paragraph(const QString& words) {
    constexpr int flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
    constexpr double least = 20, most = 760;
    const QRectF whole(margin + 6, 0, width() - 6, most);
    const QFont font = face(Face::body, 18);
    const double height =
        std::clamp(QFontMetricsF(font).boundingRect(whole, flags, words).height(), least, most);
    need(height + 6);
    painter().setPen(mixed(colour(theme_.ink), colour(theme_.paper), 0.3));
    drawFitted(painter(), QRectF(margin + 6, y_, width() - 6, height), flags, words, font);
    y_ += height + 6;
}

void Report::drawHead() {
    drawPaper(painter(), sheet_.page(), theme_, false);
    painter().setPen(Qt::NoPen);
    painter().setBrush(colour(theme_.ink));
    painter().drawRect(QRectF(0, 0, sheet_.page().width(), 112));
    painter().setBrush(colour(theme_.accent));
    painter().drawRect(QRectF(0, 112, sheet_.page().width(), 7));
    painter().setPen(colour(theme_.paper));
    drawFitted(painter(), QRectF(margin, 18, width(), 50), Qt::AlignLeft | Qt::AlignVCenter, title_,
               theme_.script ? face(Face::script, 42) : face(Face::title, 34, true));
    drawFitted(painter(), QRectF(margin, 68, width(), 28), Qt::AlignLeft | Qt::AlignVCenter, subtitle_,
               face(Face::body, 19));
    y_ = 146;
}

QString member(const Json& object, const char* key) {
    const auto found = object.find(key);
    return found != object.end() && found->is_string() ? text(found->get<std::string>()) : QString();
}

} // namespace kavor::demo
