#include "avi_bytes.h"

#include "fake_image/fake_image.h"
#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "support/system_call_faults.h"
#include "taglib/avi/header_reader.h"
#include "taglib/avi/load_file_info.h"
#include "taglib/avi/remove_file_info.h"
#include "taglib/avi/store_file_info.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>

using namespace std::string_literals;

/** Files that lie: whatever they claim, the result is one of the documented ones and costs what the file is
   worth. */
namespace velmora::test {
namespace {

class AviHostileFile : public testing::Test {
protected:
    ~AviHostileFile() override { EXPECT_EQ(0, fake_images_alive()); }

    /** Loads the file; true when it could be read. */
    bool load() {
        StreamCapture quiet;
        _file_info_t info;
        errno = 78;
        const bool loaded = avi_load_file_info(path_.c_str(), &info) == 1;
        error_ = errno;
        id3_free_file_info(&info);
        return loaded;
    }

    bool store() {
        StreamCapture quiet;
        std::string text = "A title that is longer than the old one";
        Image* const picture = image_from_bytes("\xFF\xD8\xFFjpeg", 7);
        _file_info_t info{};
        info.flags = 0xFF;
        info.title = text.data();
        info.genre = text.data();
        info.picture = picture;
        errno = 78;
        const bool stored = avi_store_file_info(path_.c_str(), &info) == 1;
        error_ = errno;
        image_release(picture);
        return stored;
    }

    bool remove() {
        StreamCapture quiet;
        errno = 78;
        const bool removed = avi_remove_file_info(path_.c_str()) == 1;
        error_ = errno;
        return removed;
    }

    /** A new file each time: some file systems write a truncated one out to disk at once, which takes its
       time. */
    void write_anew(const std::string& bytes) {
        std::remove(path_.c_str());
        write_file(path_, bytes);
    }

    /** All three agree on whether BYTES can be read, and a file that can't keeps every byte. */
    void expect_readable(bool readable, int error, const std::string& bytes, const std::string& what) {
        SCOPED_TRACE(what);
        write_anew(bytes);
        EXPECT_EQ(readable, load());
        EXPECT_EQ(readable ? 0 : error, error_);
        EXPECT_EQ(readable, store());
        if (!readable) {
            EXPECT_EQ(error, error_);
            EXPECT_TRUE(bytes == read_file(path_));
        }
        write_anew(bytes);
        EXPECT_EQ(readable, remove());
        if (!readable) {
            EXPECT_EQ(error, error_);
            EXPECT_TRUE(bytes == read_file(path_));
        }
    }

    const ScratchFolder folder_;
    const std::string path_ = folder_ / "file.avi";
    int error_ = 0;
};

TEST_F(AviHostileFile, ASmallFileCutAtEveryLengthIsReadableFromTheFormTypeOn) {
    for (const std::string& whole : {avi_without_info(), avi_with_info_before_movi(), avi_with_info_last()}) {
        for (std::size_t length = 0; length < whole.size(); ++length) {
            expect_readable(length >= 12, 5, whole.substr(0, length), "cut to " + std::to_string(length));
        }
    }
}

TEST_F(AviHostileFile, AFileThatLosesMoreThanItsLast4096BytesIsRefusedWhole) {
    // The media list begins at 40 and runs to the end; cut, it claims more than there is.
    const std::string whole = riff(5044, hdrl() + list(5004, "movi", std::string(5000, 'f')));
    for (const std::size_t length : {40u, 48u, 52u, 1000u, 4135u, 4136u}) {
        expect_readable(true, 5, whole.substr(0, length), "cut to " + std::to_string(length));
    }
    for (const std::size_t length : {4137u, 4138u, 5000u, 5043u}) {
        expect_readable(false, 5, whole.substr(0, length), "cut to " + std::to_string(length));
    }
    for (const std::size_t length : {5044u, 5045u, 5051u, 5052u}) { // the last 8 bytes may be missing
        expect_readable(true, 5, whole.substr(0, length), "cut to " + std::to_string(length));
    }
}

TEST_F(AviHostileFile, EverySizeFieldMayHoldEveryAwkwardNumber) {
    const std::string whole = riff(82, hdrl() + list(42, "INFO",
                                                     chunk("ISFT", 3, "Lav\0"s) + chunk("INAM", 4, z("Old")) +
                                                         chunk("LIST", 6, "iner\0\0"s)));
    // RIFF, hdrl, INFO, ISFT, INAM, LIST
    for (const std::size_t field : {4u, 16u, 44u, 56u, 68u, 80u}) {
        for (const std::uint32_t size :
             {0u, 1u, 3u, 4u, 7u, 11u, 12u, 13u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFE4u, 0xFFFFFFF4u,
              0xFFFFFFF7u, 0xFFFFFFF8u, 0xFFFFFFFCu, 0xFFFFFFFEu, 0xFFFFFFFFu}) {
            std::string bytes = whole;
            bytes.replace(field, 4, le32(size));
            expect_readable(true, 5, bytes, std::to_string(size) + " at " + std::to_string(field));
        }
    }
}

TEST_F(AviHostileFile, EveryByteOfTheHeaderMayBeAnother) {
    const std::string whole = avi_with_info_before_movi();
    for (std::size_t position = 12; position < whole.size(); ++position) {
        for (const char value : {'\0', '\1', 'R', '\x7F', '\x80', '\xFF'}) {
            std::string bytes = whole;
            bytes[position] = value;
            expect_readable(true, 5, bytes, "byte " + std::to_string(position));
        }
    }
}

TEST_F(AviHostileFile, ASecondRiffIsRefusedWithError78WhereverItStands) {
    expect_readable(false, 78, riff(64, chunk("RIFF", 4, "AVIX") + hdrl() + idx1()), "in front");
    expect_readable(false, 78, riff(64, hdrl() + chunk("RIFF", 4, "AVIX") + idx1()), "in the middle");
    expect_readable(false, 78, riff(64, hdrl() + idx1() + chunk("RIFF", 4, "AVIX")), "at the end");
}

TEST_F(AviHostileFile, OtherFilesAreRefusedWithError5) {
    expect_readable(false, 5, "", "nothing");
    expect_readable(false, 5, std::string(100, '\0'), "zeros");
    expect_readable(false, 5, std::string(100, '\xFF'), "ones");
    expect_readable(false, 5, "RIFF" + le32(4) + "WAVE", "a sound");
    expect_readable(false, 5, "RIFX" + le32(4) + "AVI ", "the other byte order");
    expect_readable(false, 5, "LIST" + le32(4) + "AVI ", "a list");
}

TEST_F(AviHostileFile, AFolderCantBeStoredInto) {
    StreamCapture log;
    _file_info_t info{};
    EXPECT_EQ(0, avi_store_file_info(folder_.path().c_str(), &info));
    EXPECT_EQ(EISDIR, errno);
    EXPECT_EQ("avi_store_file_info: Couldn't open file\n", log.text());
}

TEST_F(AviHostileFile, AFolderLoadsAsAnUnreadableHeader) {
    StreamCapture quiet;
    _file_info_t info;
    EXPECT_EQ(0, avi_load_file_info(folder_.path().c_str(), &info));
    EXPECT_EQ(5, errno);
}

TEST_F(AviHostileFile, CallsGrowInProportionToTheNumberOfChunks) {
    std::string sub_chunks;
    for (int i = 0; i < 50000; ++i) {
        sub_chunks += chunk("INAM", 0, "");
    }
    write_file(path_, riff(400012 + 32, hdrl() + list(400004, "INFO", sub_chunks)));
    SystemCallFaults watch;
    EXPECT_TRUE(load());
    EXPECT_LE(watch.count(), 2 * 50000 + 20);
}

TEST_F(AviHostileFile, AListOfManySubChunksIsWrittenInFewCalls) {
    std::string sub_chunks;
    for (int i = 0; i < 50000; ++i) {
        sub_chunks += chunk("ITST", 0, "");
    }
    write_file(path_, riff(400012 + 32, hdrl() + list(400004, "INFO", sub_chunks)));
    SystemCallFaults watch;
    EXPECT_TRUE(store());
    EXPECT_LE(watch.count(SystemCall::write), 30);
}

TEST_F(AviHostileFile, TheMediaIsNotRead) {
    write_file(path_,
               riff(1000000 + 12 + 64, hdrl() + list(1000004, "movi", std::string(1000000, 'f')) + idx1()));
    SystemCallFaults watch;
    EXPECT_TRUE(load());
    // RIFF header, three chunk headers, two list types.
    // A block from the file's beginning on, which holds three chunks' headers, and what there is of idx1.
    EXPECT_EQ(4096 + 8 + 16, watch.bytes(SystemCall::read));
}

} // namespace
} // namespace velmora::test
