#include "device/media/FilmFrame.h"

#include <QVideoFrame>
#include <QVideoFrameFormat>

#include <algorithm>

namespace kavor {

namespace {

// Where the colours of a picture stand: for each two by two pixels one of each.
struct Planes {
    const uchar* luma;
    const uchar* blue;
    const uchar* red;
    int lumaStride;
    int colourStride;
    int colourStep; // between two colours of a row
};

// Fixed-point weights of the two standards in use, in 1/1024.
struct Weights {
    int redOfRed, greenOfBlue, greenOfRed, blueOfBlue;
};
constexpr Weights standard{1634, 401, 833, 2066};       // BT.601
constexpr Weights highDefinition{1836, 218, 546, 2163}; // BT.709

uint pixel(const Weights& weights, int luma, int blue, int red) {
    const auto clamped = [](int value) { return uint(std::clamp(value >> 10, 0, 255)); };
    const int light = 1192 * (luma - 16);
    blue -= 128;
    red -= 128;
    return 0xFF000000U | clamped(light + weights.redOfRed * red) << 16 |
           clamped(light - weights.greenOfBlue * blue - weights.greenOfRed * red) << 8 |
           clamped(light + weights.blueOfBlue * blue);
}

QImage painted(const Planes& planes, QSize size, const Weights& weights) {
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        const uchar* luma = planes.luma + qsizetype(y) * planes.lumaStride;
        const qsizetype colours = qsizetype(y / 2) * planes.colourStride;
        auto* row = reinterpret_cast<uint*>(picture.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const qsizetype colour = colours + qsizetype(x / 2) * planes.colourStep;
            row[x] = pixel(weights, luma[x], planes.blue[colour], planes.red[colour]);
        }
    }
    return picture;
}

QImage pictureOfMapped(const QVideoFrame& frame) {
    const Weights& weights =
        frame.surfaceFormat().colorSpace() == QVideoFrameFormat::ColorSpace_BT709 || frame.height() >= 720
            ? highDefinition
            : standard;
    switch (frame.pixelFormat()) {
    case QVideoFrameFormat::Format_YUV420P:
        return painted(
            {frame.bits(0), frame.bits(1), frame.bits(2), frame.bytesPerLine(0), frame.bytesPerLine(1), 1},
            frame.size(), weights);
    case QVideoFrameFormat::Format_NV12:
        return painted({frame.bits(0), frame.bits(1), frame.bits(1) + 1, frame.bytesPerLine(0),
                        frame.bytesPerLine(1), 2},
                       frame.size(), weights);
    default:
        return {};
    }
}

} // namespace

QImage pictureOf(QVideoFrame frame) {
    if (!frame.isValid() || !frame.map(QVideoFrame::ReadOnly))
        return {};
    QImage picture = pictureOfMapped(frame);
    frame.unmap();
    return picture;
}

} // namespace kavor
