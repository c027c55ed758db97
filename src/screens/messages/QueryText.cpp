#include "screens/messages/QueryText.h"

#include <QTextBoundaryFinder>
#include <QUrl>

namespace kavor::query_text {

namespace {

qsizetype sizeOf(const QString& text) {
    return QUrl::toPercentEncoding(text).size();
}

} // namespace

QString fitting(const QString& text) {
    if (sizeOf(text) <= most)
        return text;
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, text);
    qsizetype taken = 0;
    qsizetype room = most;
    for (qsizetype end = letters.toNextBoundary(); end > 0; end = letters.toNextBoundary()) {
        room -= sizeOf(text.mid(taken, end - taken));
        if (room < 0)
            break;
        taken = end;
    }
    return text.left(taken);
}

QString counter(const QString& text) {
    const qsizetype size = sizeOf(text);
    if (size < most * 7 / 10)
        return {};
    return QStringLiteral("%1/%2").arg(size).arg(most);
}

} // namespace kavor::query_text
