#pragma once

#include <QByteArrayView>
#include <QSize>

#include <optional>

namespace velmora {

/** The formats that a picture may have. No other is decoded, whatever the desktop could read: an SVG, for
   one, names other files, which reading it would open. */
enum class PictureFormat { Jpeg, Png, Gif, Bmp, WebP, Tiff };

/** How many first bytes of a picture tell its format. */
inline constexpr qsizetype pictureSignatureSize = 12;

/** The format of the picture that begins with BYTES, told by its signature; nothing when it is none of those
   above. */
[[nodiscard]] std::optional<PictureFormat> pictureFormat(QByteArrayView bytes);

/** The name under which the desktop's image readers know FORMAT. */
[[nodiscard]] const char* imageReaderName(PictureFormat format);

/** Whether a picture of SIZE pixels that comes as BYTES of encoded data may be decoded: up to 40 megapixels
   always; above that up to 100 pixels for each byte, and at most 16,384 x 16,384. A few bytes can claim
   billions of pixels. */
[[nodiscard]] bool isReasonableSize(const QSize& size, qsizetype bytes);

/** The number of pixels of a picture of SIZE. */
[[nodiscard]] inline qint64 pixelCount(const QSize& size) {
    return qint64{size.width()} * size.height();
}

} // namespace velmora
