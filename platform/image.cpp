#include "image.h"

#include "file_path.h"
#include "image_encode.h"

#include <QFile>
#include <QImageReader>

#include <atomic>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora {

struct Image {
    std::atomic<int> references = 1;
    QByteArray bytes; ///< encoded form, when the image was made from one and is not kept as pixels
    PictureHeader header;
    QByteArray original; ///< encoded form, whether or not it is kept as pixels
    mutable QImage pixels;

    QImage decoded() const {
        if (!pixels.isNull() || bytes.isEmpty()) {
            return pixels;
        }
        QImage fresh = decodePicture(bytes, header);
        if (isQuicklyDecoded(header)) {
            pixels = fresh;
        }
        return fresh;
    }
};

namespace {

/** Far more than a picture takes. */
constexpr qint64 largestFile = qint64{512} << 20;

Image* imageFromEncoded(const QByteArray& bytes) {
    const std::optional<PictureHeader> header = readPictureHeader(bytes);
    if (!header || !hasDecodableData(bytes, *header)) {
        return nullptr;
    }
    auto image = std::make_unique<Image>();
    image->header = *header;
    image->original = bytes;
    if (header->format == PictureFormat::Jpeg || !isQuicklyDecoded(*header)) {
        image->bytes = bytes;
    } else {
        image->pixels = decodePicture(bytes, *header);
        if (image->pixels.isNull()) {
            return nullptr;
        }
    }
    return image.release();
}

/** Opens the file at PATH for reading if it is a regular one that begins as a picture does; FILE
   stays closed otherwise. The first bytes decide before the rest is read: a film chosen by mistake is
   not pulled into memory. */
void openPictureFile(const char* path, QFile& file) {
    const int descriptor = ::open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct stat status {};
    if (descriptor < 0) {
        return;
    }
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode) ||
        !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
    } else if (!pictureFormat(file.peek(pictureSignatureSize))) {
        file.close();
    }
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
    openPictureFile(path, file);
    return file.isOpen() && file.size() <= largestFile ? imageFromEncoded(file.readAll()) : nullptr;
}

std::vector<std::uint8_t> image_to_jpeg(const Image* image) {
    if (!image) {
        return {};
    }
    const QByteArray jpeg = encodedAsJpeg(image->decoded());
    return {jpeg.begin(), jpeg.end()};
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
    image->pixels = withWholePalette(pixels);
    return ImageRef(image);
}

ImageRef ImageRef::fromBytes(const QByteArray& bytes) {
    return ImageRef(imageFromEncoded(bytes));
}

ImageRef ImageRef::fromFile(const QString& path) {
    return ImageRef(image_from_file(pathBytes(path).constData()));
}

QSize ImageRef::size() const {
    if (!image_) {
        return {0, 0};
    }
    return image_->pixels.isNull() ? image_->header.size : image_->pixels.size();
}

QImage ImageRef::toQImage() const {
    return image_ ? image_->decoded() : QImage();
}

QByteArray ImageRef::encodedBytes() const {
    return image_ ? image_->original : QByteArray();
}

std::optional<EncodedPicture> ImageRef::slowlyDecoded() const {
    const bool isSlow = image_ && !image_->bytes.isEmpty() && !isQuicklyDecoded(image_->header);
    return isSlow ? std::optional(EncodedPicture{image_->bytes, image_->header}) : std::nullopt;
}

void allowLargeImages() {
    QImageReader::setAllocationLimit(1024); // in MiB
}

bool isPictureFile(const QString& path) {
    QFile file;
    openPictureFile(pathBytes(path).constData(), file);
    return file.isOpen();
}

QImage imageFromFile(const QString& path) {
    return ImageRef::fromFile(path).toQImage();
}

} // namespace velmora
