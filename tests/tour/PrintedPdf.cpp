#include "tour/PrintedPdf.h"

#include "support/TouchDriver.h"

#include <QBuffer>
#include <QPdfDocument>
#include <QPdfSelection>
#include <QRegularExpression>

namespace kavor {

namespace {

QString plainText(QString text) {
    return text.replace(QRegularExpression(QStringLiteral("[\\s\\x{a0}\\x{202f}]+")), QStringLiteral(" "));
}

} // namespace

PrintedPdf::PrintedPdf(QByteArray content) {
    QBuffer buffer(&content);
    QPdfDocument document;
    buffer.open(QIODevice::ReadOnly);
    document.load(&buffer);
    pages_ = document.pageCount();
    if (pages_ == 0)
        throw TouchFailure("a PDF; it is " + content.left(200).toStdString());
    for (int page = 0; page < pages_; ++page)
        text_ += document.getAllText(page).text() + QLatin1Char('\n');
    text_ = plainText(text_);
}

void PrintedPdf::mustSay(const QString& part) const {
    if (!text_.contains(plainText(part)))
        throw TouchFailure("the PDF says \"" + part.toStdString() + "\"; it says:\n" + text_.toStdString());
}

} // namespace kavor
