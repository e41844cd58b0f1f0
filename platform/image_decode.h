#pragma once

#include "picture_format.h"

#include <QByteArray>
#include <QImage>
#include <QSize>

#include <atomic>
#include <optional>

namespace velmora {

/** A picture as its header describes it. */
struct PictureHeader {
    PictureFormat format = PictureFormat::Jpeg;
    QSize size;
    /** How often a decoder walks through the whole picture. */
    int passes = 1;
    /** What a decoder keeps of the whole picture besides its pixels, in bytes. */
    qint64 coefficientBytes = 0;
    /** A PNG with samples of 16 bits. */
    bool isDeep = false;
};

/** The one gate that every picture passes, wherever it comes from: what BYTES say of themselves, without
   decoding pixels. Nothing when they are in none of the formats of pictures, or in one with claims that no
   honest picture makes (see isReasonableSize, isReasonablePassCount), or when decoding them would take more
   than 4 bytes a pixel and 64 MiB above 40 megapixels. */
[[nodiscard]] std::optional<PictureHeader> readPictureHeader(const QByteArray& bytes);

/** Whether all of the picture can be decoded at once without anybody noticing the time: up to 4 megapixels,
   in few passes. */
[[nodiscard]] bool isQuicklyDecoded(const PictureHeader& header);

/** Whether the data behind the header can be decoded at all, found out at little cost: a quickly decoded JPEG
   without its coded data (see emptiedJpeg), or at an eighth of its size where it has restart intervals; a
   larger one as to its top. Other formats are not looked into. */
[[nodiscard]] bool hasDecodableData(const QByteArray& bytes, const PictureHeader& header);

/** All pixels of the picture, safe to hand on (see withWholePalette); a null image when the data is damaged.
   Takes 4 bytes a pixel at most, where the format's decoder allows. */
[[nodiscard]] QImage decodePicture(const QByteArray& bytes, const PictureHeader& header);

/** The picture made to fit into BOX, with its proportions kept; a smaller one as it is. For any thread. A
   null image when the data is damaged, or soon after CANCELLED has become true. */
[[nodiscard]] QImage decodePictureToFit(const QByteArray& bytes, const PictureHeader& header,
                                        const QSize& box, const std::atomic<bool>& cancelled);

/** PIXELS with a palette, where they have one, that has an entry for every value a pixel can take: black
   where there was none. Whatever looks colours up would read memory behind a shorter one. */
[[nodiscard]] QImage withWholePalette(QImage pixels);

} // namespace velmora
