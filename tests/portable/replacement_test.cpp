#include "portable/portable_tags.h"

#include "support/bytes.h"
#include "support/scratch_folder.h"

#include <fcntl.h>
#include <filesystem>
#include <gmock/gmock.h>
#include <linux/fs.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace velmora::portable {
namespace {

using test::read_file;
using test::write_file;

const std::string frames_of_media = test::hex("FFFB9064") + test::pattern(5000);

struct stat status_of(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(0, ::lstat(path.c_str(), &status)) << path;
    return status;
}

TagEdits title(const std::string& text) {
    TagEdits edits;
    edits.text(Field::title) = Edit<std::string>::set(text);
    return edits;
}

/** A song in a folder of its own. */
class ReplacedFile : public testing::Test {
protected:
    ReplacedFile() { write_file(path_, frames_of_media); }

    /** The reason of a save that must fail and leave the file and its folder alone. */
    ReasonCode refused(const std::string& path, const SaveOptions& options = {}) {
        const std::string before = read_file(path_);
        const auto names = this->names();
        const SaveOutcome outcome = save_tags(path, title("X"), options);
        EXPECT_EQ(SaveResult::failed, outcome.result);
        EXPECT_EQ(before, read_file(path_));
        EXPECT_EQ(names, this->names());
        return outcome.failure.value_or(Reason()).code;
    }

    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder_.path())) {
            names.push_back(entry.path().filename());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    test::ScratchFolder folder_;
    std::string path_ = folder_ / "song.mp3";
};

TEST_F(ReplacedFile, IsAnotherFileOfTheSameNameAndAlone) {
    const ino_t before = status_of(path_).st_ino;
    ASSERT_EQ(SaveResult::saved, save_tags(path_, title("X")).result);
    EXPECT_NE(before, status_of(path_).st_ino);
    EXPECT_THAT(names(), testing::ElementsAre("song.mp3"));
    EXPECT_EQ("X", read_tags(path_).values.text(Field::title));
}

TEST_F(ReplacedFile, KeepsModeAndExtendedAttributes) {
    ASSERT_EQ(0, ::chmod(path_.c_str(), 0640));
    ASSERT_EQ(0, ::setxattr(path_.c_str(), "user.origin", "disc", 4, 0));
    ASSERT_EQ(SaveResult::saved, save_tags(path_, title("X")).result);
    EXPECT_EQ(0640U, status_of(path_).st_mode & 07777U);
    char value[8] = {};
    EXPECT_EQ(4, ::getxattr(path_.c_str(), "user.origin", value, sizeof value));
    EXPECT_STREQ("disc", value);
}

TEST_F(ReplacedFile, KeepsItsAccessListAndTakesNoneOfTheFolder) {
    // Version 2; the owner rw, the user 65534 r, the group r, at most r, others nothing.
    const std::string list = test::hex("02000000 01000600FFFFFFFF 02000400FEFF0000 04000400FFFFFFFF"
                                       "10000400FFFFFFFF 20000000FFFFFFFF");
    ASSERT_EQ(0, ::setxattr(path_.c_str(), "system.posix_acl_access", list.data(), list.size(), 0));
    ASSERT_EQ(SaveResult::saved, save_tags(path_, title("X")).result);
    char value[64] = {};
    const ssize_t size = ::getxattr(path_.c_str(), "system.posix_acl_access", value, sizeof value);
    EXPECT_EQ(test::to_hex(list),
              test::to_hex({value, static_cast<std::size_t>(std::max<ssize_t>(size, 0))}));

    ASSERT_EQ(0, ::removexattr(path_.c_str(), "system.posix_acl_access"));
    ASSERT_EQ(0, ::setxattr(folder_.path().c_str(), "system.posix_acl_default", list.data(), list.size(), 0));
    ASSERT_EQ(SaveResult::saved, save_tags(path_, title("Y")).result);
    EXPECT_EQ(-1, ::getxattr(path_.c_str(), "system.posix_acl_access", value, sizeof value));
}

TEST_F(ReplacedFile, KeepsItsOwner) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << "only the superuser gives files away";
    }
    ASSERT_EQ(0, ::chown(path_.c_str(), 1234, 2345));
    ASSERT_EQ(SaveResult::saved, save_tags(path_, title("X")).result);
    EXPECT_EQ(1234U, status_of(path_).st_uid);
    EXPECT_EQ(2345U, status_of(path_).st_gid);
}

TEST_F(ReplacedFile, IsTheOneThatLinksLeadTo) {
    std::filesystem::create_directory(folder_ / "links");
    const std::string link = folder_ / "links/other.mp3";
    ASSERT_EQ(0, ::symlink("../song.mp3", link.c_str()));
    ASSERT_EQ(SaveResult::saved, save_tags(link, title("X")).result);
    EXPECT_TRUE(S_ISLNK(status_of(link).st_mode));
    EXPECT_EQ("X", read_tags(path_).values.text(Field::title));
}

TEST_F(ReplacedFile, IsNotPartedFromItsHardLinksUnlessAsked) {
    const std::string other = folder_ / "other.mp3";
    std::filesystem::create_hard_link(path_, other);
    EXPECT_EQ(ReasonCode::more_links, refused(path_));
    SaveOptions options;
    options.break_links = true;
    ASSERT_EQ(SaveResult::saved, save_tags(path_, title("X"), options).result);
    EXPECT_EQ(frames_of_media, read_file(other));
}

TEST_F(ReplacedFile, IsLeftAloneWithoutWritePermission) {
    ASSERT_EQ(0, ::chmod(path_.c_str(), 0444));
    EXPECT_EQ(ReasonCode::not_writable, refused(path_));
}

TEST_F(ReplacedFile, IsARegularOne) {
    const std::string pipe = folder_ / "pipe.mp3";
    ASSERT_EQ(0, ::mkfifo(pipe.c_str(), 0600));
    EXPECT_EQ(ReasonCode::not_regular, refused(pipe));
    EXPECT_EQ(ReasonCode::not_regular, read_tags(pipe).failure.value_or(Reason()).code);
    std::filesystem::create_directory(folder_ / "folder.mp3");
    EXPECT_EQ(ReasonCode::not_regular, refused(folder_ / "folder.mp3"));
}

TEST_F(ReplacedFile, ThatIsNotThereIsAFailureOfTheSystem) {
    EXPECT_EQ(ReasonCode::system, refused(folder_ / "none.mp3"));
    EXPECT_EQ(ENOENT, save_tags(folder_ / "none.mp3", title("X")).failure->error);
}

TEST_F(ReplacedFile, IsNotMadeWhereALinkLeadsToNothing) {
    const std::string link = folder_ / "link.mp3";
    ASSERT_EQ(0, ::symlink("nowhere.mp3", link.c_str()));
    EXPECT_EQ(ReasonCode::system, refused(link));
    EXPECT_EQ(ENOENT, save_tags(link, title("X")).failure.value().error);
}

TEST_F(ReplacedFile, IsLeftAloneWhileItIsImmutable) {
    const int file = ::open(path_.c_str(), O_RDONLY | O_CLOEXEC);
    int flags = 0;
    const bool known = ::ioctl(file, FS_IOC_GETFLAGS, &flags) == 0;
    const int immutable = flags | FS_IMMUTABLE_FL;
    if (!known || ::ioctl(file, FS_IOC_SETFLAGS, &immutable) != 0) {
        ::close(file);
        GTEST_SKIP() << "here no file can be made immutable";
    }
    EXPECT_EQ(ReasonCode::not_writable, refused(path_));
    EXPECT_EQ(0, ::ioctl(file, FS_IOC_SETFLAGS, &flags));
    ::close(file);
}

TEST_F(ReplacedFile, ThatAnotherProgramChangesMeanwhileKeepsTheChange) {
    SaveOptions options;
    options.progress = [&](std::uint64_t done, std::uint64_t) {
        if (done > 0) {
            write_file(path_, "changed");
        }
        return true;
    };
    const SaveOutcome outcome = save_tags(path_, title("X"), options);
    ASSERT_EQ(SaveResult::failed, outcome.result);
    EXPECT_EQ(ReasonCode::changed_meanwhile, outcome.failure->code);
    EXPECT_EQ("changed", read_file(path_));
    EXPECT_THAT(names(), testing::ElementsAre("song.mp3"));
}

TEST_F(ReplacedFile, IsLeftAloneByASaveThatIsCancelledAtAnyTime) {
    int calls = 0;
    SaveOptions options;
    options.progress = [&](std::uint64_t, std::uint64_t) {
        ++calls;
        return true;
    };
    ASSERT_EQ(SaveResult::saved, save_tags(path_, title("Old"), options).result);
    ASSERT_GE(calls, 3);
    for (int last = 1; last <= calls; ++last) {
        int left = last;
        options.progress = [&](std::uint64_t, std::uint64_t) { return --left > 0; };
        EXPECT_EQ(ReasonCode::cancelled, refused(path_, options)) << last;
    }
}

TEST_F(ReplacedFile, StaysTheSameFileWhereNothingChanges) {
    ASSERT_EQ(SaveResult::saved, save_tags(path_, title("X")).result);
    const ino_t before = status_of(path_).st_ino;
    EXPECT_EQ(SaveResult::unchanged, save_tags(path_, title("X")).result);
    EXPECT_EQ(before, status_of(path_).st_ino);
}

TEST_F(ReplacedFile, StaysTheSameFileInADryRun) {
    SaveOptions options;
    options.dry_run = true;
    EXPECT_EQ(SaveResult::saved, save_tags(path_, title("X"), options).result);
    EXPECT_EQ(frames_of_media, read_file(path_));
}

TEST_F(ReplacedFile, TakesAwayWhatAKilledSaveLeftAndNothingElse) {
    const std::string left = folder_ / ".velmora-new-0123456789abcdef";
    const std::string locked = folder_ / ".velmora-new-fedcba9876543210";
    const std::string another = folder_ / ".velmora-new-0123";
    for (const std::string& name : {left, locked, another}) {
        write_file(name, "half");
    }
    const int lock = ::open(locked.c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(0, ::flock(lock, LOCK_EX));
    ASSERT_EQ(SaveResult::saved, save_tags(path_, title("X")).result);
    ::close(lock);
    EXPECT_THAT(names(),
                testing::ElementsAre(".velmora-new-0123", ".velmora-new-fedcba9876543210", "song.mp3"));
}

TEST_F(ReplacedFile, OfAKindThatHasNoTagsIsRefused) {
    for (const char* name : {"picture.jpg", "notes.txt"}) {
        write_file(folder_ / name, "bytes");
        EXPECT_EQ(ReasonCode::unknown_kind, refused(folder_ / name));
    }
    const ReadOutcome picture = read_tags(folder_ / "picture.jpg");
    EXPECT_FALSE(picture.failure);
    EXPECT_EQ(Media::image, picture.kind->media);
}

TEST_F(ReplacedFile, HasNoFieldOfTheOtherKind) {
    TagEdits edits;
    edits.text(Field::director) = Edit<std::string>::set("Cy");
    const SaveOutcome outcome = save_tags(path_, edits);
    ASSERT_EQ(SaveResult::failed, outcome.result);
    EXPECT_EQ(ReasonCode::foreign_field, outcome.failure->code);
    EXPECT_EQ(frames_of_media, read_file(path_));
}

} // namespace
} // namespace velmora::portable
