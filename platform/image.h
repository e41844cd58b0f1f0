#pragma once

#include "image_decode.h"

#include "image_seam/image.h"

#include <QImage>
#include <QMetaType>

#include <optional>
#include <utility>

namespace velmora {

/** A picture as it came, still to be decoded. */
struct EncodedPicture {
    QByteArray bytes;
    PictureHeader header;
};

/** A counted reference to an image object of the tag library, or none. Encoded images keep their bytes and
   are decoded when somebody asks for the pixels; those of a picture that is quickly decoded are kept. */
class ImageRef {
public:
    ImageRef() = default;
    /** An image of these pixels; none for a null QImage. */
    ImageRef(const QImage& pixels) : ImageRef(fromQImage(pixels)) {}
    /** Takes over the caller's reference. Nothing in the program calls it. */
    [[nodiscard]] static ImageRef adopt(Image* image);
    /** Adds a reference. */
    [[nodiscard]] static ImageRef share(Image* image);
    [[nodiscard]] static ImageRef fromQImage(const QImage& pixels);
    /** The image that BYTES hold (see readPictureHeader); none when they hold none. */
    [[nodiscard]] static ImageRef fromBytes(const QByteArray& bytes);
    /** The image in the file at PATH, told by its content; none when there is none. */
    [[nodiscard]] static ImageRef fromFile(const QString& path);

    ImageRef(const ImageRef& other) : image_(image_retain(other.image_)) {}
    ImageRef(ImageRef&& other) noexcept : image_(std::exchange(other.image_, nullptr)) {}
    ImageRef& operator=(ImageRef other) noexcept {
        std::swap(image_, other.image_);
        return *this;
    }
    ~ImageRef() { image_release(image_); }

    explicit operator bool() const { return image_ != nullptr; }
    [[nodiscard]] bool isNull() const { return image_ == nullptr; }
    /** Width and height in pixels, known without decoding; empty for none. */
    [[nodiscard]] QSize size() const;
    /** The object itself, still owned by this reference. */
    [[nodiscard]] Image* get() const { return image_; }

    /** The pixels; a null QImage when there is no image or its data turns out to be damaged. The device pixel
       ratio carries the nominal size. May take seconds when slowlyDecoded() has a value. */
    [[nodiscard]] QImage toQImage() const;
    /** The bytes that the image came as; empty for one that was made of pixels. */
    [[nodiscard]] QByteArray encodedBytes() const;
    /** The encoded form of an image that is so large that its pixels are better not waited for; nothing for
       others. */
    [[nodiscard]] std::optional<EncodedPicture> slowlyDecoded() const;

private:
    explicit ImageRef(Image* image) : image_(image) {}
    Image* image_ = nullptr;
};

/** Lets an image take 1 GiB when it is decoded (16,384 x 16,384 pixels), eight times as much as Qt grants,
   for large scans of covers. For the whole program; to be called once, at its start. */
void allowLargeImages();

/** Whether the file at PATH begins as a picture does, which need not mean that it is one. */
[[nodiscard]] bool isPictureFile(const QString& path);

/** The pixels of the image in the file at PATH, or a null QImage. Nothing in the program calls it. */
[[nodiscard]] QImage imageFromFile(const QString& path);

} // namespace velmora

Q_DECLARE_METATYPE(velmora::ImageRef)
