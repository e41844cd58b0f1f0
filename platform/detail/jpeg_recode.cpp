// The one place that talks to the JPEG library itself: what is done here is done to coefficients, which the
// desktop's image readers never show.

#include "jpeg_recode.h"

#include <array>
#include <csetjmp>
#include <cstdio>
#include <memory>

#include <jpeglib.h> // needs <cstdio> in front

namespace velmora {

namespace {

/** Errors of the library come back to the place that set RETURN; its warnings and messages go nowhere. */
struct ErrorReturn {
    jpeg_error_mgr manager; // first: the library hands back a pointer to it
    std::jmp_buf place;
};

[[noreturn]] void onError(j_common_ptr library) {
    std::longjmp(reinterpret_cast<ErrorReturn*>(library->err)->place, 1);
}

void ignoreMessage(j_common_ptr /*library*/, int /*level*/) {}

jpeg_error_mgr* quiet(ErrorReturn& error) {
    jpeg_std_error(&error.manager);
    error.manager.error_exit = onError;
    error.manager.emit_message = ignoreMessage;
    return &error.manager;
}

/** Where the library's output goes. */
struct Collector {
    jpeg_destination_mgr manager; // first, as above
    std::array<JOCTET, 65536> block;
    QByteArray bytes;
};

Collector& collectorOf(j_compress_ptr library) {
    return *reinterpret_cast<Collector*>(library->dest);
}

void beginBlock(j_compress_ptr library) {
    Collector& collector = collectorOf(library);
    collector.manager.next_output_byte = collector.block.data();
    collector.manager.free_in_buffer = collector.block.size();
}

boolean takeFullBlock(j_compress_ptr library) {
    Collector& collector = collectorOf(library);
    collector.bytes.append(reinterpret_cast<const char*>(collector.block.data()),
                           static_cast<qsizetype>(collector.block.size()));
    beginBlock(library);
    return TRUE;
}

void takeLastBlock(j_compress_ptr library) {
    Collector& collector = collectorOf(library);
    collector.bytes.append(reinterpret_cast<const char*>(collector.block.data()),
                           static_cast<qsizetype>(collector.block.size() - collector.manager.free_in_buffer));
}

/** What both functions work on, made before the place that errors come back to, so that they
   find it whole. */
struct Work {
    ErrorReturn error;
    jpeg_decompress_struct source{};
    jpeg_compress_struct target{};
    Collector output;

    Work() {
        source.err = target.err = quiet(error);
        output.manager = {nullptr, 0, beginBlock, takeFullBlock, takeLastBlock};
    }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;
    ~Work() {
        jpeg_destroy_compress(&target);
        jpeg_destroy_decompress(&source);
    }
};

/** Comments and colour profiles, which the pixels' meaning depends on. */
void keepMarkers(jpeg_decompress_struct& source) {
    jpeg_save_markers(&source, JPEG_COM, 0xFFFF);
    jpeg_save_markers(&source, JPEG_APP0 + 2, 0xFFFF);
}

void copyMarkers(const jpeg_decompress_struct& source, jpeg_compress_struct& target) {
    for (jpeg_saved_marker_ptr marker = source.marker_list; marker; marker = marker->next) {
        jpeg_write_marker(&target, marker->marker, marker->data, marker->data_length);
    }
}

/** Plain data only between setjmp and its return: nothing here has a destructor that a jump could skip. */
bool recode(Work& work, const unsigned char* bytes, unsigned long size, bool progressive) {
    if (setjmp(work.error.place) != 0) {
        return false;
    }
    jpeg_create_decompress(&work.source);
    jpeg_create_compress(&work.target);
    jpeg_mem_src(&work.source, bytes, size);
    keepMarkers(work.source);
    jpeg_read_header(&work.source, TRUE);
    jvirt_barray_ptr* const coefficients = jpeg_read_coefficients(&work.source);
    jpeg_copy_critical_parameters(&work.source, &work.target);
    if (progressive) {
        jpeg_simple_progression(&work.target);
    }
    work.target.dest = &work.output.manager;
    jpeg_write_coefficients(&work.target, coefficients);
    copyMarkers(work.source, work.target);
    jpeg_finish_compress(&work.target);
    return true;
}

bool decodesWhole(Work& work, const unsigned char* bytes, unsigned long size) {
    if (setjmp(work.error.place) != 0) {
        return false;
    }
    jpeg_create_decompress(&work.source);
    jpeg_mem_src(&work.source, bytes, size);
    jpeg_read_header(&work.source, TRUE);
    work.source.scale_denom = 8; // a pixel of a block of one pixel
    jpeg_start_decompress(&work.source);
    const int components = work.source.output_components;
    std::array<JSAMPLE, MAX_COMPONENTS> pixel;
    JSAMPROW row = pixel.data();
    jpeg_read_scanlines(&work.source, &row, 1);
    jpeg_finish_decompress(&work.source);
    return components == 1 || components == 3 || components == 4;
}

bool beginsWell(Work& work, const unsigned char* bytes, unsigned long size) {
    if (setjmp(work.error.place) != 0) {
        return false;
    }
    jpeg_create_decompress(&work.source);
    jpeg_mem_src(&work.source, bytes, size);
    jpeg_read_header(&work.source, TRUE);
    // Row by row, with one whole picture never asked for.
    work.source.buffered_image = TRUE;
    jpeg_start_decompress(&work.source);
    for (int row = 0; row < 4; ++row) {
        const int progress = jpeg_consume_input(&work.source);
        if (progress == JPEG_SCAN_COMPLETED || progress == JPEG_REACHED_EOI) {
            break;
        }
    }
    return true;
}

} // namespace

QByteArray recodedJpeg(const QByteArray& jpeg, JpegPasses passes) {
    const auto work = std::make_unique<Work>();
    const bool done = recode(*work, reinterpret_cast<const unsigned char*>(jpeg.constData()),
                             static_cast<unsigned long>(jpeg.size()), passes == JpegPasses::Progressive);
    return done ? work->output.bytes : QByteArray();
}

bool isDecodedWhole(const QByteArray& jpeg) {
    const auto work = std::make_unique<Work>();
    return decodesWhole(*work, reinterpret_cast<const unsigned char*>(jpeg.constData()),
                        static_cast<unsigned long>(jpeg.size()));
}

bool jpegBeginsWell(const QByteArray& jpeg) {
    const auto work = std::make_unique<Work>();
    return beginsWell(*work, reinterpret_cast<const unsigned char*>(jpeg.constData()),
                      static_cast<unsigned long>(jpeg.size()));
}

} // namespace velmora
