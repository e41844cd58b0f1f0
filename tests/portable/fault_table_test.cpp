#include "call_faults.h"
#include "sample_files.h"

#include "portable/portable_tags.h"
#include "support/bytes.h"
#include "support/memory_folder.h"
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

/** What is done with a file. */
enum class Action {
    save,
    save_and_keep, ///< the old bytes
    remove,        ///< every tag whole
    put_back,      ///< what it was before a save
};

/** An action on a kind of file. */
struct Operation {
    std::string name;
    std::string extension;
    std::string file; ///< empty: there is none
    TagEdits edits;
    Action action = Action::save;
    bool in_hidden_file = false; ///< on a file system that has no files without a name
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

std::vector<Operation> operations() {
    TagEdits film = new_values();
    film.text(Field::director) = Edit<std::string>::set("Cy");
    std::vector<Operation> all{
        {"mp3, tag in front", "mp3", mp3_sample(true), new_values()},
        {"mp3, no tag", "mp3", mp3_sample(false), new_values()},
        {"mp3, tag at the end", "mp3", mp3_sample(true) + appended_tag_sample(), new_values()},
        {"mp3, all removed", "mp3", mp3_sample(true) + appended_tag_sample(), {}, Action::remove},
        {"flac", "flac", flac_sample(), new_values()},
        {"opus, in its pages", "opus", opus_sample(), new_values(false)},
        {"opus, pages counted anew", "opus", opus_sample(),
         [] {
             TagEdits edits = new_values();
             edits.text(Field::synopsis) = Edit<std::string>::set(std::string(70000, 's'));
             return edits;
         }()},
        {"mp4, media behind", "mp4", mp4_sample(true), film},
        {"mp4, media in front", "m4a", mp4_sample(false), new_values()},
        {"m4a, tag at the end", "m4a", mp4_sample(false) + appended_tag_sample(), new_values()},
        {"wav", "wav", wav_sample(), new_values()},
        {"aiff", "aiff", aiff_sample(), new_values()},
        {"asf", "wmv", asf_sample(), film},
        {"avi", "avi", avi_sample(), film},
        {"mpg, own tag", "mpg", mp3_sample(false), film},
        {"iso, new side file", "iso", {}, film},
        {"iso, side file", "iso", appended_tag_sample(), film},
    };
    for (const Operation& operation : std::vector(all)) {
        static constexpr std::array undone = {"mp3, tag in front",        "flac",
                                              "opus, pages counted anew", "mp4, media behind",
                                              "iso, new side file",       "iso, side file"};
        if (std::find(undone.begin(), undone.end(), operation.name) != undone.end()) {
            all.push_back(operation);
            all.back().name += ", put back";
            all.back().action = Action::put_back;
        }
    }
    all.push_back({"mp3, old bytes kept", "mp3", mp3_sample(true), new_values(), Action::save_and_keep});
    const std::size_t count = all.size();
    for (std::size_t i = 0; i < count; ++i) {
        // The file itself is made in another way; what fills it is the same.
        static constexpr std::array also = {"mp3, tag in front", "mp4, media behind",
                                            "opus, pages counted anew", "iso, new side file",
                                            "mp3, tag in front, put back"};
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
        if (operation_.action == Action::put_back) {
            kept_.shrink_to(0);
            saved_ = save_tags(media_path_, operation_.edits, keeping(kept_));
            ASSERT_TRUE(saved_.way_back);
        }
        before_ = bytes();
    }

    [[nodiscard]] SaveOutcome run() const {
        KeptBytes kept;
        switch (operation_.action) {
        case Action::put_back:
            return portable::put_back(media_path_, *saved_.way_back, saved_.after, kept_);
        case Action::remove:
            return remove_tags(media_path_);
        case Action::save_and_keep:
            return save_tags(media_path_, operation_.edits, keeping(kept));
        default:
            return save_tags(media_path_, operation_.edits);
        }
    }

    /** The file's bytes before the run. */
    [[nodiscard]] const std::string& before() const { return before_; }

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
    static SaveOptions keeping(KeptBytes& kept) {
        SaveOptions options;
        options.kept = &kept;
        return options;
    }

    const Operation& operation_;
    ScratchFolder folder_;
    std::string media_path_;
    std::string path_;
    std::string before_;
    KeptBytes kept_;
    SaveOutcome saved_;
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
        EXPECT_TRUE(scene_.before() != made_) << operation_.name;
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
        if (outcome.result == SaveResult::saved ? bytes != made_ : bytes != scene_.before()) {
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
        if (bytes != scene_.before() && bytes != made_) {
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
    scratch_in_memory();
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
