#include "asf_fixture.h"
#include "box_bytes.h"
#include "call_faults.h"
#include "chunk_bytes.h"

#include "portable/detail/ogg_page.h"
#include "portable/portable_tags.h"
#include "support/bytes.h"
#include "support/scratch_folder.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <gtest/gtest.h>
#include <iomanip>
#include <iostream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace velmora::test {
namespace {

using namespace portable;

constexpr mode_t mode = 0640;
constexpr int saved_status = 0;
constexpr int failed_status = 1;

/** A save of a kind of file. */
struct Operation {
    std::string name;
    std::string extension;
    std::string file; ///< empty: there is none
    TagEdits edits;
    bool in_hidden_file = false; ///< on a file system that has no files without a name
    bool removes = false;        ///< every tag whole
};

TagEdits new_values(bool with_cover = true) {
    TagEdits edits;
    edits.text(Field::title) = Edit<std::string>::set("A title that is longer");
    edits.text(Field::artist) = Edit<std::string>::remove();
    edits.year = Edit<int>::set(1995);
    if (with_cover) {
        const std::string bytes = hex("FFD8FFE0") + pattern(3000);
        edits.cover = Edit<Cover>::set({{bytes.begin(), bytes.end()}, "image/jpeg"});
    }
    return edits;
}

std::string mp3(bool tagged) {
    const std::string tag = hex("49443303 0000 0000001E 54495432 00000006 0000 00") + "Title" +
                            hex("58595A57 00000004 0000 01020304");
    return (tagged ? tag : std::string()) + hex("FFFB9064") + pattern(4000);
}

std::string appended_tag() {
    const std::string header = hex("0400 10 00000010");
    return "ID3" + header + hex("54495432 00000006 0000 00") + "Later" + "3DI" + header;
}

std::string flac() {
    return "fLaC" + hex("00000022") + pattern(34) + hex("81000040") + std::string(64, '\0') + pattern(3000);
}

std::string ogg() {
    const auto packet = [](const std::string& bytes) { return Bytes(bytes.begin(), bytes.end()); };
    OggPageHeader first;
    first.flags = ogg_flag::first;
    first.segments = {8};
    const auto comments = packet("OpusTags" + le32(1) + "v" + le32(1) + le32(9) + "TITLE=Old");
    std::vector<Bytes> pages{ogg_page(first, packet("OpusHead"))};
    for (const Bytes& page : ogg_pages({comments}, 0, 1, 1)) {
        pages.push_back(page);
    }
    for (const Bytes& page : ogg_pages({packet(pattern(9000)), packet(pattern(9000, 2))}, 0, 2, 4)) {
        pages.push_back(page);
    }
    std::string file;
    for (const Bytes& page : pages) {
        file.append(page.begin(), page.end());
    }
    return file;
}

std::string mp4(bool media_behind) {
    const std::string type = box("ftyp", "isom");
    const std::string media = box("mdat", pattern(3000));
    const auto movie = [](std::size_t offset) {
        return box("moov", track(be32(offset)) + item_list(item("\xA9nam", "Old") + item("xxxx", "kept")));
    };
    const std::size_t behind = type.size() + movie(0).size() + 8;
    return media_behind ? type + movie(behind) + media : type + media + movie(type.size() + 8);
}

std::string wav() {
    return riff("WAVE", chunk("fmt ", "0123456789abcdef") +
                            list("INFO", info("INAM", "Old") + info("ISFT", "kept")) +
                            chunk("data", pattern(3000)));
}

std::string aiff() {
    return aiff_chunk("FORM",
                      "AIFF" + aiff_chunk("COMM", "123456789012345678") + aiff_chunk("SSND", pattern(3000)));
}

std::string avi() {
    return riff("AVI ", list("hdrl", chunk("avih", "header")) + list("movi", chunk("00dc", pattern(3000))) +
                            chunk("idx1", "0123456789abcdef") + list("INFO", info("INAM", "Old")));
}

std::vector<Operation> operations() {
    const std::string asf = asf_file({content_description("Harbour", "Ada"), padding(40)});
    TagEdits film = new_values();
    film.text(Field::director) = Edit<std::string>::set("Cy");
    std::vector<Operation> all{
        {"mp3, tag in front", "mp3", mp3(true), new_values()},
        {"mp3, no tag", "mp3", mp3(false), new_values()},
        {"mp3, tag at the end", "mp3", mp3(true) + appended_tag(), new_values()},
        {"mp3, all removed", "mp3", mp3(true) + appended_tag(), {}, false, true},
        {"flac", "flac", flac(), new_values()},
        {"opus, in its pages", "opus", ogg(), new_values(false)},
        {"opus, pages counted anew", "opus", ogg(),
         [] {
             TagEdits edits = new_values();
             edits.text(Field::synopsis) = Edit<std::string>::set(std::string(70000, 's'));
             return edits;
         }()},
        {"mp4, media behind", "mp4", mp4(true), film},
        {"mp4, media in front", "m4a", mp4(false), new_values()},
        {"m4a, tag at the end", "m4a", mp4(false) + appended_tag(), new_values()},
        {"wav", "wav", wav(), new_values()},
        {"aiff", "aiff", aiff(), new_values()},
        {"asf", "wmv", asf, film},
        {"avi", "avi", avi(), film},
        {"mpg, own tag", "mpg", mp3(false), film},
        {"iso, new side file", "iso", {}, film},
        {"iso, side file", "iso", appended_tag(), film},
    };
    const std::size_t count = all.size();
    for (std::size_t i = 0; i < count; ++i) {
        // The file itself is made in another way; what fills it is the same.
        static constexpr std::array also = {"mp3, tag in front", "mp4, media behind",
                                            "opus, pages counted anew", "iso, new side file"};
        if (std::find(also.begin(), also.end(), all[i].name) != also.end()) {
            Operation hidden = all[i];
            hidden.name += ", hidden name";
            hidden.in_hidden_file = true;
            all.push_back(std::move(hidden));
        }
    }
    return all;
}

int open_descriptors() {
    int count = 0;
    DIR* const listing = ::opendir("/proc/self/fd");
    while (::readdir(listing)) {
        ++count;
    }
    ::closedir(listing);
    return count;
}

/** The folder of an operation, and what may be in it. */
class Scene {
public:
    explicit Scene(const Operation& operation) : operation_(operation) {
        media_path_ = folder_ / ("song." + operation.extension);
        path_ = operation.extension == "iso" ? folder_ / "song.TAG" : media_path_;
        write_file(media_path_, "disc");
    }

    void restore() {
        for (const std::string& name : neighbours()) {
            ::unlink((folder_ / name).c_str());
        }
        ::unlink(path_.c_str());
        if (!operation_.file.empty()) {
            write_file(path_, operation_.file);
            ASSERT_EQ(0, ::chmod(path_.c_str(), mode));
            ASSERT_EQ(0, ::setxattr(path_.c_str(), "user.origin", "disc", 4, 0));
        }
    }

    [[nodiscard]] SaveOutcome run() const {
        return operation_.removes ? remove_tags(media_path_) : save_tags(media_path_, operation_.edits);
    }

    /** The file's bytes, nothing where there is none. */
    [[nodiscard]] std::string bytes() const { return file_exists(path_) ? read_file(path_) : std::string(); }

    /** The names in the folder but for the file's and the disc's. */
    [[nodiscard]] std::vector<std::string> neighbours() const {
        std::vector<std::string> names;
        DIR* const listing = ::opendir(folder_.path().c_str());
        while (const dirent* const entry = ::readdir(listing)) {
            const std::string name = entry->d_name;
            const bool own =
                name == "." || name == ".." || folder_ / name == path_ || folder_ / name == media_path_;
            if (!own) {
                names.push_back(name);
            }
        }
        ::closedir(listing);
        return names;
    }

    /** Whether mode and attributes of the file are those that it had. */
    [[nodiscard]] bool keeps_attributes() const {
        struct stat status {};
        char value[8] = {};
        return operation_.file.empty() ||
               (::stat(path_.c_str(), &status) == 0 && (status.st_mode & 07777U) == mode &&
                ::getxattr(path_.c_str(), "user.origin", value, sizeof value) == 4);
    }

private:
    const Operation& operation_;
    ScratchFolder folder_;
    std::string media_path_;
    std::string path_;
};

/** What the faults of one operation came to. */
struct Row {
    std::size_t calls = 0;
    std::size_t faults = 0;
    std::size_t kills = 0;
    std::size_t reported = 0;    ///< runs that ended as a failure
    std::size_t left_hidden = 0; ///< kills that left a hidden file, which the next save removed
    std::size_t violations = 0;
};

class FaultRun {
public:
    explicit FaultRun(const Operation& operation) : operation_(operation), scene_(operation) {}

    Row run() {
        const std::vector<CallRecord> calls = undisturbed();
        row_.calls = calls.size();
        for (std::size_t nth = 1; nth <= calls.size(); ++nth) {
            for (const CallFault& fault : faults_for(calls[nth - 1])) {
                fault.kind == CallFault::Kind::kill_before || fault.kind == CallFault::Kind::kill_after
                    ? run_killed(nth, fault, calls[nth - 1])
                    : run_with(nth, fault, calls[nth - 1]);
            }
        }
        return row_;
    }

private:
    void prepare(CallFaults& faults) const { faults.refuse_unnamed_files(operation_.in_hidden_file); }

    std::vector<CallRecord> undisturbed() {
        scene_.restore();
        CallFaults watch;
        prepare(watch);
        EXPECT_EQ(SaveResult::saved, scene_.run().result) << operation_.name;
        const std::vector<CallRecord> records = watch.records();
        made_ = scene_.bytes();
        EXPECT_TRUE(operation_.file != made_) << operation_.name;
        EXPECT_TRUE(scene_.keeps_attributes()) << operation_.name;
        return records;
    }

    static std::vector<CallFault> faults_for(const CallRecord& call) {
        using Kind = CallFault::Kind;
        std::vector<CallFault> faults;
        for (const int error : {EIO, ENOSPC, EINTR}) {
            faults.push_back({Kind::error, error, 0});
        }
        if (call.length > 0) {
            for (const std::size_t most :
                 {std::size_t{0}, std::size_t{1}, call.length / 2, call.length - 1}) {
                faults.push_back({Kind::short_count, 0, most});
            }
        }
        faults.push_back({Kind::kill_before, 0, 0});
        faults.push_back({Kind::kill_after, 0, 0});
        return faults;
    }

    void violate(const char* what, const CallRecord& call, const CallFault& fault) {
        ++row_.violations;
        ADD_FAILURE() << operation_.name << ", " << call.name << ", fault " << static_cast<int>(fault.kind)
                      << " error " << fault.error << " most " << fault.most << ": " << what;
    }

    void run_with(std::size_t nth, const CallFault& fault, const CallRecord& call) {
        scene_.restore();
        const int descriptors = open_descriptors();
        SaveOutcome outcome;
        {
            CallFaults faults;
            prepare(faults);
            faults.set(nth, fault);
            outcome = scene_.run();
        }
        ++row_.faults;
        row_.reported += outcome.result == SaveResult::failed ? 1 : 0;
        const std::string bytes = scene_.bytes();
        if (outcome.result == SaveResult::saved ? bytes != made_ : bytes != operation_.file) {
            violate("the file is not what was said", call, fault);
        }
        if ((outcome.result == SaveResult::failed) != outcome.failure.has_value()) {
            violate("no reason", call, fault);
        }
        if (outcome.result == SaveResult::saved && !scene_.keeps_attributes()) {
            violate("mode or attributes are lost", call, fault);
        }
        // A name that can't be removed stays; the next save takes it away.
        const bool may_stay = call.name == "unlinkat";
        if (!scene_.neighbours().empty() && !may_stay) {
            violate("something stays beside it", call, fault);
        }
        // A close that fails has closed all the same, but here it did nothing.
        const bool not_closed = call.name.starts_with("close") && fault.kind == CallFault::Kind::error;
        if (!not_closed && open_descriptors() != descriptors) {
            violate("a descriptor stays open", call, fault);
        }
    }

    void run_killed(std::size_t nth, const CallFault& fault, const CallRecord& call) {
        scene_.restore();
        const pid_t child = ::fork();
        if (child == 0) {
            CallFaults faults;
            prepare(faults);
            faults.set(nth, fault);
            ::_exit(scene_.run().result == SaveResult::saved ? saved_status : failed_status);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        ++row_.kills;
        if (!WIFSIGNALED(status)) {
            violate("it was not killed", call, fault);
        }
        const std::string bytes = scene_.bytes();
        if (bytes != operation_.file && bytes != made_) {
            violate("the file is neither the old one nor the new one", call, fault);
        }
        if (!scene_.neighbours().empty()) {
            ++row_.left_hidden;
            static_cast<void>(scene_.run());
            if (!scene_.neighbours().empty()) {
                violate("what a kill left stays", call, fault);
            }
        }
    }

    const Operation& operation_;
    Scene scene_;
    std::string made_;
    Row row_;
};

void print_row(const std::string& name, const Row& row) {
    std::cout << std::left << std::setw(40) << name << std::right;
    for (const std::size_t number :
         {row.calls, row.faults, row.kills, row.reported, row.left_hidden, row.violations}) {
        std::cout << std::setw(11) << number;
    }
    std::cout << '\n';
}

TEST(PortableFaultTable, EveryCallMayFailOrBeTheLast) {
    std::cout << std::left << std::setw(40) << "operation" << std::right;
    for (const char* column : {"calls", "faults", "kills", "reported", "hidden", "violations"}) {
        std::cout << std::setw(11) << column;
    }
    std::cout << '\n';
    Row sum;
    for (const Operation& operation : operations()) {
        const Row row = FaultRun(operation).run();
        print_row(operation.name, row);
        sum.calls += row.calls;
        sum.faults += row.faults;
        sum.kills += row.kills;
        sum.reported += row.reported;
        sum.left_hidden += row.left_hidden;
        sum.violations += row.violations;
    }
    print_row("sum", sum);
    EXPECT_EQ(0U, sum.violations);
    EXPECT_GE(sum.faults + sum.kills, 5000U);
}

} // namespace
} // namespace velmora::test
