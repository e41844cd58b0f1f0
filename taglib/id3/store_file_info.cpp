#include "store_file_info.h"

#include "detail/store_fields.h"
#include "detail/tag_header.h"
#include "header_v1.h"
#include "reader.h"
#include "writer.h"

#include "taglib/byte_file.h"
#include "taglib/path.h"
#include "taglib/trace.h"
#include "taglib/write_cursor.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace velmora {

namespace {

/** From this length on a leading tag is ignored, so that no large file is ever copied. */
constexpr std::int64_t first_large_length = 20'000'000;

/** A name in the media file's folder. In the end the file of that name is deleted unless it was kept. */
class TemporaryName {
public:
    TemporaryName() = default;
    ~TemporaryName() {
        if (text_[0] && !kept_) {
            ::unlink(text_);
        }
    }
    TemporaryName(const TemporaryName&) = delete;
    TemporaryName& operator=(const TemporaryName&) = delete;

    [[nodiscard]] bool make(const char* media_path) {
        const OwnedText folder = folder_of_file(media_path);
        if (!folder || GetTempFileName(folder.get(), "VLT", 0, text_) == 0) {
            text_[0] = 0;
            return false;
        }
        return true;
    }
    [[nodiscard]] const char* text() const { return text_; }
    void keep() { kept_ = true; }

private:
    char text_[temp_file_name_capacity] = {};
    bool kept_ = false;
};

void start_new_tag(_id3_file_desc_t* descriptor) {
    std::memcpy(descriptor->signature, "ID3", sizeof descriptor->signature);
    descriptor->version = id3_newest_version;
    descriptor->header_flags = id3_header_flag::footer;
}

/** Loads the tag to rewrite, or starts a new one. The reading's offset is where it is to be written. */
Id3TagReading find_write_position(FIOFUNCSTRUCT* file, _id3_file_desc_t* descriptor) {
    ReadWindow window(file);
    Id3TagReading reading = id3_read_tag(window, descriptor, true);
    if (reading.offset >= 0 || reading.failed) {
        return reading;
    }
    const auto length = static_cast<std::int64_t>(window.size().value_or(0)); // known, or the reading failed
    if (length >= 1 && length < first_large_length) {
        reading = id3_read_tag(window, descriptor, false);
    }
    if (reading.offset >= 0 || reading.failed) {
        return reading;
    }
    start_new_tag(descriptor);
    const std::int64_t v1_position = id3_is_present_v1(file);
    reading.offset = v1_position >= 0 ? v1_position : length;
    return reading;
}

bool store_in_place(ByteFile& media, std::int64_t position, _id3_file_desc_t* descriptor) {
    descriptor->header_flags |= id3_header_flag::footer;
    bool stored = id3_store_descriptor_at(media.handle(), position, descriptor);
    if (stored) {
        mark_end(media.handle()); // the file keeps its length
    }
    stored = media.close() && stored;
    if (!stored) {
        DebugError("id3_store_file_info: couldn't store new descriptor\n");
    }
    return stored;
}

std::int64_t length_in_file(const _id3_file_desc_t& descriptor) {
    const std::int64_t length =
        std::int64_t{descriptor.size} + static_cast<std::int64_t>(sizeof(Id3TagHeader));
    const bool footer = descriptor.header_flags & id3_header_flag::footer;
    return footer ? length + static_cast<std::int64_t>(sizeof(Id3TagHeader)) : length;
}

/** Whether nothing is left to read, by the file's length too: a read of no bytes alone is no proof. */
bool is_at_end(FIOFUNCSTRUCT* file) {
    const std::int64_t position = fio_ltell(file);
    const std::int64_t end = fio_lseek(file, 0, SEEK_END);
    return end >= 0 && position >= end;
}

/** Writes the tag and what follows the old tag in MEDIA to COPY and closes both. */
bool write_copy(ByteFile& copy, ByteFile& media, _id3_file_desc_t* descriptor) {
    const std::int64_t old_length = length_in_file(*descriptor);
    if (!id3_store_descriptor_at(copy.handle(), 0, descriptor)) {
        DebugError("id3_store_file_info: couldn't store new descriptor\n");
        return false;
    }
    // A copy that can't be closed cleanly may not be complete, and the original is about to go.
    if (fio_lseek(media.handle(), old_length, SEEK_SET) != old_length ||
        !id3_append_file(copy.handle(), media.handle()) || !is_at_end(media.handle()) || !copy.close()) {
        DebugError("id3_store_file_info: couldn't append file data\n");
        return false;
    }
    [[maybe_unused]] const bool only_read = media.close();
    return true;
}

bool store_through_copy(const char* path, TemporaryName& name, ByteFile& media,
                        _id3_file_desc_t* descriptor) {
    if (!name.make(path)) {
        DebugError("id3_store_file_info: couldn't create temp file\n");
        return false;
    }
    ByteFile copy;
    if (!copy.open(name.text(), O_RDWR | O_TRUNC)) { // not created: without a file of that name this fails
        DebugError("id3_store_file_info: couldn't reopen temp file\n");
        return false;
    }
    if (!write_copy(copy, media, descriptor)) {
        return false;
    }
    if (::unlink(path) != 0) {
        DebugError("id3_store_file_info: couldn't delete original file\n");
        return false;
    }
    name.keep(); // from here on it is the only copy of the media
    if (std::rename(name.text(), path) != 0) {
        DebugError("id3_store_file_info: couldn't rename file\n");
    }
    return true;
}

} // namespace

int id3_store_file_info(const char* path, _file_info_t* info) {
    TemporaryName name; // in front of MEDIA, so that its file is deleted once all files are closed
    ByteFile media;
    if (!media.open(path, O_RDWR | O_CREAT, 0644)) {
        DebugError("id3_store_file_info: couldn't open file for r/w: %s\n", std::strerror(errno));
        return 0;
    }
    Id3Descriptor descriptor;
    const auto [position, failed] = find_write_position(media.handle(), &descriptor.tag);
    if (failed) { // what was not read would be lost
        DebugError("id3_store_file_info: couldn't read old descriptor\n");
        return 0;
    }
    if (!id3_store_fields(&descriptor.tag, info)) {
        return 0;
    }
    const bool stored = position != 0 ? store_in_place(media, position, &descriptor.tag)
                                      : store_through_copy(path, name, media, &descriptor.tag);
    if (!stored) {
        return 0;
    }
    info->flags |= file_info_flag::tag_present;
    return 1;
}

} // namespace velmora
