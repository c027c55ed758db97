#pragma once

#include "Json.h"
#include "catalogue/Styles.h"
#include "documents/PdfSheet.h"

#include <QString>

namespace kavor::demo {

/// A4 pages with the programme's head band, on which lines are written one under the other.
class Report {
public:
    static constexpr double margin = 52;

    Report(const QString& title, const QString& subtitle, int theme);
    /// The same at the end of a document; it begins on a page of its own.
    Report(PdfSheet& sheet, const QString& title, const QString& subtitle, int theme);

    QPainter& painter() { return sheet_.painter(); }
    double& y() { return y_; }
    double width() const { return sheet_.page().width() - 2 * margin; }
    const Theme& theme() const { return theme_; }

    /// A new page when so much does not fit on this one.
    void need(double height);
    void heading(const QString& words);
    /// Nothing for two empty texts.
    void line(const QString& left, const QString& right = {});
    void paragraph(const QString& words);

    QByteArray finish() { return sheet_.finish(); }

private:
    void drawHead();

    std::unique_ptr<PdfSheet> own_;
    PdfSheet& sheet_;
    const Theme& theme_;
    QString title_, subtitle_;
    double y_ = 0;
};

/// A text of an object, empty where there is none.
QString member(const Json& object, const char* key);

} // namespace kavor::demo
