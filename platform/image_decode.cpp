#include "image_decode.h"

#include "detail/jpeg_recode.h"
#include "detail/jpeg_stream.h"
#include "detail/png_decode.h"

#include <QBuffer>
#include <QImageIOHandler>
#include <QImageReader>

#include <algorithm>
#include <cstring>

namespace velmora {

namespace {

constexpr qint64 mostQuickPixels = 4'000'000;
constexpr qint64 mostQuickPassPixels = 24'000'000; // pixels of all passes together
constexpr qint64 largePicture = 40'000'000;
constexpr qint64 pixelBytes = 4;
constexpr qint64 spareMemory = qint64{64} << 20;
constexpr int checkedScale = 8;

/** The bytes of a picture, given out in PIECES of so many for as long as nobody has cancelled. */
class CancellableSource : public QIODevice {
public:
    CancellableSource(QByteArray bytes, qint64 pieces, const std::atomic<bool>& cancelled)
        : bytes_(std::move(bytes)), pieces_(pieces), cancelled_(cancelled) {
        open(ReadOnly | Unbuffered);
    }
    [[nodiscard]] qint64 size() const override { return bytes_.size(); }

protected:
    qint64 readData(char* data, qint64 most) override {
        if (cancelled_.load(std::memory_order_relaxed)) {
            return -1;
        }
        const qint64 count = std::min({most, pieces_, bytes_.size() - pos()});
        std::memcpy(data, bytes_.constData() + pos(), static_cast<std::size_t>(count));
        return count;
    }
    qint64 writeData(const char* /*data*/, qint64 /*most*/) override { return -1; }

private:
    const QByteArray bytes_;
    const qint64 pieces_;
    const std::atomic<bool>& cancelled_;
};

/** A reader of DEVICE that can be no other than FORMAT's. */
class FormatReader : public QImageReader {
public:
    FormatReader(QIODevice* device, PictureFormat format) : QImageReader(device, imageReaderName(format)) {
        setAutoDetectImageFormat(false);
    }
};

std::optional<PictureHeader> readJpegHeader(const QByteArray& bytes) {
    const std::optional<JpegStream> stream = jpegStream(bytes);
    if (!stream || !isReasonablePassCount(*stream)) {
        return std::nullopt;
    }
    return PictureHeader{PictureFormat::Jpeg, stream->size, stream->scans, stream->coefficientBytes};
}

/** The canvas on which all of a GIF's pictures are laid out. */
QSize gifScreen(const QByteArray& bytes) {
    constexpr qsizetype headerSize = 10;
    if (bytes.size() < headerSize) {
        return {};
    }
    const auto word = [&bytes](qsizetype at) {
        return static_cast<unsigned char>(bytes[at]) | static_cast<unsigned char>(bytes[at + 1]) << 8;
    };
    return {word(6), word(8)};
}

std::optional<PictureHeader> readOtherHeader(const QByteArray& bytes, PictureFormat format) {
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    const FormatReader reader(&buffer, format);
    PictureHeader header{format, reader.canRead() ? reader.size() : QSize(), 1, 0};
    if (format == PictureFormat::Gif) {
        header.size = header.size.expandedTo(gifScreen(bytes));
    }
    header.isDeep = format == PictureFormat::Png && isDeepPng(bytes);
    // Above that, the decoders of the other formats would take too much: they hold the picture more than
    // once.
    const bool isLean = format == PictureFormat::Png || format == PictureFormat::Bmp;
    if (pixelCount(header.size) > largePicture && !isLean) {
        return std::nullopt;
    }
    return header;
}

bool fitsIntoMemory(const PictureHeader& header) {
    const qint64 pixels = pixelCount(header.size);
    return pixels <= largePicture || header.coefficientBytes <= pixels * pixelBytes + spareMemory;
}

/** The picture at its own size, or smaller where the decoder gains by it, but no smaller than SIZE. */
QImage readTowards(const QSize& size, const QByteArray& bytes, const PictureHeader& header,
                   const std::atomic<bool>& cancelled) {
    // A few hundred bytes of a JPEG can stand for a walk through the whole picture; readers of other formats
    // want what they ask for.
    const qint64 pieces = header.format == PictureFormat::Jpeg ? 512 : bytes.size();
    CancellableSource source(bytes, pieces, cancelled);
    FormatReader reader(&source, header.format);
    // Scaling a PNG on the way saves memory and takes twice the time.
    const bool gains = header.format == PictureFormat::Jpeg || header.format == PictureFormat::WebP ||
                       pixelCount(header.size) > largePicture;
    if (gains && size != header.size && reader.supportsOption(QImageIOHandler::ScaledSize)) {
        reader.setScaledSize(size);
    }
    return withWholePalette(reader.read());
}

/** PIXELS at SIZE. Thinned out first: smoothing every pixel of a large picture takes longer
   than decoding it. */
QImage thinnedOut(const QImage& pixels, const QSize& size) {
    constexpr int oversampling = 2;
    const QSize enough = size * oversampling;
    const bool isMuchLarger = pixels.width() > enough.width() && pixels.height() > enough.height();
    return (isMuchLarger ? pixels.scaled(enough) : pixels)
        .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

std::optional<PictureHeader> readPictureHeader(const QByteArray& bytes) {
    const std::optional<PictureFormat> format = pictureFormat(bytes);
    if (!format) {
        return std::nullopt;
    }
    const std::optional<PictureHeader> header =
        *format == PictureFormat::Jpeg ? readJpegHeader(bytes) : readOtherHeader(bytes, *format);
    const bool isReasonable =
        header && isReasonableSize(header->size, bytes.size()) && fitsIntoMemory(*header);
    return isReasonable ? header : std::nullopt;
}

bool isQuicklyDecoded(const PictureHeader& header) {
    const qint64 pixels = pixelCount(header.size);
    return pixels <= mostQuickPixels && pixels * header.passes <= mostQuickPassPixels;
}

bool hasDecodableData(const QByteArray& bytes, const PictureHeader& header) {
    if (header.format != PictureFormat::Jpeg) {
        return true;
    }
    if (!isQuicklyDecoded(header)) {
        return jpegBeginsWell(bytes);
    }
    if (const std::optional<QByteArray> emptied = emptiedJpeg(bytes)) {
        return isDecodedWhole(*emptied);
    }
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    FormatReader reader(&buffer, header.format);
    reader.setScaledSize((header.size / checkedScale).expandedTo(QSize(1, 1)));
    return !reader.read().isNull();
}

QImage decodePicture(const QByteArray& bytes, const PictureHeader& header) {
    if (header.isDeep && !isQuicklyDecoded(header)) {
        const std::atomic<bool> never = false;
        return decodedInEightBits(bytes, never);
    }
    QBuffer buffer;
    buffer.setData(bytes);
    if (header.coefficientBytes > spareMemory / 2) {
        // The coefficients are let go of before there are pixels.
        if (const QByteArray onePass = recodedJpeg(bytes, JpegPasses::One); !onePass.isEmpty()) {
            buffer.setData(onePass);
        }
    }
    buffer.open(QIODevice::ReadOnly);
    FormatReader reader(&buffer, header.format);
    return withWholePalette(reader.read());
}

QImage decodePictureToFit(const QByteArray& bytes, const PictureHeader& header, const QSize& box,
                          const std::atomic<bool>& cancelled) {
    const bool isLarger = header.size.width() > box.width() || header.size.height() > box.height();
    const QSize fitting =
        isLarger ? header.size.scaled(box, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)) : header.size;
    const QImage pixels =
        header.isDeep ? decodedInEightBits(bytes, cancelled) : readTowards(fitting, bytes, header, cancelled);
    if (cancelled.load(std::memory_order_relaxed)) {
        return {};
    }
    return pixels.isNull() || pixels.size() == fitting ? pixels : thinnedOut(pixels, fitting);
}

QImage withWholePalette(QImage pixels) {
    const bool hasPalette = pixels.format() == QImage::Format_Indexed8 ||
                            pixels.format() == QImage::Format_Mono ||
                            pixels.format() == QImage::Format_MonoLSB;
    const int whole = pixels.format() == QImage::Format_Indexed8 ? 256 : 2;
    if (hasPalette && pixels.colorCount() < whole) {
        QList<QRgb> colours = pixels.colorTable();
        colours.append(QList<QRgb>(whole - colours.size(), qRgb(0, 0, 0)));
        pixels.setColorTable(colours);
    }
    return pixels;
}

} // namespace velmora
