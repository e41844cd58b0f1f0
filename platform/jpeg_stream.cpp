#include "jpeg_stream.h"

#include <algorithm>
#include <cstring>

namespace velmora {

namespace {

constexpr int mostScans = 64;
constexpr qint64 manyPixels = 1'000'000;
constexpr qint64 mostScannedPixels = 1'000'000'000;
constexpr int blockSide = 8;
constexpr qint64 blockBytes = blockSide * blockSide * 2; // 16 bits a coefficient

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

/** A walk along the markers of a stream. */
class Walk {
public:
    explicit Walk(QByteArrayView bytes) : bytes_(bytes) {}

    void run() {
        for (int code = nextMarker(); code >= 0 && code != marker::eoi; code = nextMarker()) {
            if (code == 0 || standsAlone(code)) {
                continue; // a stuffed byte of data, a restart
            }
            if (bytes_.size() - at_ < 2) {
                return;
            }
            const int length = word(at_);
            const QByteArrayView segment = bytes_.sliced(at_).first(std::min<qsizetype>(length, left()));
            if (isFrameHeader(code) && stream.size.isEmpty()) {
                readFrameHeader(segment);
                inPasses_ = isProgressive(code);
            } else if (code == marker::sos) {
                readScanHeader(segment);
            }
            at_ += std::min<qsizetype>(std::max(length, 2), left());
        }
    }

    JpegStream stream;

private:
    [[nodiscard]] qsizetype left() const { return bytes_.size() - at_; }
    [[nodiscard]] int byte(qsizetype at) const { return static_cast<unsigned char>(bytes_[at]); }
    [[nodiscard]] int word(qsizetype at) const { return byte(at) << 8 | byte(at + 1); }

    /** The code of the next marker, with the place behind it as the new one; -1 at the end. */
    int nextMarker() {
        const void* const found =
            at_ < bytes_.size() ? std::memchr(bytes_.data() + at_, 0xFF, left()) : nullptr;
        if (!found) {
            return -1;
        }
        at_ = static_cast<const char*>(found) - bytes_.data();
        while (at_ < bytes_.size() && byte(at_) == 0xFF) {
            ++at_; // any number of them stands in front of the code
        }
        return at_ < bytes_.size() ? byte(at_++) : -1;
    }

    /** Length, precision, height, width, number of components, and three bytes for each. */
    void readFrameHeader(QByteArrayView segment) {
        if (segment.size() < 8) {
            return;
        }
        const auto value = [&segment](qsizetype at) { return static_cast<unsigned char>(segment[at]); };
        stream.size = QSize(value(5) << 8 | value(6), value(3) << 8 | value(4));
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
        const int scanned = segment.size() > 2 ? static_cast<unsigned char>(segment[2]) : 0;
        inPasses_ = inPasses_ || stream.scans > 1 || scanned < components_;
        stream.coefficientBytes = inPasses_ ? coefficientBytes_ : 0;
    }

    QByteArrayView bytes_;
    qsizetype at_ = 0;
    int components_ = 0;
    bool inPasses_ = false;
    qint64 coefficientBytes_ = 0;
};

} // namespace

std::optional<JpegStream> jpegStream(QByteArrayView bytes) {
    Walk walk(bytes);
    walk.run();
    const bool complete = !walk.stream.size.isEmpty() && walk.stream.scans > 0;
    return complete ? std::optional(walk.stream) : std::nullopt;
}

bool isReasonablePassCount(const JpegStream& stream) {
    const qint64 pixels = qint64{stream.size.width()} * stream.size.height();
    return stream.scans <= mostScans || (pixels <= manyPixels && stream.scans * pixels <= mostScannedPixels);
}

} // namespace velmora
