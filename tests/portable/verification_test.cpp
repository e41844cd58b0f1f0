// Media of a size that is compared in two halves.

#include "portable/detail/progress.h"
#include "portable/detail/tagged_file.h"
#include "portable/detail/verification.h"
#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "taglib/byte_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>

namespace velmora::portable {
namespace {

constexpr std::size_t size = 20UL * 1024 * 1024;

/** A song without a tag, open. */
class Song {
public:
    explicit Song(const std::string& bytes) : path_(folder_ / "song.mp3") {
        test::write_file(path_, bytes);
        EXPECT_TRUE(file_.open(path_.c_str(), O_RDONLY | O_CLOEXEC));
        tags_ = open_tagged_file(file_.handle(), bytes.size(), *media_kind(path_));
    }

    [[nodiscard]] OpenTags opened() { return {file_.handle(), *tags_}; }

private:
    test::ScratchFolder folder_;
    std::string path_;
    ByteFile file_;
    std::unique_ptr<TaggedFile> tags_;
};

std::string media() {
    return test::hex("FFFB9064") + std::string(size - 4, 'm');
}

/** Why the song with BYTES does not pass for the one with media(). */
std::optional<ReasonCode> refusal(const std::string& bytes, Progress progress = Progress({})) {
    Song before(media());
    Song after(bytes);
    try {
        verify_edits(before.opened(), after.opened(), {}, progress);
        return std::nullopt;
    } catch (const Refusal& refusal) {
        return refusal.reason().code;
    }
}

TEST(Verification, FindsADifferenceInEitherHalf) {
    EXPECT_EQ(std::nullopt, refusal(media()));
    for (const std::size_t place : {std::size_t{4}, size / 2 - 1, size / 2, size - 1}) {
        std::string bytes = media();
        bytes[place] = 'x';
        EXPECT_EQ(ReasonCode::would_lose, refusal(bytes)) << place;
    }
}

TEST(Verification, TellsOfAllBytesInTheEnd) {
    std::uint64_t told = 0;
    EXPECT_EQ(std::nullopt, refusal(media(), Progress([&](std::uint64_t done, std::uint64_t) {
                                        EXPECT_LE(told, done);
                                        told = done;
                                        return true;
                                    })));
    EXPECT_EQ(size, told);
}

TEST(Verification, IsCancelledAtAnyTime) {
    for (const std::uint64_t most : {std::uint64_t{0}, std::uint64_t{size / 3}, std::uint64_t{size - 1}}) {
        EXPECT_EQ(ReasonCode::cancelled, refusal(media(), Progress([&](std::uint64_t done, std::uint64_t) {
                                                     return done <= most;
                                                 })));
    }
}

} // namespace
} // namespace velmora::portable
