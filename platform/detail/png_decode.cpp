// The one place that talks to the PNG library itself: the desktop's reader can't be asked for 8 of 16 bits.

#include "png_decode.h"

#include <QColorSpace>

#include <csetjmp>
#include <cstring>

#include <png.h>

namespace velmora {

namespace {

/** What the library reads from and writes to. */
struct Work {
    const char* bytes;
    png_size_t left;
    const std::atomic<bool>& cancelled;
    png_structp png = nullptr;
    png_infop info = nullptr;
    QImage pixels{};

    ~Work() { png_destroy_read_struct(&png, &info, nullptr); }
};

[[noreturn]] void onError(png_structp png, png_const_charp /*message*/) {
    png_longjmp(png, 1);
}

void ignoreWarning(png_structp /*png*/, png_const_charp /*message*/) {}

void give(png_structp png, png_bytep target, png_size_t count) {
    auto& work = *static_cast<Work*>(png_get_io_ptr(png));
    if (count > work.left || work.cancelled.load(std::memory_order_relaxed)) {
        png_error(png, "no more data");
    }
    std::memcpy(target, work.bytes, count);
    work.bytes += count;
    work.left -= count;
}

void setProfile(Work& work) {
    png_charp name = nullptr;
    png_bytep profile = nullptr;
    png_uint_32 size = 0;
    int compression = 0;
    if (png_get_iCCP(work.png, work.info, &name, &compression, &profile, &size) == PNG_INFO_iCCP) {
        work.pixels.setColorSpace(QColorSpace::fromIccProfile(
            QByteArray(reinterpret_cast<const char*>(profile), static_cast<qsizetype>(size))));
    }
}

/** Makes the pixels for what the header says, and the library deliver it in their layout. */
bool prepare(Work& work) {
    png_read_info(work.png, work.info);
    const bool hasAlpha = (png_get_color_type(work.png, work.info) & PNG_COLOR_MASK_ALPHA) != 0 ||
                          png_get_valid(work.png, work.info, PNG_INFO_tRNS) != 0;
    png_set_expand(work.png);
    png_set_scale_16(work.png);
    png_set_gray_to_rgb(work.png);
    if constexpr (Q_BYTE_ORDER == Q_LITTLE_ENDIAN) {
        png_set_bgr(work.png);
        png_set_filler(work.png, 0xFF, PNG_FILLER_AFTER);
    } else {
        png_set_swap_alpha(work.png);
        png_set_filler(work.png, 0xFF, PNG_FILLER_BEFORE);
    }
    work.pixels = QImage(static_cast<int>(png_get_image_width(work.png, work.info)),
                         static_cast<int>(png_get_image_height(work.png, work.info)),
                         hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    return !work.pixels.isNull();
}

/** No object with a destructor lives here: errors jump over them. */
bool readRows(Work& work) {
    if (setjmp(png_jmpbuf(work.png)) != 0) {
        return false;
    }
    png_set_read_fn(work.png, &work, give);
    if (!prepare(work)) {
        return false;
    }
    const int passes = png_set_interlace_handling(work.png);
    png_read_update_info(work.png, work.info);
    for (int pass = 0; pass < passes; ++pass) {
        for (int y = 0; y < work.pixels.height(); ++y) {
            png_read_row(work.png, work.pixels.scanLine(y), nullptr);
        }
    }
    return true;
}

} // namespace

bool isDeepPng(const QByteArray& png) {
    constexpr qsizetype depthAt = 24; // signature, length and name of IHDR, width, height
    constexpr qsizetype colourTypeAt = 25;
    return png.size() > colourTypeAt && png[depthAt] == 16 && png[colourTypeAt] != PNG_COLOR_TYPE_GRAY;
}

QImage decodedInEightBits(const QByteArray& png, const std::atomic<bool>& cancelled) {
    Work work{png.constData(), static_cast<png_size_t>(png.size()), cancelled};
    work.png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, onError, ignoreWarning);
    work.info = work.png ? png_create_info_struct(work.png) : nullptr;
    if (!work.info || !readRows(work)) {
        return {};
    }
    setProfile(work);
    return work.pixels;
}

} // namespace velmora
