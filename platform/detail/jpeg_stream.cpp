#include "jpeg_stream.h"

#include <algorithm>
#include <cstring>

namespace velmora {

namespace {

constexpr int mostScans = 64;
constexpr qint64 manyPixels = 1'000'000;
constexpr qint64 mostScannedPixels = 1'000'000'000;
constexpr int blockSide = 8;
constexpr qint64 blockBytes = qint64{blockSide} * blockSide * 2; // 16 bits a coefficient

namespace marker {
constexpr int tem = 0x01;
constexpr int sof0 = 0xC0;
constexpr int sof15 = 0xCF;
constexpr int dht = 0xC4;
constexpr int jpg = 0xC8;
constexpr int dac = 0xCC;
constexpr int rst0 = 0xD0;
constexpr int soi = 0xD8;
constexpr int eoi = 0xD9;
constexpr int sos = 0xDA;
constexpr int dri = 0xDD;
constexpr int app0 = 0xE0;
constexpr int app14 = 0xEE;
constexpr int app15 = 0xEF;
constexpr int com = 0xFE;
} // namespace marker

bool isFrameHeader(int code) {
    return code >= marker::sof0 && code <= marker::sof15 && code != marker::dht && code != marker::jpg &&
           code != marker::dac;
}

/** Whether a frame with this header sends its coefficients bit by bit, in several scans. */
bool isProgressive(int code) {
    return (code & 3) == 2;
}

bool standsAlone(int code) {
    return code == marker::tem || (code >= marker::rst0 && code <= marker::soi);
}

int blocks(qint64 length, int sampling, int mostSampling) {
    const qint64 unit = qint64{blockSide} * mostSampling;
    return static_cast<int>((length + unit - 1) / unit) * sampling;
}

int byteAt(QByteArrayView bytes, qsizetype at) {
    return static_cast<unsigned char>(bytes[at]);
}

int bigEndian(QByteArrayView bytes, qsizetype at) {
    return byteAt(bytes, at) << 8 | byteAt(bytes, at + 1);
}

/** A walk along the markers of a stream, up to its end or the marker that says so. */
class MarkerWalk {
public:
    explicit MarkerWalk(QByteArrayView bytes) : bytes_(bytes) {}

    /** On to the next marker; false behind the last one. */
    bool next() {
        int code = nextMarker();
        while (code == 0) { // a stuffed byte of data
            code = nextMarker();
        }
        if (code < 0 || code == marker::eoi) {
            return false;
        }
        code_ = code;
        segment_ = bytes_.sliced(at_).first(std::min(segmentLength(), left()));
        at_ += segment_.size();
        return true;
    }

    [[nodiscard]] int code() const { return code_; }
    /** What belongs to the marker, from its length on; less where the stream ends in it. */
    [[nodiscard]] QByteArrayView segment() const { return segment_; }

private:
    [[nodiscard]] qsizetype left() const { return bytes_.size() - at_; }

    /** What the segment says of its length, which counts the two bytes that say so. */
    [[nodiscard]] qsizetype segmentLength() const {
        if (standsAlone(code_)) {
            return 0;
        }
        return left() < 2 ? left() : std::max(bigEndian(bytes_, at_), 2);
    }

    /** The code of the next marker, with the place behind it as the new one; -1 at the end. */
    int nextMarker() {
        const void* const found =
            at_ < bytes_.size() ? std::memchr(bytes_.data() + at_, 0xFF, left()) : nullptr;
        if (!found) {
            return -1;
        }
        at_ = static_cast<const char*>(found) - bytes_.data();
        while (at_ < bytes_.size() && byteAt(bytes_, at_) == 0xFF) {
            ++at_; // any number of them stands in front of the code
        }
        return at_ < bytes_.size() ? byteAt(bytes_, at_++) : -1;
    }

    QByteArrayView bytes_;
    qsizetype at_ = 0;
    int code_ = 0;
    QByteArrayView segment_;
};

/** What the markers of a stream say of its picture. */
class StreamReader {
public:
    void read(QByteArrayView bytes) {
        for (MarkerWalk walk(bytes); walk.next();) {
            if (isFrameHeader(walk.code()) && stream.size.isEmpty()) {
                readFrameHeader(walk.segment());
                inPasses_ = isProgressive(walk.code());
            } else if (walk.code() == marker::sos && walk.segment().size() >= 2) {
                readScanHeader(walk.segment());
            }
        }
    }

    JpegStream stream;

private:
    /** Length, precision, height, width, number of components, and three bytes for each. */
    void readFrameHeader(QByteArrayView segment) {
        if (segment.size() < 8) {
            return;
        }
        const auto value = [&segment](qsizetype at) { return byteAt(segment, at); };
        stream.size = QSize(bigEndian(segment, 5), bigEndian(segment, 3));
        components_ = value(7);
        int widest = 1;
        int highest = 1;
        const qsizetype known = std::min<qsizetype>(components_, (segment.size() - 8) / 3);
        for (qsizetype i = 0; i < known; ++i) {
            widest = std::max(widest, value(9 + 3 * i) >> 4);
            highest = std::max(highest, value(9 + 3 * i) & 0xF);
        }
        for (qsizetype i = 0; i < known; ++i) {
            const int sampling = value(9 + 3 * i);
            coefficientBytes_ += qint64{blocks(stream.size.width(), sampling >> 4, widest)} *
                                 blocks(stream.size.height(), sampling & 0xF, highest) * blockBytes;
        }
    }

    /** Length, number of components. */
    void readScanHeader(QByteArrayView segment) {
        ++stream.scans;
        const int scanned = segment.size() > 2 ? byteAt(segment, 2) : 0;
        inPasses_ = inPasses_ || stream.scans > 1 || scanned < components_;
        stream.coefficientBytes = inPasses_ ? coefficientBytes_ : 0;
    }

    int components_ = 0;
    bool inPasses_ = false;
    qint64 coefficientBytes_ = 0;
};

/** Whether the segment of a marker can change neither the picture nor what becomes of it: comments and what
   applications keep for themselves, but for the two that tell the colours. */
bool isAside(int code) {
    return code == marker::com ||
           (code >= marker::app0 && code <= marker::app15 && code != marker::app0 && code != marker::app14);
}

/** A segment that sets the distance between restarts, to one that is not none. */
bool startsRestarts(int code, QByteArrayView segment) {
    return code == marker::dri && segment != QByteArrayView("\0\4\0\0", 4);
}

/** A frame header as it is but for the picture's size. A side that is too long for a decoder stays. */
QByteArray ofOnePixel(QByteArrayView frameHeader) {
    constexpr int longestSide = 65500; // what a decoder takes, of the 65,535 that can be said
    QByteArray changed = frameHeader.toByteArray();
    for (const qsizetype at : {3, 5}) { // height, width
        if (changed.size() > at + 1 && bigEndian(changed, at) <= longestSide) {
            changed.replace(at, 2, "\0\1", 2);
        }
    }
    return changed;
}

} // namespace

std::optional<JpegStream> jpegStream(QByteArrayView bytes) {
    StreamReader reader;
    reader.read(bytes);
    const bool complete = !reader.stream.size.isEmpty() && reader.stream.scans > 0;
    return complete ? std::optional(reader.stream) : std::nullopt;
}

bool isReasonablePassCount(const JpegStream& stream) {
    const qint64 pixels = qint64{stream.size.width()} * stream.size.height();
    return stream.scans <= mostScans || (pixels <= manyPixels && stream.scans * pixels <= mostScannedPixels);
}

std::optional<QByteArray> emptiedJpeg(QByteArrayView bytes) {
    QByteArray emptied("\xFF\xD8");
    MarkerWalk walk(bytes.sliced(std::min<qsizetype>(emptied.size(), bytes.size())));
    while (walk.next()) {
        if (startsRestarts(walk.code(), walk.segment())) {
            return std::nullopt;
        }
        if (isAside(walk.code())) {
            continue;
        }
        emptied.append('\xFF').append(static_cast<char>(walk.code()));
        emptied.append(isFrameHeader(walk.code()) ? ofOnePixel(walk.segment()) : walk.segment());
    }
    return emptied;
}

} // namespace velmora
