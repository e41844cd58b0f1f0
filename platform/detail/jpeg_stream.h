#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QSize>

#include <optional>

namespace velmora {

/** What the markers of a JPEG stream say of it, found without decoding any of it. */
struct JpegStream {
    QSize size;
    /** The passes over the picture in which its data comes: 1 for most cameras, about 10 when it is meant to
       sharpen while it loads. Each costs a decoder a walk through the whole picture. */
    int scans = 0;
    /** What a decoder has to keep of the whole picture at once because its data comes in more than one pass,
       in bytes; 0 for one pass. */
    qint64 coefficientBytes = 0;
};

/** Walks along the markers of BYTES, in time proportional to their length. Nothing when they hold no frame
   header or no scan. */
[[nodiscard]] std::optional<JpegStream> jpegStream(QByteArrayView bytes);

/** Whether the number of passes is one that a decoder can be asked to make: at most 64 above 1 megapixel, and
   a thousand megapixels in all passes together below. */
[[nodiscard]] bool isReasonablePassCount(const JpegStream& stream);

/** The stream BYTES with nothing in it: one pixel large, without coded data and without the segments that say
   nothing of the picture. A decoder gives up over markers, tables and headers, never over coded data, so it
   fails with the result exactly where it fails with BYTES, but need not decode anything to find out. Nothing
   for a stream with restart intervals: which of the markers inside its data count depends on its size. */
[[nodiscard]] std::optional<QByteArray> emptiedJpeg(QByteArrayView bytes);

} // namespace velmora
