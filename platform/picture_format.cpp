#include "picture_format.h"

#include <array>

namespace velmora {

namespace {

constexpr qint64 alwaysReasonable = 40'000'000; // pixels
constexpr qint64 pixelsPerByte = 100;
constexpr int longestSide = 16384;

struct Signature {
    PictureFormat format;
    QByteArrayView bytes;
};

constexpr QByteArrayView operator""_bytes(const char* text, std::size_t length) {
    return {text, static_cast<qsizetype>(length)};
}

constexpr std::array<Signature, 8> signatures = {{
    {PictureFormat::Jpeg, "\xFF\xD8\xFF"_bytes},
    {PictureFormat::Png, "\x89PNG\r\n\x1A\n"_bytes},
    {PictureFormat::Gif, "GIF87a"_bytes},
    {PictureFormat::Gif, "GIF89a"_bytes},
    {PictureFormat::Bmp, "BM"_bytes},
    {PictureFormat::Tiff, "II*\0"_bytes},
    {PictureFormat::Tiff, "MM\0*"_bytes},
    {PictureFormat::WebP, "RIFF"_bytes},
}};

} // namespace

std::optional<PictureFormat> pictureFormat(QByteArrayView bytes) {
    for (const Signature& signature : signatures) {
        if (!bytes.startsWith(signature.bytes)) {
            continue;
        }
        // RIFF is a container of many kinds; the kind stands behind the size.
        const bool isOther = signature.format == PictureFormat::WebP &&
                             (bytes.size() < pictureSignatureSize || bytes.sliced(8, 4) != "WEBP"_bytes);
        return isOther ? std::nullopt : std::optional(signature.format);
    }
    return std::nullopt;
}

const char* imageReaderName(PictureFormat format) {
    switch (format) {
    case PictureFormat::Jpeg:
        return "jpeg";
    case PictureFormat::Png:
        return "png";
    case PictureFormat::Gif:
        return "gif";
    case PictureFormat::Bmp:
        return "bmp";
    case PictureFormat::WebP:
        return "webp";
    case PictureFormat::Tiff:
        return "tiff";
    }
    return "";
}

bool isReasonableSize(const QSize& size, qsizetype bytes) {
    if (size.isEmpty()) {
        return false;
    }
    const qint64 pixels = pixelCount(size);
    return pixels <= alwaysReasonable ||
           (size.width() <= longestSide && size.height() <= longestSide && pixels <= pixelsPerByte * bytes);
}

} // namespace velmora
