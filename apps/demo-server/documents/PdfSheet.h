#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QPainter>
#include <QPdfWriter>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <memory>

namespace kavor::demo {

/// A PDF under way. Drawing is in units of which a page's short side has 744, so that an A4 page is 1052
/// long.
class PdfSheet {
public:
    /// Its pages are A4 as long as no other size is asked for.
    PdfSheet(const QString& title, bool landscape);
    /// The first page has a size in millimetres.
    PdfSheet(const QString& title, const QSizeF& millimetres);

    QPainter& painter() { return *painter_; }
    QRectF page() const { return page_; }
    void newPage();
    void newPage(const QSizeF& millimetres);

    /// Ends the document and answers its bytes.
    QByteArray finish();

private:
    void setSize(const QSizeF& millimetres);
    void setUnits();

    QByteArray bytes_;
    QBuffer buffer_;
    std::unique_ptr<QPdfWriter> writer_;
    std::unique_ptr<QPainter> painter_;
    QRectF page_;
};

/// A price as a Spaniard writes it: "2,20 €".
QString euros(double price);

} // namespace kavor::demo
