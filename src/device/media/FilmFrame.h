#pragma once

#include <QImage>

class QVideoFrame;

namespace kavor {

// The picture of a frame, worked out by the processor: Qt's own way asks for a graphics context, which only
// the window's thread has. Null for a frame that cannot be read.
QImage pictureOf(QVideoFrame frame);

} // namespace kavor
