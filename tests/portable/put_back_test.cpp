// Files that a save changed and that are made again what they were, every byte of them.

#include "portable/portable_tags.h"

#include "chunk_bytes.h"
#include "sample_files.h"

#include "support/bytes.h"
#include "support/id3_tags.h"
#include "support/scratch_folder.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace velmora::portable {
namespace {

using test::hex;
using test::le32;
using test::pattern;
using test::read_file;
using test::write_file;

Cover cover(std::size_t size) {
    const std::string bytes = hex("FFD8FFE0") + pattern(size);
    return {{bytes.begin(), bytes.end()}, "image/jpeg"};
}

/** Every field that files with EXTENSION have. */
TagEdits every_field(const std::string& extension, const std::string& text, std::size_t cover_size) {
    const Media media = media_kind("a." + extension)->media;
    TagEdits edits;
    for (std::size_t i = 0; i < text_field_count; ++i) {
        const auto field = static_cast<Field>(i);
        const bool of_films = field == Field::director || field == Field::rating;
        const bool has = media == Media::video ? field != Field::album : !of_films;
        if (has) {
            edits.texts[i] = Edit<std::string>::set(field == Field::rating ? "PG-13" : text);
        }
    }
    edits.year = Edit<int>::set(1995);
    edits.cover = Edit<Cover>::set(cover(cover_size));
    return edits;
}

std::string ape_tag() {
    const std::string item = le32(3) + le32(0) + "Title" + std::string(1, '\0') + "Old";
    return item + "APETAGEX" + le32(2000) + le32(item.size() + 32) + le32(1) + le32(0) + std::string(8, '\0');
}

std::string id3v1_tag() {
    return "TAG" + std::string("Old") + std::string(121, '\0') + '\x11';
}

struct Sample {
    const char* name;
    const char* extension;
    std::string bytes;
};

void PrintTo(const Sample& sample, std::ostream* out) {
    *out << sample.name;
}

std::vector<Sample> samples() {
    const std::string frames = test::mp3_sample(false);
    const std::string old22 = hex("545432 000004 00") + "Old" + hex("545945 000005 00") + "1971";
    return {
        {"mp3", "mp3", frames},
        {"mp3_22", "mp3", test::leading_tag(2, old22) + frames},
        {"mp3_23", "mp3", test::mp3_sample(true)},
        {"mp3_24_with_date", "mp3",
         test::leading_tag(4, test::text4("TDRC", "1994-05-06") + test::cover4("\xFF\xD8\xFF\xE0old")) +
             frames},
        {"mp3_tag_behind", "mp3", frames + test::appended_tag_sample()},
        {"mp3_both", "mp3", test::mp3_sample(true) + test::appended_tag_sample()},
        {"mp3_id3v1", "mp3", frames + id3v1_tag()},
        {"mp3_ape_and_id3v1", "mp3", frames + ape_tag() + id3v1_tag()},
        {"flac", "flac", test::flac_sample()},
        {"flac_between_others", "flac",
         test::leading_tag(4, test::text4("TIT2", "Old")) + test::flac_sample() + id3v1_tag()},
        {"opus", "opus", test::opus_sample()},
        {"mp4_media_behind", "mp4", test::mp4_sample(true)},
        {"mp4_media_in_front", "m4a", test::mp4_sample(false)},
        {"m4a_tag_behind", "m4a", test::mp4_sample(true) + test::appended_tag_sample()},
        {"wav", "wav", test::wav_sample()},
        {"aiff", "aiff", test::aiff_sample()},
        {"asf", "wmv", test::asf_sample()},
        {"avi", "avi", test::avi_sample()},
        {"mpg", "mpg", frames},
        {"mpg_tagged", "mpg", frames + test::appended_tag_sample()},
    };
}

/** A file in a folder of its own, and what is kept of it. */
class PutBack : public testing::Test {
protected:
    void write(const std::string& extension, const std::string& bytes) {
        path_ = folder_ / ("file." + extension);
        write_file(path_, bytes);
    }

    SaveOutcome save(const TagEdits& edits) {
        SaveOptions options;
        options.kept = &kept_;
        SaveOutcome outcome = save_tags(path_, edits, options);
        EXPECT_EQ(SaveResult::saved, outcome.result)
            << sentence(outcome.failure.value_or(Reason{ReasonCode::cancelled, 0, {}}));
        EXPECT_TRUE(outcome.way_back);
        return outcome;
    }

    SaveOutcome undo(const SaveOutcome& saved, const SaveOptions& options = {}) {
        return put_back(path_, saved.way_back.value_or(WayBack()), saved.after, kept_, options);
    }

    /** The reason of an undo of SAVED that must fail and leave the file and its folder alone. */
    ReasonCode refused(const SaveOutcome& saved, const SaveOptions& options = {}) {
        const std::string before = read_file(path_);
        const SaveOutcome outcome = undo(saved, options);
        EXPECT_EQ(SaveResult::failed, outcome.result);
        EXPECT_EQ(before, read_file(path_));
        EXPECT_EQ(1, std::distance(std::filesystem::directory_iterator(folder_.path()), {}));
        return outcome.failure.value_or(Reason()).code;
    }

    test::ScratchFolder folder_;
    std::string path_;
    KeptBytes kept_;
};

class PutBackOfAKind : public PutBack, public testing::WithParamInterface<Sample> {};

TEST_P(PutBackOfAKind, GivesBackEveryByteAfterOneSaveAndAfterSeveral) {
    const auto& [name, extension, bytes] = GetParam();
    write(extension, bytes);
    const SaveOutcome first = save(every_field(extension, "A text", 3000));
    const std::string after_first = read_file(path_);
    const SaveOutcome second = save(every_field(extension, "Another one of them", 90));
    TagEdits removal;
    removal.text(Field::title) = Edit<std::string>::remove();
    removal.cover = Edit<Cover>::remove();
    const std::string after_second = read_file(path_);
    const SaveOutcome third = save(removal);

    const SaveOutcome third_undone = undo(third);
    EXPECT_EQ(SaveResult::saved, third_undone.result);
    EXPECT_TRUE(after_second == read_file(path_));
    const SaveOutcome second_undone = put_back(path_, *second.way_back, third_undone.after, kept_);
    EXPECT_EQ(SaveResult::saved, second_undone.result);
    EXPECT_TRUE(after_first == read_file(path_));
    const SaveOutcome first_undone = put_back(path_, *first.way_back, second_undone.after, kept_);
    EXPECT_EQ(SaveResult::saved, first_undone.result);
    EXPECT_FALSE(first_undone.warning);
    EXPECT_EQ(file_mark(path_), first_undone.after);
    EXPECT_TRUE(bytes == read_file(path_)) << read_file(path_).size() << " bytes instead of " << bytes.size();
}

INSTANTIATE_TEST_SUITE_P(Kinds, PutBackOfAKind, testing::ValuesIn(samples()),
                         [](const auto& kind) { return kind.param.name; });

TEST_F(PutBack, GivesBackTheOldPagesWhereOggIsCountedAnew) {
    const std::string bytes = test::opus_sample();
    write("opus", bytes);
    TagEdits edits;
    edits.text(Field::synopsis) = Edit<std::string>::set(std::string(70000, 's')); // takes a second page
    const SaveOutcome saved = save(edits);
    EXPECT_EQ(SaveResult::saved, undo(saved).result);
    EXPECT_TRUE(bytes == read_file(path_));
}

TEST_F(PutBack, GivesBackAnOggFileWhoseChecksumsWereWrong) {
    std::string bytes = test::opus_sample();
    const std::size_t last_page = bytes.rfind("OggS");
    bytes[last_page + 22] = static_cast<char>(bytes[last_page + 22] ^ 1);
    write("opus", bytes);
    TagEdits edits;
    edits.text(Field::synopsis) = Edit<std::string>::set(std::string(70000, 's'));
    const SaveOutcome saved = save(edits);
    EXPECT_EQ(SaveResult::saved, undo(saved).result);
    EXPECT_TRUE(bytes == read_file(path_));
}

TEST_F(PutBack, GivesBackAFileWithoutItsTags) {
    const std::string bytes = test::mp3_sample(true) + test::appended_tag_sample();
    write("mp3", bytes);
    SaveOptions options;
    options.kept = &kept_;
    const SaveOutcome removed = remove_tags(path_, options);
    ASSERT_TRUE(removed.way_back);
    EXPECT_EQ(SaveResult::saved, undo(removed).result);
    EXPECT_TRUE(bytes == read_file(path_));
}

TEST_F(PutBack, KeepsOnlyWhatTheNewFileLacks) {
    write("mp3", test::mp3_sample(true) + pattern(1'000'000));
    static_cast<void>(save(every_field("mp3", "A text", 3000)));
    EXPECT_LT(kept_.size(), 1000U);
}

TEST_F(PutBack, RemovesASideFileThatWasNotThereAndMakesOneThatWasRemoved) {
    write("iso", "disc");
    const std::string side_file = folder_ / "file.TAG";
    TagEdits title;
    title.text(Field::title) = Edit<std::string>::set("A title");
    const SaveOutcome made = save(title);
    EXPECT_FALSE(made.before);
    const std::string tag = read_file(side_file);
    title.text(Field::title) = Edit<std::string>::remove();
    const SaveOutcome removed = save(title);
    EXPECT_FALSE(removed.after);
    ASSERT_FALSE(test::file_exists(side_file));

    const SaveOutcome made_again = undo(removed);
    EXPECT_EQ(SaveResult::saved, made_again.result);
    EXPECT_EQ(tag, read_file(side_file));
    EXPECT_EQ(SaveResult::saved, put_back(path_, *made.way_back, made_again.after, kept_).result);
    EXPECT_FALSE(test::file_exists(side_file));
    EXPECT_EQ("disc", read_file(path_));
}

/** A song that was saved. */
class PutBackSong : public PutBack {
protected:
    PutBackSong() {
        write("mp3", old_);
        saved_ = save(every_field("mp3", "A text", 3000));
    }

    const std::string old_ = test::mp3_sample(true);
    SaveOutcome saved_;
};

TEST_F(PutBackSong, KeepsTheModeAndTheAttributesThatItHasByNow) {
    ASSERT_EQ(0, ::chmod(path_.c_str(), 0640));
    ASSERT_EQ(0, ::setxattr(path_.c_str(), "user.origin", "disc", 4, 0));
    ASSERT_EQ(SaveResult::saved, undo(saved_).result);
    struct stat status {};
    char value[8] = {};
    ASSERT_EQ(0, ::stat(path_.c_str(), &status));
    EXPECT_EQ(0640U, status.st_mode & 07777U);
    EXPECT_EQ(4, ::getxattr(path_.c_str(), "user.origin", value, sizeof value));
}

TEST_F(PutBackSong, FollowsTheFileToAnotherName) {
    const std::string other = folder_ / "other.mp3";
    std::filesystem::rename(path_, other);
    path_ = other;
    EXPECT_EQ(SaveResult::saved, undo(saved_).result);
    EXPECT_TRUE(old_ == read_file(path_));
}

TEST_F(PutBackSong, LeavesAFileAloneThatWasChangedSince) {
    const std::string bytes = read_file(path_);
    write_file(path_, bytes);
    EXPECT_EQ(ReasonCode::changed_meanwhile, refused(saved_)) << "the same bytes, written by somebody else";
    std::filesystem::remove(path_);
    write_file(path_, bytes);
    EXPECT_EQ(ReasonCode::changed_meanwhile, refused(saved_)) << "another file of the same name";
}

TEST_F(PutBackSong, LeavesAFileAloneThatChangesMeanwhile) {
    SaveOptions options;
    options.progress = [&](std::uint64_t done, std::uint64_t) {
        if (done > 0) {
            write_file(path_, "changed");
        }
        return true;
    };
    EXPECT_EQ(ReasonCode::changed_meanwhile, undo(saved_, options).failure.value_or(Reason()).code);
    EXPECT_EQ("changed", read_file(path_));
}

TEST_F(PutBackSong, LeavesAFileAloneThatIsProtectedOrHasFurtherLinks) {
    ASSERT_EQ(0, ::chmod(path_.c_str(), 0444));
    EXPECT_EQ(ReasonCode::not_writable, refused(saved_));
    ASSERT_EQ(0, ::chmod(path_.c_str(), 0644));
    const test::ScratchFolder other;
    std::filesystem::create_hard_link(path_, other / "other.mp3");
    EXPECT_EQ(ReasonCode::more_links, refused(saved_));
}

TEST_F(PutBackSong, IsCancelledAtAnyTimeAndTellsOfAllBytes) {
    std::vector<std::uint64_t> told;
    std::uint64_t to_do = 0;
    std::size_t last = 0;
    SaveOptions options;
    options.progress = [&](std::uint64_t done, std::uint64_t total) {
        told.push_back(done);
        to_do = total;
        return told.size() != last;
    };
    for (last = 1; last < 100; ++last) {
        told.clear();
        const std::string before = read_file(path_);
        const SaveOutcome outcome = undo(saved_, options);
        if (outcome.result == SaveResult::saved) {
            break;
        }
        EXPECT_EQ(ReasonCode::cancelled, outcome.failure.value_or(Reason()).code);
        EXPECT_TRUE(before == read_file(path_)) << last;
    }
    EXPECT_GE(last, 4U);
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_EQ(2 * old_.size(), to_do);
    EXPECT_EQ(to_do, told.back());
    EXPECT_TRUE(old_ == read_file(path_));
}

TEST_F(PutBackSong, LeavesTheFileAloneInADryRun) {
    const std::string before = read_file(path_);
    SaveOptions options;
    options.dry_run = true;
    EXPECT_EQ(SaveResult::saved, undo(saved_, options).result);
    EXPECT_TRUE(before == read_file(path_));
}

TEST_F(PutBackSong, ASaveThatFailsKeepsNothing) {
    const std::uint64_t size = kept_.size();
    SaveOptions options;
    options.kept = &kept_;
    options.progress = [](std::uint64_t done, std::uint64_t) { return done == 0; };
    EXPECT_EQ(SaveResult::failed, save_tags(path_, every_field("mp3", "Others", 10), options).result);
    EXPECT_EQ(size, kept_.size());
    EXPECT_EQ(SaveResult::saved, undo(saved_).result);
    EXPECT_TRUE(old_ == read_file(path_));
}

/** $TMPDIR, for the time of a test. */
class TemporaryFolder {
public:
    explicit TemporaryFolder(const std::string& path) { ::setenv("TMPDIR", path.c_str(), 1); }
    ~TemporaryFolder() {
        if (before_.empty()) {
            ::unsetenv("TMPDIR");
        } else {
            ::setenv("TMPDIR", before_.c_str(), 1);
        }
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

private:
    std::string before_ = std::getenv("TMPDIR") ? std::getenv("TMPDIR") : "";
};

TEST_F(PutBack, AFileWhoseBytesCantBeKeptIsNotChanged) {
    const std::string old = test::mp3_sample(true);
    write("mp3", old);
    const TemporaryFolder nowhere(folder_ / "nowhere");
    SaveOptions options;
    options.kept = &kept_;
    const SaveOutcome outcome = save_tags(path_, every_field("mp3", "A text", 10), options);
    ASSERT_EQ(SaveResult::failed, outcome.result);
    EXPECT_EQ((Reason{ReasonCode::not_kept, ENOENT, {}}), outcome.failure);
    EXPECT_EQ("what the file was can't be kept for an undo (No such file or directory)",
              sentence(*outcome.failure));
    EXPECT_FALSE(outcome.way_back);
    EXPECT_TRUE(old == read_file(path_));
}

TEST_F(PutBack, WhatIsKeptHasNoNameAnywhere) {
    const TemporaryFolder here(folder_.path());
    const std::string bytes = "kept";
    ASSERT_TRUE(kept_.append({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()}));
    EXPECT_EQ(4U, kept_.size());
    EXPECT_TRUE(std::filesystem::is_empty(folder_.path()));
    struct stat status {};
    ASSERT_EQ(0, ::fstat(kept_.descriptor(), &status));
    EXPECT_EQ(4, status.st_size);
    EXPECT_EQ(0U, status.st_mode & 077U) << "others can read it";
    kept_.shrink_to(1);
    EXPECT_EQ(1U, kept_.size());
    ASSERT_EQ(0, ::fstat(kept_.descriptor(), &status));
    EXPECT_EQ(1, status.st_size);
}

} // namespace
} // namespace velmora::portable
