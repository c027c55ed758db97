#pragma once

#include "catalogue/Styles.h"

#include <QImage>
#include <QPainter>
#include <QRectF>

#include <string>
#include <vector>

namespace kavor::demo {

/// What stands on a cover.
struct CoverText {
    std::string title;
    std::string bar;
    std::string tagline;
    std::vector<const Look*> logos;
    QImage barLogo;
    std::vector<std::string> backLines; ///< free texts and addresses of the back
};

/// The size of a sheet of this kind, in units of which an A4 page is 744 wide.
QSizeF sheetSize(BrochureKind kind, bool landscape);
/// Whether sheets of a style lie on their long side.
bool isLandscape(const Style& style);

/// The ground of every page in a theme: paper, pattern and, when asked for, the frame.
void drawPaper(QPainter& painter, const QRectF& page, const Theme& theme, bool strong);

/// Front and back of a printed work in a theme.
void drawCoverFront(QPainter& painter, const QRectF& page, BrochureKind kind, const Theme& theme,
                    const CoverText& words);
void drawCoverBack(QPainter& painter, const QRectF& page, BrochureKind kind, const Theme& theme,
                   const CoverText& words);

/// A strip of pennants with marks, as wide as the rectangle.
void drawBunting(QPainter& painter, const QRectF& strip, const Theme& theme,
                 const std::vector<const Look*>& marks, int flags = 6);

} // namespace kavor::demo
