#pragma once

#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "taglib/fio.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <string>
#include <string_view>

namespace velmora::test {

/** A file of given bytes in a folder of its own, open for reading and writing at its beginning. */
class OpenFile {
public:
    explicit OpenFile(std::string_view contents) {
        write_file(path_, contents);
        open();
    }
    /** A file of SIZE bytes that holds CONTENTS at OFFSET and holes elsewhere. */
    OpenFile(long long size, std::string_view contents, long long offset) {
        write_sparse_file(path_, size, contents, offset);
        open();
    }
    ~OpenFile() { fio_close(&file_); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    [[nodiscard]] FIOFUNCSTRUCT* handle() { return &file_; }
    [[nodiscard]] const std::string& path() const { return path_; }
    [[nodiscard]] std::string contents() const { return read_file(path_); }

private:
    void open() { EXPECT_EQ(0, fio_open(path_.c_str(), O_RDWR, 0, &file_)); }

    ScratchFolder folder_;
    std::string path_ = folder_ / "file";
    FIOFUNCSTRUCT file_{-1};
};

} // namespace velmora::test
