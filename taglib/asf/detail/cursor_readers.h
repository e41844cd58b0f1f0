#pragma once

#include "taglib/asf/content_description.h"
#include "taglib/asf/ext_content_description.h"
#include "taglib/asf/header_object.h"
#include "taglib/read_cursor.h"

#include <cstdint>

/** The readers of a header's objects, on a cursor over the file. Each is what the public function of its name
   is for a file's position: it begins at CURSOR's position and ends where that says that the file is left. */
namespace velmora {

_asf_object_t* asf_read_object(ReadCursor* cursor, _asf_object_t* object);

_asf_object_t* asf_read_padding_object(ReadCursor* cursor, _asf_object_t* object);

_asf_content_description_t* asf_read_content_description(ReadCursor* cursor, _asf_content_description_t* cd);

/** For one that nobody will edit: a record whose strings lie in its own block. Memory for it is asked for
   only when it is known how long they are. */
_asf_content_description_t* asf_read_fixed_content_description(ReadCursor* cursor);

/** Whether descriptors become records or stay as they lie in the file. */
enum class AsfDescriptorForm { records, packed };

_asf_ext_content_description_t* asf_read_ext_content_description(ReadCursor* cursor, AsfDescriptorForm form,
                                                                 _asf_ext_content_description_t* ecd);

/** Null also for a descriptor that does not end in front of the cursor's end: nothing is allocated for a name
   or value that would run past it. */
_asf_content_descriptor_t* asf_read_content_descriptor(ReadCursor* cursor,
                                                       _asf_content_descriptor_t* descriptor);

/** Ends at the last child's end. */
_asf_header_object_t* asf_read_header_object(ReadCursor* cursor, _asf_header_object_t* header);

/** Reads LENGTH BYTES, which must lie in front of CURSOR's end, and goes on behind them; what lies behind the
   end of the file is zero. False when they don't lie there or can't be read. */
[[nodiscard]] bool asf_read_zero_padded(ReadCursor* cursor, void* bytes, std::size_t length);

/** START + SIZE as a file position, or -1 where that is none. */
[[nodiscard]] std::int64_t asf_position_behind(std::int64_t start, std::uint64_t size);

/** Goes to START + SIZE; false where that is no position. */
[[nodiscard]] bool asf_seek_behind(ReadCursor* cursor, std::uint64_t start, std::uint64_t size);

/** Runs READ, which gives null when it fails, with a cursor at FILE's position, and leaves FILE where the
   cursor ends. Null also where the file has no position or can't be moved; then DISCARD gets
   what was read. */
template <typename Read, typename Discard>
auto asf_read_at_position(FIOFUNCSTRUCT* file, Read read, Discard discard)
    -> decltype(read(static_cast<ReadCursor*>(nullptr))) {
    const std::int64_t start = fio_ltell(file);
    if (start < 0) {
        return nullptr;
    }
    const auto position = static_cast<std::uint64_t>(start);
    ReadWindow window(file, position);
    ReadCursor cursor(window, position, ReadWindow::no_end);
    const auto result = read(&cursor);
    if (result && !cursor.settle()) {
        discard(result);
        return nullptr;
    }
    return result;
}

} // namespace velmora
