#pragma once

#include "item.h"

namespace velmora {

/** An AVI file open for one load, store or removal, with its tree. The destructor frees the tree and closes
   the file and leaves errno as it was, so that the caller sees the error that mattered. */
class AviFile {
public:
    AviFile() = default;
    ~AviFile();
    AviFile(const AviFile&) = delete;
    AviFile& operator=(const AviFile&) = delete;

    /** Opens PATH with open(2)'s FLAGS; errno, cleared first, then holds open's error. */
    [[nodiscard]] bool open(const char* path, int flags);

    /** Reads the tree. On failure errno is 78 for a file with more than one RIFF chunk and 5 for any other.
     */
    [[nodiscard]] bool read_header();

    /** The same for a file that is to be written: fails with 5 also where a part of the header that the file
       has could not be read, because what is not known would be overwritten. */
    [[nodiscard]] bool read_header_for_writing();

    /** The first top-level INFO list, or null. To be asked for again after each insert into the root. */
    [[nodiscard]] _avi_item_t* info_list() const;
    [[nodiscard]] bool is_last(const _avi_item_t* item) const;

    /** Where the RIFF chunk ends, rounded up to even: where the next chunk begins. */
    [[nodiscard]] std::uint64_t end_of_riff() const;

    /** Puts a "JUNK" item of the INFO list's offset and size in front of it and writes its 8-byte header to
       the file, so that the old list's bytes are the junk's contents. */
    [[nodiscard]] bool write_junk_over_info_list();

    /** Makes the root's size fit its children and rewrites the file's first 8 bytes with it. A size that does
       not fit the field becomes 0xFFFFFFFF. */
    [[nodiscard]] bool write_riff_header();

    /** Writes zero bytes at the position, where a format that could shrink would be cut. */
    void end_here();

    /** Closes the file; false when the system reports that something it held back could not be written. */
    [[nodiscard]] bool close();

    FIOFUNCSTRUCT file{-1};
    _avi_item_t root{};
};

} // namespace velmora
