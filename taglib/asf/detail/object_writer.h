#pragma once

#include "taglib/asf/content_description.h"
#include "taglib/asf/ext_content_description.h"
#include "taglib/asf/header_object.h"
#include "taglib/write_cursor.h"

#include <array>
#include <cstdint>

namespace velmora {

/** Writes the objects of a header one behind the other (docs/asf.md, "Storing"), and traces them as if each
   field were written by itself: positions, and where the lines stop, are those of such a run also where a
   write fails.

   reserve() comes first. After it the objects are gathered and written in large pieces, a usual header in
   one call of the system; no memory is asked for any more. What was put must stay as it is until
   finish(). */
class AsfObjectWriter {
public:
    /** POSITION is that of the first object. Negative for a file that has none: nothing can
       be written then. */
    AsfObjectWriter(FIOFUNCSTRUCT* file, std::int64_t position)
        : file_(file), cursor_(file, static_cast<std::uint64_t>(position)) {}

    /** An object's GUID and size alone. */
    void put_object(const _asf_object_t& object);
    /** The header object's fixed part. */
    void put_header(const _asf_header_object_t& header);
    void put_content_description(const _asf_content_description_t& cd);
    void put_ext_content_description(const _asf_ext_content_description_t& ecd);
    void put_descriptor(const _asf_content_descriptor_t& descriptor);
    /** A padding's header; goes on behind its body, which the file keeps. */
    void put_padding(const _asf_object_t& object);
    /** An object that is kept as it is in the file. */
    void put_block(const _asf_object_t& object);

    /** Writes what is left. False when not every byte of all that was put was written; where that was before
       the end, the objects behind it were not begun. */
    bool finish();

    /** Whether the GUID of the first object was written whole. */
    [[nodiscard]] bool guid_was_written() const { return written_ >= sizeof(GUID); }
    /** Where the next object goes. */
    [[nodiscard]] std::int64_t position() const { return static_cast<std::int64_t>(cursor_.position()); }
    /** Moves the file there; false when it can't be. */
    [[nodiscard]] bool settle();

private:
    enum class Kind : std::uint8_t { object, header, cd, ecd, descriptor, padding, block };
    /** One object, or one descriptor. */
    struct Step {
        const void* what; ///< the record; of a descriptor its name
        std::int64_t position;
        std::uint64_t first_byte; ///< counted from the last flush, as is the field
        std::uint64_t first_field;
        std::uint16_t name_length;
        Kind kind;
    };

    /** Writes what was put; LIST_GOES_ON: the next step is another descriptor of the last one's list. */
    [[nodiscard]] bool flush(bool list_goes_on);
    [[nodiscard]] bool fields_follow(bool list_goes_on) const;
    [[nodiscard]] bool begin(Kind kind, const void* what, std::uint16_t name_length = 0);
    void put_object_header(const _asf_object_t& object);
    void put_descriptors(const _asf_ext_content_description_t& ecd);
    void trace(bool whole);
    /** Traces the step of which only the first WRITTEN bytes were written; false when no
       other line follows. */
    [[nodiscard]] bool trace_stopped(const Step& step, std::uint64_t written);
    static void trace_step(const Step& step, std::int64_t position);

    FIOFUNCSTRUCT* file_;
    WriteCursor cursor_;
    std::size_t step_count_ = 0;
    std::uint64_t field_count_ = 0; ///< of the last flush
    std::uint64_t written_ = 0;     ///< in all
    bool failed_ = false;
    bool leads_nowhere_ = false; ///< the last padding's size is that of no file
    std::int64_t stuck_at_ = -1; ///< where the descriptors of the object that failed are traced; -1: nowhere
    std::array<Step, 256> steps_;
};

/** Puts HEADER with its children; false when that failed on the way. */
[[nodiscard]] bool asf_put_header_object(AsfObjectWriter* writer, const _asf_header_object_t& header);

/* The lines that are the same for reading and writing. */
void asf_log_object(std::int64_t position, const _asf_object_t& object);
void asf_log_padding_object(std::int64_t position, const _asf_object_t& object);
void asf_log_content_description(std::int64_t position, const _asf_content_description_t& cd);
void asf_log_ext_content_description(std::int64_t position, const _asf_ext_content_description_t& ecd);

} // namespace velmora
