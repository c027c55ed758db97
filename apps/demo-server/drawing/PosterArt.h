#pragma once

#include "catalogue/Posters.h"

#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QString>

namespace kavor::demo {

/// What a bar adds to a poster; in the catalogue's pictures none of it.
struct PosterWords {
    int language = 1;
    QString phrase, price, hours, bar;
    QImage logo;
};

/// A promotion's poster for a page of any proportions.
void drawPoster(QPainter& painter, const QRectF& page, const Poster& poster, const Look& look,
                const PosterWords& words);

} // namespace kavor::demo
