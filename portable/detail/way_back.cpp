#include "way_back.h"

#include "file_transfer.h"
#include "splices.h"

#include "portable/reason.h"

#include <algorithm>
#include <cerrno>

namespace velmora::portable {

namespace {

/** A part of the old file: bytes that are kept, or bytes of the new file. The list of them is kept as it lies
   in memory: nobody but this process reads it. */
struct OldPart {
    std::uint64_t is_kept = 0;
    Range range;
};

/** Bytes of the old file that are the same in the new one, there from POSITION on. */
struct Copy {
    Range old;
    std::uint64_t position = 0;
};

/** Puts bytes of a file behind those that are kept, in large pieces, and lets go of them unless it is
   finished. */
class Keeper {
public:
    Keeper(FIOFUNCSTRUCT* file, KeptBytes& kept) : file_(file), kept_(kept), begin_(kept.size()) {}
    ~Keeper() {
        if (!done_) {
            kept_.shrink_to(begin_);
        }
    }
    Keeper(const Keeper&) = delete;
    Keeper& operator=(const Keeper&) = delete;

    /** Where the bytes of RANGE are kept. */
    Range keep(Range range) {
        const Range kept{end(), end() + range.size()};
        while (range.size() > 0) {
            const auto piece =
                static_cast<std::size_t>(std::min<std::uint64_t>(range.size(), transfer_buffer));
            const std::size_t filled = buffer_.size();
            buffer_.resize(filled + piece);
            read_at(file_, std::span(buffer_).subspan(filled), range.begin);
            range.begin += piece;
            if (buffer_.size() >= transfer_buffer) {
                flush();
            }
        }
        return kept;
    }

    WayBack finish(const std::vector<OldPart>& parts) {
        flush();
        WayBack way_back;
        way_back.begin = begin_;
        way_back.parts = parts.size();
        append({reinterpret_cast<const std::uint8_t*>(parts.data()), parts.size() * sizeof(OldPart)});
        way_back.end = kept_.size();
        done_ = true;
        return way_back;
    }

private:
    [[nodiscard]] std::uint64_t end() const { return kept_.size() + buffer_.size(); }
    void flush() {
        append(buffer_);
        buffer_.clear();
    }
    void append(std::span<const std::uint8_t> bytes) {
        if (!bytes.empty() && !kept_.append(bytes)) {
            throw Refusal({ReasonCode::not_kept, errno, {}});
        }
    }

    FIOFUNCSTRUCT* file_;
    KeptBytes& kept_;
    std::uint64_t begin_;
    std::vector<std::uint8_t> buffer_;
    bool done_ = false;
};

/** The copy of OLD, which lies at POSITION, as far as it is UNPATCHED; these ranges are in the order of the
   file. */
void add_copies(std::vector<Copy>& copies, const Range& old, std::uint64_t position,
                const std::vector<Range>& unpatched) {
    auto part = std::partition_point(unpatched.begin(), unpatched.end(),
                                     [&](const Range& range) { return range.end <= old.begin; });
    for (; part != unpatched.end() && part->begin < old.end; ++part) {
        const Range same{std::max(part->begin, old.begin), std::min(part->end, old.end)};
        if (same.size() > 0) {
            copies.push_back({same, position + (same.begin - old.begin)});
        }
    }
}

/** What of the old file, SIZE bytes long, is the same in the file made by REWRITE, in the order of the old
   one. */
std::vector<Copy> copies_of(const Rewrite& rewrite, std::uint64_t size) {
    const std::vector<Range> unpatched = ranges_without(rewrite.patched, size);
    std::vector<Copy> copies;
    std::uint64_t position = 0;
    for (const Segment& segment : rewrite.segments) {
        if (const auto* const range = std::get_if<Range>(&segment)) {
            add_copies(copies, *range, position, unpatched);
            position += range->size();
        } else {
            position += std::get<0>(segment).size();
        }
    }
    std::sort(copies.begin(), copies.end(),
              [](const Copy& left, const Copy& right) { return left.old.begin < right.old.begin; });
    return copies;
}

} // namespace

WayBack keep_way_back(FIOFUNCSTRUCT* file, std::uint64_t size, const Rewrite& rewrite, KeptBytes& kept) {
    Keeper keeper(file, kept);
    std::vector<OldPart> parts;
    std::uint64_t position = 0;
    const auto keep_up_to = [&](std::uint64_t end) {
        if (position < end) {
            parts.push_back({1, keeper.keep({position, end})});
            position = end;
        }
    };
    for (const Copy& copy : copies_of(rewrite, size)) {
        if (copy.old.end > position) { // else it went over twice
            keep_up_to(copy.old.begin);
            const std::uint64_t in_new = copy.position + (position - copy.old.begin);
            parts.push_back({0, {in_new, in_new + (copy.old.end - position)}});
            position = copy.old.end;
        }
    }
    keep_up_to(size);
    return keeper.finish(parts);
}

std::vector<FileRange> parts_of_old_file(const WayBack& way_back, FIOFUNCSTRUCT* kept_file,
                                         FIOFUNCSTRUCT* made) {
    std::vector<OldPart> parts(way_back.parts);
    const std::span bytes(reinterpret_cast<std::uint8_t*>(parts.data()), parts.size() * sizeof(OldPart));
    read_at(kept_file, bytes, way_back.end - bytes.size());
    std::vector<FileRange> ranges;
    ranges.reserve(parts.size());
    for (const OldPart& part : parts) {
        ranges.push_back({part.is_kept != 0 ? kept_file : made, part.range});
    }
    return ranges;
}

} // namespace velmora::portable
