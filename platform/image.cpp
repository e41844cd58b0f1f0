#include "image.h"

#include "file_path.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>

#include <atomic>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora {

struct Image {
    std::atomic<int> references = 1;
    QByteArray bytes; ///< encoded form, when the image was made from one
    mutable QImage pixels;

    const QImage& decoded() const {
        if (pixels.isNull() && !bytes.isEmpty()) {
            pixels = QImage::fromData(bytes);
        }
        return pixels;
    }
};

namespace {

constexpr int jpegQuality = 20; // compression factor 0.2

Image* imageFromEncoded(const QByteArray& bytes) {
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    const QImageReader reader(&buffer);
    // The header alone tells whether these bytes are an image; an image of no size is none.
    if (!reader.canRead() || reader.size().isEmpty()) {
        QImage pixels = QImage::fromData(bytes);
        if (pixels.isNull()) {
            return nullptr;
        }
        auto* image = new Image;
        image->pixels = std::move(pixels);
        return image;
    }
    auto* image = new Image;
    image->bytes = bytes;
    return image;
}

/** Opens a regular file for reading; FILE stays closed otherwise. */
void openRegularFile(const char* path, QFile& file) {
    const int descriptor = ::open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct stat status {};
    if (descriptor < 0) {
        return;
    }
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode) ||
        !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
    }
}

QImage withoutTransparency(const QImage& pixels) {
    if (!pixels.hasAlphaChannel()) {
        return pixels;
    }
    QImage flat(pixels.size(), QImage::Format_RGB32);
    flat.fill(Qt::white);
    QImage source = pixels;
    source.setDevicePixelRatio(1);
    QPainter(&flat).drawImage(0, 0, source);
    return flat;
}

} // namespace

Image* image_retain(Image* image) {
    if (image) {
        image->references.fetch_add(1, std::memory_order_relaxed);
    }
    return image;
}

void image_release(Image* image) {
    if (image && image->references.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        delete image;
    }
}

Image* image_from_bytes(const void* bytes, std::size_t size) {
    return imageFromEncoded(QByteArray(static_cast<const char*>(bytes), static_cast<qsizetype>(size)));
}

Image* image_from_file(const char* path) {
    QFile file;
    openRegularFile(path, file);
    // The first bytes decide before the rest is read: a film chosen by mistake is not pulled into memory.
    if (!file.isOpen() || !QImageReader(&file).canRead() || !file.seek(0)) {
        return nullptr;
    }
    return imageFromEncoded(file.readAll());
}

std::vector<std::uint8_t> image_to_jpeg(const Image* image) {
    if (!image || image->decoded().isNull()) {
        return {};
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(jpegQuality);
    writer.setProgressiveScanWrite(true);
    if (!writer.write(withoutTransparency(image->decoded()))) {
        return {};
    }
    const QByteArray& data = buffer.data();
    return {data.begin(), data.end()};
}

ImageRef ImageRef::adopt(Image* image) {
    return ImageRef(image);
}

ImageRef ImageRef::share(Image* image) {
    return ImageRef(image_retain(image));
}

ImageRef ImageRef::fromQImage(const QImage& pixels) {
    if (pixels.isNull()) {
        return {};
    }
    auto* image = new Image;
    image->pixels = pixels;
    return ImageRef(image);
}

QImage ImageRef::toQImage() const {
    return image_ ? image_->decoded() : QImage();
}

void allowLargeImages() {
    QImageReader::setAllocationLimit(1024); // in MiB
}

QImage imageFromFile(const QString& path) {
    return ImageRef::adopt(image_from_file(pathBytes(path).constData())).toQImage();
}

} // namespace velmora
