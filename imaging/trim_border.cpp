#include "trim_border.h"

#include "bitmap_trim.h"

#include "platform/image_decode.h"
#include "platform/log.h"

#include <QColorSpace>

#include <cstdlib>
#include <cstring>
#include <memory>

namespace velmora {
namespace {

constexpr QImage::Format bitmapFormat = QImage::Format_RGBA8888_Premultiplied;
constexpr std::size_t pixelBytes = sizeof(std::uint32_t);

struct FreeBitmap {
    void operator()(std::uint32_t* pixels) const { std::free(pixels); }
};
using Bitmap = std::unique_ptr<std::uint32_t, FreeBitmap>;

/** COVER as a bitmap; null, with a line in the log, when that can't be had. */
QImage render(const QImage& cover, const TrimBorderSteps& steps) {
    const QImage source = steps.imageSource(cover);
    if (source.isNull()) {
        appLog(QStringLiteral("failed to create image source\n"));
        return {};
    }
    const QImage image = steps.image(source);
    if (image.isNull()) {
        appLog(QStringLiteral("failed to create image\n"));
        return {};
    }
    QImage context = steps.context(image);
    if (context.isNull()) {
        appLog(QStringLiteral("failed to create context\n"));
    }
    return context;
}

/** Puts packed PIXELS into REPRESENTATION and fills the rest of its rows with zeros. */
void copy_pixels(const std::uint32_t* pixels, QImage& representation) {
    const auto width = static_cast<std::size_t>(representation.width());
    const auto height = static_cast<std::size_t>(representation.height());
    const auto bytesPerRow = static_cast<std::size_t>(representation.bytesPerLine());
    // The one-block copy is for storage whose single row is the whole image: a row's length in bytes is
    // compared with the whole image's, and one row is copied.
    if (bytesPerRow == width * height * pixelBytes) {
        std::memcpy(representation.bits(), pixels, bytesPerRow);
        return;
    }
    const std::size_t rowBytes = width * pixelBytes;
    for (int y = 0; y < representation.height(); ++y) {
        uchar* row = representation.scanLine(y);
        std::memcpy(row, pixels + static_cast<std::size_t>(y) * width, rowBytes);
        std::memset(row + rowBytes, 0, bytesPerRow - rowBytes);
    }
}

} // namespace

QImage TrimBorderSteps::imageSource(const QImage& cover) const {
    QImage source = withWholePalette(cover);
    source.setDevicePixelRatio(1);
    return source;
}

QImage TrimBorderSteps::image(const QImage& source) const {
    return source.colorSpace().isValid() ? source.convertedToColorSpace(QColorSpace::SRgb) : source;
}

QImage TrimBorderSteps::context(const QImage& image) const {
    const QImage bitmap = image.convertToFormat(bitmapFormat);
    // Pixels that were not allocated by the image itself may have padded rows; a copy has none.
    const bool packed = static_cast<std::size_t>(bitmap.bytesPerLine()) == bitmap.width() * pixelBytes;
    return packed ? bitmap : bitmap.copy();
}

const std::uint32_t* TrimBorderSteps::bitmapData(const QImage& context) const {
    return reinterpret_cast<const std::uint32_t*>(context.constBits());
}

QImage TrimBorderSteps::representation(int width, int height) const {
    return {width, height, bitmapFormat};
}

std::optional<QImage> trim_border(const QImage& cover, const TrimBorderSteps& steps) {
    if (cover.isNull()) {
        return std::nullopt;
    }
    const QImage context = render(cover, steps);
    if (context.isNull()) {
        return std::nullopt;
    }
    const std::uint32_t* data = steps.bitmapData(context);
    if (!data) {
        appLog(QStringLiteral("failed to get bitmap data\n"));
        return std::nullopt;
    }
    auto width = static_cast<std::uint32_t>(context.width());
    auto height = static_cast<std::uint32_t>(context.height());
    const Bitmap trimmed(bitmap_trim(data, &width, &height));
    if (!trimmed) {
        appLog(QStringLiteral("didn't get trimmed data\n"));
        return std::nullopt;
    }
    QImage representation = steps.representation(static_cast<int>(width), static_cast<int>(height));
    if (representation.isNull()) {
        return std::nullopt;
    }
    copy_pixels(trimmed.get(), representation);
    return representation;
}

} // namespace velmora
