#include "image_encode.h"

#include "detail/jpeg_recode.h"
#include "image_decode.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>

#include <algorithm>
#include <cstring>
#include <utility>

namespace velmora {

namespace {

constexpr int jpegQuality = 20; // compression factor 0.2
constexpr int fineJpegQuality = 90;
/** Above this many pixels it matters that a progressive encoder keeps the whole picture a second time. */
constexpr qint64 largePicture = 10'000'000;
constexpr int bandRows = 64;

/** SOURCE over white. */
QImage flattened(QImage source) {
    QImage flat(source.size(), QImage::Format_RGB32);
    flat.fill(Qt::white);
    source.setDevicePixelRatio(1);
    QPainter(&flat).drawImage(0, 0, source);
    return flat;
}

/** The same in the memory of PIXELS, which have 4 bytes each and belong to nobody else. */
QImage flattenedInPlace(QImage pixels) {
    auto* const owner = new QImage(std::move(pixels));
    uchar* const bits = owner->bits();
    const qsizetype rowBytes = owner->bytesPerLine();
    for (int y = 0; y < owner->height(); y += bandRows) {
        uchar* const top = bits + y * rowBytes;
        const int rows = std::min(bandRows, owner->height() - y);
        const QImage band = flattened(QImage(top, owner->width(), rows, rowBytes, owner->format()));
        std::memcpy(top, band.constBits(), static_cast<std::size_t>(band.sizeInBytes()));
    }
    return {bits,     owner->width(),       owner->height(),
            rowBytes, QImage::Format_RGB32, [](void* image) { delete static_cast<QImage*>(image); },
            owner};
}

QImage withoutTransparency(QImage pixels) {
    if (!pixels.hasAlphaChannel()) {
        return pixels;
    }
    const bool isOurs =
        pixels.isDetached() && pixels.depth() == 32 && pixels.bytesPerLine() == qsizetype{pixels.width()} * 4;
    return isOurs ? flattenedInPlace(std::move(pixels)) : flattened(std::move(pixels));
}

QByteArray written(const QImage& pixels, bool progressive, int quality) {
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(quality);
    writer.setProgressiveScanWrite(progressive);
    return writer.write(pixels) ? jpeg : QByteArray();
}

} // namespace

QByteArray encodedAsJpeg(QImage pixels) {
    const bool isLarge = pixelCount(pixels.size()) > largePicture;
    QImage opaque = withoutTransparency(withWholePalette(std::move(pixels)));
    if (!isLarge) {
        return written(opaque, true, jpegQuality);
    }
    const QByteArray onePass = written(opaque, false, jpegQuality);
    opaque = QImage();
    return onePass.isEmpty() ? onePass : recodedJpeg(onePass, JpegPasses::Progressive);
}

QByteArray encodedAsFineJpeg(QImage pixels) {
    return written(withoutTransparency(withWholePalette(std::move(pixels))), false, fineJpegQuality);
}

} // namespace velmora
