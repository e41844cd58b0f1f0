#pragma once

#include "taglib/byte_file.h"

#include <string>

namespace velmora::portable {

/** A file in the making, in the folder where it is to be. It has no name where the file system has such
   files, and otherwise an exclusive hidden one; it is gone with the object unless it took its place. While it
   is made it is locked, by which what a killed process left is told from what another one works on. */
class NewFile {
public:
    /** In FOLDER, an open folder's descriptor, which stays the caller's. Throws a Refusal. */
    explicit NewFile(int folder);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    [[nodiscard]] FIOFUNCSTRUCT* handle() { return &file_; }

    /** Gives the file the name NAME in its folder, in one step: instead of the file that has it where REPLACE
       is set, and otherwise only where none has. Throws a Refusal; NAME is then what it was. */
    void take_place(const std::string& name, bool replace);

private:
    [[nodiscard]] bool open_without_name();
    void open_hidden();
    [[nodiscard]] bool lock();
    void link_hidden();
    void remove_name();

    int folder_;
    FIOFUNCSTRUCT file_{-1};
    std::string hidden_name_; ///< empty: none
};

/** Removes from FOLDER, an open folder's descriptor, the hidden files that nobody works on any more. What
   can't be read or removed is left. */
void remove_left_behind(int folder);

} // namespace velmora::portable
