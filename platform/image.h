#pragma once

#include "image_seam/image.h"

#include <QImage>
#include <QMetaType>

#include <utility>

namespace velmora {

/** A counted reference to an image object of the tag library, or none. Encoded images keep their bytes and
   are decoded when somebody first asks for the pixels. */
class ImageRef {
public:
    ImageRef() = default;
    /** Takes over the caller's reference. */
    [[nodiscard]] static ImageRef adopt(Image* image);
    /** Adds a reference. */
    [[nodiscard]] static ImageRef share(Image* image);
    /** An image of these pixels; none for a null QImage. */
    [[nodiscard]] static ImageRef fromQImage(const QImage& pixels);

    ImageRef(const ImageRef& other) : image_(image_retain(other.image_)) {}
    ImageRef(ImageRef&& other) noexcept : image_(std::exchange(other.image_, nullptr)) {}
    ImageRef& operator=(ImageRef other) noexcept {
        std::swap(image_, other.image_);
        return *this;
    }
    ~ImageRef() { image_release(image_); }

    explicit operator bool() const { return image_ != nullptr; }
    /** The object itself, still owned by this reference. */
    [[nodiscard]] Image* get() const { return image_; }

    /** The pixels; a null QImage when there is no image or its data turns out to be damaged. The device pixel
       ratio carries the nominal size. */
    [[nodiscard]] QImage toQImage() const;

private:
    explicit ImageRef(Image* image) : image_(image) {}
    Image* image_ = nullptr;
};

/** Lets an image take 1 GiB when it is decoded (16,384 x 16,384 pixels), eight times as much as Qt grants,
   for large scans of covers. For the whole program; to be called once, at its start. */
void allowLargeImages();

/** The image in the file at PATH (any format that the platform reads, told by its content), or a null QImage.
 */
[[nodiscard]] QImage imageFromFile(const QString& path);

} // namespace velmora

Q_DECLARE_METATYPE(velmora::ImageRef)
