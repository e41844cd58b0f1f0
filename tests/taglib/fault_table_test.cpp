#include "fault_table_reader.h"
#include "live_blocks.h"

#include "fake_image/fake_image.h"
#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "support/system_call_faults.h"
#include "taglib/taglib.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

/** Every function of the tag library that writes, run once for each system call that it makes and for each
   way in which that call can go wrong, and once more with the program killed there. The test prints the
   count. */
namespace velmora::test {
namespace {

/** What a store may do to a file. */
enum class Writes {
    in_place,     ///< the sample's tag region, and what lies behind the sample
    through_copy, ///< nothing: another file takes its place
    by_moving,    ///< the header; the media data may lie where it was, where it goes to, or partly both
};

struct Operation {
    const char* name;
    MediaFormat format;
    MediaSample before;
    Writes writes;
    std::function<int(const char* path)> run;
    TagFields fields_after; ///< of a success, in the file's order
    /** Whether success may look different when a part of the old tag could not be read. */
    bool success_varies = false;
    bool stores = true;
};

constexpr const char* new_picture = "\xFF\xD8\xFFpicture";

/** Stores the title "New", and a picture too where WITH_PICTURE. */
template <typename Store>
std::function<int(const char*)> storing(Store store, bool with_picture) {
    return [store, with_picture](const char* path) {
        std::string title = "New";
        const std::unique_ptr<Image, void (*)(Image*)> picture(image_from_bytes(new_picture, 10),
                                                               image_release);
        _file_info_t info{};
        info.flags = file_info_flag::title | (with_picture ? file_info_flag::picture : 0);
        info.title = title.data();
        info.picture = picture.get();
        return store(path, &info);
    };
}

/** SAMPLE's fields with these in place of those of their names. */
TagFields changed(const MediaSample& sample, const TagFields& changes) {
    TagFields fields = sample.fields;
    for (auto& [name, value] : fields) {
        for (const auto& [changed_name, changed_value] : changes) {
            value = name == changed_name ? changed_value : value;
        }
    }
    return fields;
}

std::vector<Operation> id3_operations() {
    const auto store = storing(id3_store_file_info, true);
    const TagFields changes = {{"TALB", std::string("\0New", 4)}, {"APIC", apic_body(new_picture)}};
    const MediaSample untagged{pattern(3000), 0, 3000, 3000, 0, {}};
    const MediaSample appended = id3_appended_sample(3000);
    const MediaSample leading = id3_leading_sample(150000);
    const MediaSample side = id3_side_file_sample();
    using enum Writes;
    constexpr MediaFormat id3 = MediaFormat::id3;
    return {
        {"id3 store, tag appended anew", id3, untagged, in_place, store, changes},
        {"id3 store, appended tag", id3, appended, in_place, store, changed(appended, changes)},
        {"id3 store, leading tag", id3, leading, through_copy, store, changed(leading, changes)},
        {"id3 store, side file", id3, side, through_copy, store, changed(side, changes)},
        {"id3 removal", id3, appended, in_place, id3_remove_file_info, appended.fields, true, false},
        {"id3 removal, side file", id3, side, through_copy, id3_remove_file_info, {}, true, false},
    };
}

std::vector<Operation> asf_operations() {
    const auto store = storing(asf_store_file_info, true);
    const auto store_title = storing(asf_store_file_info, false);
    const TagFields title = {{"WM/AlbumTitle", wide_attribute("New")}};
    const TagFields changes = {title[0], {"WM/Picture", wm_picture(new_picture)}};
    const MediaSample padded = asf_sample(3000, 300, "Old");
    const MediaSample full = asf_sample(1100000, 0, "Old");
    const MediaSample shrinking = asf_sample(1100000, 0, std::string(60, 'o'));
    const MediaSample small = asf_sample(70000, 0, "Old");
    const TagFields removed = {{"title", ""},
                               {"author", ""},
                               {"copyright", wide("Somebody")},
                               {"description", wide("About")},
                               {"rating", wide("R")},
                               {"WM/Other", wide_attribute("kept")}};
    using enum Writes;
    constexpr MediaFormat asf = MediaFormat::asf;
    const auto remove = asf_remove_file_info;
    return {
        {"asf store, in the padding", asf, padded, in_place, store, changed(padded, changes)},
        {"asf store, data moved away", asf, full, by_moving, store, changed(full, changes)},
        {"asf store, data moved back", asf, shrinking, by_moving, store_title, changed(shrinking, title)},
        {"asf removal, in the padding", asf, padded, in_place, remove, removed, false, false},
        {"asf removal, data moved back", asf, small, by_moving, remove, removed, false, false},
    };
}

std::vector<Operation> avi_operations() {
    const auto store = storing(avi_store_file_info, true);
    const TagFields changes = {{"INAM", std::string("New\0", 4)}, {"IPIC", new_picture}};
    const MediaSample untagged = avi_sample(3000, AviInfo::none);
    const MediaSample last = avi_sample(3000, AviInfo::last);
    const MediaSample in_front = avi_sample(3000, AviInfo::in_front);
    using enum Writes;
    constexpr MediaFormat avi = MediaFormat::avi;
    const auto remove = avi_remove_file_info;
    return {
        {"avi store, no list", avi, untagged, in_place, store, changes},
        {"avi store, list last", avi, last, in_place, store, changed(last, changes)},
        {"avi store, list becomes junk", avi, in_front, in_place, store, changed(in_front, changes)},
        {"avi removal, list last", avi, last, in_place, remove, {}, false, false},
        {"avi removal, list becomes junk", avi, in_front, in_place, remove, {}, false, false},
    };
}

std::vector<Operation> operations() {
    std::vector<Operation> all = id3_operations();
    for (const auto& more : {asf_operations(), avi_operations()}) {
        all.insert(all.end(), more.begin(), more.end());
    }
    return all;
}

/** One way for a call to go wrong. */
struct Fault {
    std::string name;
    std::function<void(SystemCallFaults&)> inject;
    int error = 0; ///< what the system says; nothing when it just moves fewer bytes
};

/** The ways of the call that is the NTH of all and the NTH_OF_KIND of its kind. */
std::vector<Fault> faults_of(const SystemCallRecord& record, int nth, int nth_of_kind) {
    const SystemCall call = record.call;
    std::vector<Fault> faults;
    const auto add_error = [&](const char* name, int error) {
        faults.push_back({name, [=](SystemCallFaults& watch) { watch.fail(nth, error); }, error});
    };
    const bool transfers = call == SystemCall::read || call == SystemCall::write;
    const bool takes_room = call == SystemCall::open || call == SystemCall::write ||
                            call == SystemCall::close || call == SystemCall::rename;
    add_error("EIO", EIO);
    if (takes_room) {
        add_error("ENOSPC", ENOSPC);
    }
    if (transfers || call == SystemCall::open || call == SystemCall::close) {
        add_error("EINTR", EINTR);
    }
    if (call == SystemCall::write) {
        faults.push_back({"ENOSPC from here on",
                          [=](SystemCallFaults& watch) { watch.fail_from(call, nth_of_kind, ENOSPC); },
                          ENOSPC});
    }
    if (transfers) {
        std::int64_t last = -1;
        for (const std::int64_t bytes :
             {std::int64_t{0}, std::int64_t{1}, record.requested / 2, record.requested - 1}) {
            if (bytes > last && bytes < record.requested) {
                faults.push_back({"only " + std::to_string(bytes) + " bytes", [=](SystemCallFaults& watch) {
                                      watch.cut_short(call, nth_of_kind, static_cast<std::size_t>(bytes));
                                  }});
                last = bytes;
            }
        }
    }
    return faults;
}

/** What a run left behind. */
struct Outcome {
    int result = -1;
    int error = 0;
    std::string log;
    int open_descriptors = 0;
    long leaked_blocks = 0;
    std::string file;      ///< the media file's contents; empty when it is gone
    std::string neighbour; ///< those of another file in its folder
    std::vector<SystemCallRecord> calls;
};

/** Runs OPERATION on a fresh copy of its sample, with what INJECT makes go wrong. */
Outcome run(const Operation& operation, const std::function<void(SystemCallFaults&)>& inject) {
    const ScratchFolder folder;
    const std::string path = folder / "film";
    write_file(path, operation.before.bytes);
    Outcome outcome;
    {
        StreamCapture log;
        {
            SystemCallFaults watch;
            watch.create_generated_names();
            inject(watch);
            const long blocks = live_blocks();
            errno = 0;
            outcome.result = operation.run(path.c_str());
            outcome.error = errno;
            outcome.leaked_blocks = live_blocks() - blocks;
            outcome.open_descriptors = watch.open_descriptors();
            outcome.calls = watch.records();
        }
        outcome.log = log.text();
    }
    for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
        (entry.path() == path ? outcome.file : outcome.neighbour) = read_file(entry.path());
    }
    return outcome;
}

std::uint64_t asf_header_size(const std::string& file) {
    std::uint64_t size = 0;
    for (int i = 7; i >= 0; --i) {
        size = size << 8 | static_cast<unsigned char>(file[16 + static_cast<std::size_t>(i)]);
    }
    return size;
}

bool media_is_untouched(const Operation& operation, const Outcome& outcome) {
    const MediaSample& sample = operation.before;
    if (outcome.file.size() < sample.bytes.size()) {
        return false;
    }
    std::string expected = sample.bytes;
    const std::string& found = outcome.file;
    expected.replace(sample.tag, sample.tag_size, found, sample.tag, sample.tag_size);
    if (expected.starts_with("RIFF")) {
        expected.replace(4, 4, found, 4, 4);
    }
    return found.starts_with(expected);
}

/** Whether the media is whole in one of the files, and the old file is as it was after a failure. */
bool media_survives_a_copy(const Operation& operation, const Outcome& outcome) {
    if (outcome.result == 0 || !operation.stores) {
        const bool deleted = outcome.result == 1 && outcome.file.empty();
        return (deleted || outcome.file == operation.before.bytes) && outcome.neighbour.empty();
    }
    const std::string media =
        operation.before.bytes.substr(operation.before.media, operation.before.media_size);
    return outcome.file.find(media) != std::string::npos ||
           outcome.neighbour.find(media) != std::string::npos;
}

/** Bytes that two texts have in common from their beginnings on. */
template <typename Text>
std::size_t common_length(const Text& a, const Text& b) {
    return static_cast<std::size_t>(std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin());
}

/** Whether each byte of the media is where it was or where it goes to. */
bool media_survives_a_move(const Operation& operation, const Outcome& outcome, const Outcome& success) {
    const auto part = [&](const std::string& file, std::size_t begin) {
        return std::string_view(file).substr(std::min(begin, file.size()), operation.before.media_size);
    };
    const auto reversed = [](std::string_view text) { return std::string(text.rbegin(), text.rend()); };
    const std::size_t source = operation.before.media;
    const std::size_t target = asf_header_size(success.file);
    const std::string_view media = part(operation.before.bytes, source);
    const bool moves_back = target < source;
    // A move begins with the end that lies in its direction.
    const std::string_view start = part(outcome.file, moves_back ? target : source);
    const std::string_view end = part(outcome.file, moves_back ? source : target);
    if (start == media || end == media) {
        return true;
    }
    const std::size_t end_length =
        end.size() < media.size() ? 0 : common_length(reversed(media), reversed(end));
    return common_length(media, start) + end_length >= media.size();
}

bool media_survives(const Operation& operation, const Outcome& outcome, const Outcome& success) {
    switch (operation.writes) {
    case Writes::in_place:
        return media_is_untouched(operation, outcome);
    case Writes::through_copy:
        return media_survives_a_copy(operation, outcome);
    case Writes::by_moving:
        return media_survives_a_move(operation, outcome, success);
    }
    return false;
}

/** The file, or the copy of it that could not be renamed and keeps its own name. */
const std::string& file_or_copy(const Outcome& outcome) {
    return outcome.file.empty() ? outcome.neighbour : outcome.file;
}

/** Whether a player finds the media data in the file that OUTCOME left. */
bool opens(const Operation& operation, const Outcome& outcome) {
    const MediaSample& sample = operation.before;
    const std::string& file = file_or_copy(outcome);
    const std::optional<std::uint64_t> position = media_position_in(operation.format, file);
    return position && *position <= file.size() &&
           std::string_view(file).substr(*position).starts_with(
               std::string_view(sample.bytes).substr(sample.media, sample.media_size));
}

/** Whether a run that reported success did what a run without a fault does: every field is as expected. */
bool success_is_true(const Operation& operation, const Outcome& outcome, const Outcome& success) {
    const std::string& file = file_or_copy(outcome);
    if (operation.success_varies && file == operation.before.bytes) {
        return true;
    }
    return file == file_or_copy(success) && tag_fields_in(operation.format, file) == operation.fields_after;
}

/** Whether the media is whole in one of the files after a kill, or went with a side file that is removed. */
bool media_survives_a_kill(const Operation& operation, const Outcome& outcome, const Outcome& success) {
    if (operation.writes != Writes::through_copy) {
        return media_survives(operation, outcome, success);
    }
    return !operation.stores || outcome.file == operation.before.bytes || outcome.neighbour == success.file ||
           outcome.file == success.file;
}

/** Whether a failure that came of FAULT says why: in the log, or by errno, which is 5 for a header that can't
   be read and else the system's own number. A header object that is not written whole is told by the result
   alone. */
bool failure_is_explained(const Outcome& outcome, const Fault& fault) {
    static const char* const endings[] = {
        "id3_store_file_info: couldn't read old descriptor\n",
        "id3_store_file_info: couldn't store new descriptor\n",
        "id3_store_file_info: couldn't create temp file\n",
        "id3_store_file_info: couldn't reopen temp file\n",
        "id3_store_file_info: couldn't append file data\n",
        "id3_store_file_info: couldn't delete original file\n",
        "id3_store_file_info: couldn't open file for r/w: Input/output error\n",
        "id3_store_file_info: couldn't open file for r/w: No space left on device\n",
        "id3_store_file_info: couldn't open file for r/w: Interrupted system call\n",
        "id3_remove_file_info: couldn't open file for r/w\n",
        "asf_store_file_info: Couldn't open file\n",
        "asf_move_file: Error reading file\n",
        "asf_move_file: Error writing file\n",
        "avi_store_file_info: Couldn't open file\n",
        "avi_store_file_info: Error writing <info> tag\n",
        "avi_store_file_info: Error writing <junk> tag\n",
        "avi_remove_file_info: Error writing <junk> tag\n",
        "avi_store_item: Error writing file\n"};
    for (const char* const ending : endings) {
        if (outcome.log.ends_with(ending)) {
            return true;
        }
    }
    const bool asf_header_cut = fault.error == 0 && outcome.log.find("Final diff size") != std::string::npos;
    return asf_header_cut || outcome.error == 5 || (fault.error != 0 && outcome.error == fault.error);
}

/** Whether the system said only at a close that something written may be lost. */
bool close_of_written_file_failed(const Outcome& outcome) {
    std::set<std::string> written;
    for (const SystemCallRecord& call : outcome.calls) {
        if (call.call == SystemCall::write && call.result > 0) {
            written.insert(call.path);
        }
        if (call.call == SystemCall::close && call.error != 0 && written.count(call.path) > 0) {
            return true;
        }
    }
    return false;
}

/** What is wrong with OUTCOME; empty when nothing is. */
std::string violation(const Operation& operation, const Fault& fault, const Outcome& outcome,
                      const Outcome& success) {
    std::string found;
    if (outcome.result != 0 && outcome.result != 1) {
        found += " no documented result;";
    }
    if (outcome.open_descriptors != 0) {
        found += " descriptor left open;";
    }
    if (outcome.leaked_blocks != 0 || fake_images_alive() != 0) {
        found += " memory leaked;";
    }
    if (!media_survives(operation, outcome, success)) {
        found += " media lost;";
    }
    if (outcome.result == 1 &&
        (!success_is_true(operation, outcome, success) || close_of_written_file_failed(outcome))) {
        found += " success without the result;";
    }
    if (outcome.result == 0 && !failure_is_explained(outcome, fault)) {
        found += " unexplained failure;";
    }
    return found;
}

/** A line of the table. */
struct Row {
    std::string name;
    std::size_t calls = 0;
    int faults = 0;
    int kills = 0;
    int failures = 0;   ///< runs with a fault that reported one
    int unplayable = 0; ///< runs with a fault or a kill after which no player finds the media
    int violations = 0;

    void add(const Row& other) {
        calls += other.calls;
        faults += other.faults;
        kills += other.kills;
        failures += other.failures;
        unplayable += other.unplayable;
        violations += other.violations;
    }
};

constexpr const char* heading =
    "operation                         calls   faults   kills   reported   unplayable   violations\n";

std::string line(const Row& row) {
    char text[120];
    std::snprintf(text, sizeof text, "%-32s %6zu %8d %7d %10d %12d %12d\n", row.name.c_str(), row.calls,
                  row.faults, row.kills, row.failures, row.unplayable, row.violations);
    return text;
}

void run_fault(const Operation& operation, const Fault& fault, const Outcome& success,
               const std::string& where, Row* row) {
    const Outcome outcome = run(operation, fault.inject);
    const std::string wrong = violation(operation, fault, outcome, success);
    ++row->faults;
    row->failures += outcome.result == 0;
    row->unplayable += !opens(operation, outcome);
    row->violations += !wrong.empty();
    EXPECT_EQ("", wrong) << where << ": " << fault.name << "\nerror " << outcome.error << ", log:\n"
                         << outcome.log;
}

void run_kill(const Operation& operation, int nth, const Outcome& success, const std::string& where,
              Row* row) {
    const Outcome outcome = run(operation, [&](SystemCallFaults& watch) { watch.stop_at(nth); });
    const bool survives = media_survives_a_kill(operation, outcome, success);
    ++row->kills;
    row->unplayable += !opens(operation, outcome);
    row->violations += !survives;
    EXPECT_TRUE(survives) << where << ": killed";
}

Row row_of(const Operation& operation) {
    const Fault none{"none", [](SystemCallFaults&) {}};
    const Outcome success = run(operation, none.inject);
    EXPECT_EQ(1, success.result) << operation.name;
    EXPECT_EQ(operation.before.fields, tag_fields_in(operation.format, operation.before.bytes));
    EXPECT_EQ(operation.fields_after, tag_fields_in(operation.format, success.file)) << operation.name;
    EXPECT_EQ("", violation(operation, none, success, success)) << operation.name;
    EXPECT_TRUE(opens(operation, success)) << operation.name;
    Row row{operation.name, success.calls.size()};
    std::map<SystemCall, int> of_kind;
    for (std::size_t i = 0; i < success.calls.size(); ++i) {
        const SystemCallRecord& call = success.calls[i];
        const int nth = static_cast<int>(i) + 1;
        const std::string where =
            std::string(operation.name) + ", call " + std::to_string(nth) + " (" + name_of(call.call) + ")";
        for (const Fault& fault : faults_of(call, nth, ++of_kind[call.call])) {
            run_fault(operation, fault, success, where, &row);
        }
        run_kill(operation, nth, success, where, &row);
    }
    return row;
}

TEST(FaultTable, NoFaultLosesMediaOrGoesUnnoticed) {
    // Thousands of files are written: where there is one, into a file system in memory.
    if (std::filesystem::is_directory("/dev/shm")) {
        ::setenv("TMPDIR", "/dev/shm", 1);
    }
    std::string table = heading;
    Row sum{"sum"};
    for (const Operation& operation : operations()) {
        const Row row = row_of(operation);
        table += line(row);
        sum.add(row);
        if (operation.format != MediaFormat::asf) { // where the header is rewritten in place
            EXPECT_EQ(0, row.unplayable) << operation.name;
        }
    }
    std::fputs((table + line(sum)).c_str(), stdout);
    EXPECT_EQ(0, sum.violations);
}

} // namespace
} // namespace velmora::test
