#include "GalleryPaper.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPdfWriter>

namespace kavor {

void writeGalleryPictures(const QString& folder) {
    const QList<QColor> colours = {"#7A3E1D", "#1D5543", "#B9772A", "#2F4B66", "#6C2B3C", "#3E5A2A"};
    for (int index = 0; index < colours.size(); ++index) {
        QImage image(600, 800, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        QLinearGradient ground(0, 0, 0, 800);
        ground.setColorAt(0, colours[index].lighter(150));
        ground.setColorAt(1, colours[index]);
        painter.fillRect(image.rect(), ground);
        painter.setPen(QPen(QColor(255, 255, 255, 90), 10));
        painter.drawEllipse(QPoint(300, 360), 180, 180);
        painter.setPen(Qt::white);
        QFont font(QStringLiteral("Roboto"));
        font.setPixelSize(90);
        font.setBold(true);
        painter.setFont(font);
        painter.drawText(image.rect().adjusted(0, -80, 0, -80), Qt::AlignCenter,
                         QString(QChar(u'A' + index)));
        painter.end();
        image.save(QStringLiteral("%1/picture%2.png").arg(folder).arg(index));
    }
}

void writeGalleryPdf(const QString& path) {
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(QPageSize::A5));
    writer.setResolution(100);
    QPainter painter(&writer);
    for (int page = 0; page < 3; ++page) {
        if (page > 0)
            writer.newPage();
        QFont font(QStringLiteral("Roboto"), 22);
        painter.setFont(font);
        painter.drawText(QRect(0, 20, 480, 60), Qt::AlignCenter, QStringLiteral("Carta de Cervezas"));
        font.setPointSize(11);
        painter.setFont(font);
        for (int row = 0; row < 12; ++row) {
            painter.drawText(20, 130 + row * 44,
                             QStringLiteral("Cerveza de la casa %1").arg(page * 12 + row + 1));
            painter.drawText(400, 130 + row * 44, QStringLiteral("2,%1 €").arg(row + 10));
        }
    }
}

} // namespace kavor
