#include "portable_tags.h"

#include "detail/file_transfer.h"
#include "detail/replacement.h"
#include "detail/save_edits.h"
#include "detail/system_refusal.h"
#include "detail/verification.h"
#include "detail/way_back.h"

#include <algorithm>
#include <fcntl.h>
#include <new>
#include <utility>

namespace velmora::portable {

namespace {

/** What WORK gives; where it throws, an OUTCOME with the reason. */
template <typename Outcome, typename Work>
Outcome contained(Work work) {
    Outcome outcome;
    try {
        work(outcome);
        return outcome;
    } catch (const Refusal& refusal) {
        outcome.failure = refusal.reason();
    } catch (const std::bad_alloc&) {
        outcome.failure = Reason{ReasonCode::system, ENOMEM, {}};
    } catch (const std::exception& exception) {
        outcome.failure = Reason{ReasonCode::damaged, 0, exception.what()};
    }
    return outcome;
}

MediaKind known_kind(const std::string& path) {
    const std::optional<MediaKind> kind = media_kind(path);
    if (!kind) {
        throw Refusal({ReasonCode::unknown_kind, 0, {}});
    }
    return *kind;
}

MediaKind writable_kind(const std::string& path) {
    const MediaKind kind = known_kind(path);
    if (kind.container == Container::picture) {
        throw Refusal({ReasonCode::unknown_kind, 0, {}});
    }
    return kind;
}

/** The file that has the tag of the one at PATH. */
std::string tag_path(const std::string& path, const MediaKind& kind) {
    return kind.container == Container::side_file ? path.substr(0, path.rfind('.')) + ".TAG" : path;
}

/** The size of FILE, which has to be a regular one. */
std::uint64_t checked_size(FIOFUNCSTRUCT* file) {
    struct stat status {};
    if (::fstat(file->descriptor, &status) != 0) {
        throw system_refusal();
    }
    if (!S_ISREG(status.st_mode)) {
        throw Refusal({ReasonCode::not_regular, 0, {}});
    }
    return static_cast<std::uint64_t>(status.st_size);
}

void read_into(const std::string& path, const MediaKind& kind, ReadOutcome& outcome) {
    ByteFile file;
    if (!file.open(tag_path(path, kind).c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)) {
        if (kind.container == Container::side_file && errno == ENOENT) {
            return;
        }
        throw system_refusal();
    }
    const std::uint64_t size = checked_size(file.handle());
    if (kind.container == Container::picture) {
        return;
    }
    const std::unique_ptr<TaggedFile> tags = open_tagged_file(file.handle(), size, kind);
    outcome.values = tags->values();
    outcome.tags = tags->tags();
}

/** Whether REWRITE gives the bytes that the file has already. */
bool changes_nothing(FIOFUNCSTRUCT* file, std::uint64_t size, const Rewrite& rewrite) {
    if (rewrite.finish) {
        return false;
    }
    std::uint64_t position = 0;
    for (const Segment& segment : rewrite.segments) {
        if (const auto* const range = std::get_if<Range>(&segment)) {
            if (range->size() > 0 && range->begin != position) {
                return false;
            }
            position += range->size();
            continue;
        }
        const auto& bytes = std::get<0>(segment);
        std::vector<std::uint8_t> old(bytes.size());
        if (bytes.size() > size - position) {
            return false;
        }
        read_at(file, old, position);
        if (old != bytes) {
            return false;
        }
        position += bytes.size();
    }
    return position == size;
}

std::uint64_t copied_bytes(const Rewrite& rewrite) {
    std::uint64_t sum = 0;
    for (const Segment& segment : rewrite.segments) {
        const auto* const range = std::get_if<Range>(&segment);
        sum += range ? range->size() : 0;
    }
    return sum;
}

/** Whether nothing is left of the file. */
bool leaves_nothing(const Rewrite& rewrite) {
    const auto is_empty = [](const Segment& segment) {
        const auto* const range = std::get_if<Range>(&segment);
        return range ? range->size() == 0 : std::get<0>(segment).empty();
    };
    return !rewrite.finish && std::all_of(rewrite.segments.begin(), rewrite.segments.end(), is_empty);
}

/** What is kept for a save, unless that fails. */
class KeptForSave {
public:
    KeptForSave(KeptBytes* kept, Replacement& file, const Rewrite& rewrite) : kept_(kept) {
        if (kept_) {
            way_back_ = keep_way_back(file.original(), file.size(), rewrite, *kept_);
            way_back_->existed = file.exists();
        }
    }
    ~KeptForSave() {
        if (way_back_) {
            kept_->shrink_to(way_back_->begin);
        }
    }
    KeptForSave(const KeptForSave&) = delete;
    KeptForSave& operator=(const KeptForSave&) = delete;

    /** The save has succeeded. */
    [[nodiscard]] std::optional<WayBack> release() { return std::exchange(way_back_, std::nullopt); }

private:
    KeptBytes* kept_;
    std::optional<WayBack> way_back_;
};

/** Puts the new file of FILE in the place of the old one, or only removes that. */
void take_place(Replacement& file, bool removes, SaveOutcome& outcome) {
    outcome.warning = removes ? file.remove() : file.take_place();
    outcome.before = file.original_mark();
    outcome.after = file.replacement_mark();
}

/** Fills the new file of FILE as REWRITE says, when VERIFY finds in it what it should. */
template <typename Verify>
void make_new(Replacement& file, const TaggedFile& old, const MediaKind& kind, const Rewrite& rewrite,
              Progress& progress, Verify verify) {
    const OpenTags before{file.original(), old};
    progress.set_total(copied_bytes(rewrite) + verified_bytes(before));
    file.fill(rewrite, progress);
    const std::unique_ptr<TaggedFile> made =
        open_tagged_file(file.replacement(), file.replacement_size(), kind);
    verify(before, OpenTags{file.replacement(), *made}, progress);
    progress.check();
}

/** Replaces the file by the one that MAKE says, when VERIFY finds in it what it should. */
template <typename Make, typename Verify>
void replace(const std::string& path, const MediaKind& kind, const SaveOptions& options, SaveOutcome& outcome,
             Make make, Verify verify) {
    Progress progress(options.progress);
    progress.check();
    Replacement file(tag_path(path, kind), options.break_links, kind.container == Container::side_file);
    const std::unique_ptr<TaggedFile> old = open_tagged_file(file.original(), file.size(), kind);
    const Rewrite rewrite = make(*old);
    if (changes_nothing(file.original(), file.size(), rewrite)) {
        outcome.result = SaveResult::unchanged;
        return;
    }
    if (!options.dry_run) {
        KeptForSave kept(options.kept, file, rewrite);
        const bool removes = kind.container == Container::side_file && leaves_nothing(rewrite);
        if (!removes) { // else it held a tag, and nothing else
            make_new(file, *old, kind, rewrite, progress, verify);
        }
        take_place(file, removes, outcome);
        outcome.way_back = kept.release();
    }
    outcome.result = SaveResult::saved;
}

/** Puts the file together of the parts that WAY_BACK says, and reads it back. */
void make_old_again(Replacement& file, const WayBack& way_back, const KeptBytes& kept, Progress& progress) {
    FIOFUNCSTRUCT kept_file{kept.descriptor()};
    const std::vector<FileRange> parts = parts_of_old_file(way_back, &kept_file, file.original());
    const std::uint64_t size = size_of(parts);
    progress.set_total(2 * size);
    file.fill(parts, progress);
    verify_bytes(parts, {{file.replacement(), {0, file.replacement_size()}}}, progress);
    progress.check();
}

bool read_by_others(const MediaKind& kind) {
    return kind.container != Container::tagless && kind.container != Container::side_file;
}

} // namespace

ReadOutcome read_tags(const std::string& path) {
    return contained<ReadOutcome>([&](ReadOutcome& outcome) {
        const MediaKind kind = known_kind(path);
        outcome.kind = kind;
        read_into(path, kind, outcome);
    });
}

SaveOutcome save_tags(const std::string& path, const TagEdits& edits, const SaveOptions& options) {
    return contained<SaveOutcome>([&](SaveOutcome& outcome) {
        const MediaKind kind = writable_kind(path);
        const TagEdits valid = valid_edits(edits, kind.media);
        TagEdits completed;
        replace(
            path, kind, options, outcome,
            [&](const TaggedFile& old) {
                completed = old.completed(valid);
                return old.with(completed);
            },
            [&](const OpenTags& old, const OpenTags& made, Progress& progress) {
                verify_edits(old, made, completed, progress);
            });
        outcome.others_read_it = read_by_others(kind);
    });
}

SaveOutcome remove_tags(const std::string& path, const SaveOptions& options) {
    return contained<SaveOutcome>([&](SaveOutcome& outcome) {
        replace(
            path, writable_kind(path), options, outcome,
            [](const TaggedFile& old) { return old.without_tags(); }, verify_removal);
    });
}

std::optional<FileMark> file_mark(const std::string& path) {
    const std::optional<MediaKind> kind = media_kind(path);
    struct stat status {};
    if (::fstatat(AT_FDCWD, (kind ? tag_path(path, *kind) : path).c_str(), &status, 0) != 0) {
        return std::nullopt;
    }
    return mark_of(status);
}

SaveOutcome put_back(const std::string& path, const WayBack& way_back, const std::optional<FileMark>& made,
                     const KeptBytes& kept, const SaveOptions& options) {
    return contained<SaveOutcome>([&](SaveOutcome& outcome) {
        const MediaKind kind = writable_kind(path);
        Progress progress(options.progress);
        progress.check();
        Replacement file(tag_path(path, kind), options.break_links, kind.container == Container::side_file);
        if (file.original_mark() != made) {
            throw Refusal({ReasonCode::changed_meanwhile, 0, {}});
        }
        if (!options.dry_run) {
            if (way_back.existed) {
                make_old_again(file, way_back, kept, progress);
            }
            take_place(file, !way_back.existed, outcome);
        }
        outcome.result = SaveResult::saved;
        outcome.others_read_it = read_by_others(kind);
    });
}

} // namespace velmora::portable
