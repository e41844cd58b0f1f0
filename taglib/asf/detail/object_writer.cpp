#include "object_writer.h"

#include "cursor_readers.h"
#include "packed_descriptors.h"

#include "taglib/asf/guids.h"
#include "taglib/trace.h"

#include <algorithm>
#include <unistd.h>

namespace velmora {

namespace {

/** What is gathered before it is written: more than a usual header has. */
constexpr std::uint64_t most_gathered = 64UL * 1024;

/** The strings of a content description, in the order of the file. */
struct Strings {
    explicit Strings(const _asf_content_description_t& cd)
        : bytes{cd.title, cd.author, cd.copyright, cd.description, cd.rating}, lengths{cd.title_length,
                                                                                       cd.author_length,
                                                                                       cd.copyright_length,
                                                                                       cd.description_length,
                                                                                       cd.rating_length} {}
    [[nodiscard]] std::size_t stored(std::size_t i) const { return bytes[i] ? lengths[i] : 0; }

    std::array<const std::uint8_t*, 5> bytes;
    std::array<std::uint16_t, 5> lengths;
};

} // namespace

/** Begins a step. False when it is not to be put: a write has failed. */
bool AsfObjectWriter::begin(Kind kind, const void* what, std::uint16_t name_length) {
    const bool has_room = step_count_ < steps_.size() && cursor_.bytes() < most_gathered;
    if (failed_ || (!has_room && !flush(kind == Kind::descriptor))) {
        if (kind != Kind::descriptor) {
            stuck_at_ = -1;
        } else if (stuck_at_ >= 0) {
            asf_log_content_descriptor_name(stuck_at_, what, name_length);
        }
        return false;
    }
    steps_[step_count_++] = {what, position(), cursor_.bytes(), cursor_.fields(), name_length, kind};
    return true;
}

void AsfObjectWriter::put_object_header(const _asf_object_t& object) {
    cursor_.put(object.guid.bytes, sizeof object.guid.bytes);
    cursor_.put_le64(object.size);
}

void AsfObjectWriter::put_object(const _asf_object_t& object) {
    if (begin(Kind::object, &object)) {
        put_object_header(object);
    }
}

void AsfObjectWriter::put_header(const _asf_header_object_t& header) {
    if (begin(Kind::header, &header)) {
        put_object_header(header);
        cursor_.put_le32(header.child_count);
        cursor_.put_le16(header.reserved);
    }
}

void AsfObjectWriter::put_content_description(const _asf_content_description_t& cd) {
    const Strings strings(cd);
    if (!begin(Kind::cd, &cd)) {
        return;
    }
    put_object_header(cd);
    for (const std::uint16_t length : strings.lengths) {
        cursor_.put_le16(length);
    }
    for (std::size_t i = 0; i < strings.bytes.size(); ++i) {
        cursor_.put(strings.bytes[i], strings.stored(i));
    }
}

void AsfObjectWriter::put_ext_content_description(const _asf_ext_content_description_t& ecd) {
    if (begin(Kind::ecd, &ecd)) {
        put_object_header(ecd);
        cursor_.put_le16(ecd.count);
    }
    put_descriptors(ecd);
}

void AsfObjectWriter::put_descriptors(const _asf_ext_content_description_t& ecd) {
    for (AsfPackedWalk walk(&ecd); walk.next();) {
        put_descriptor(walk.descriptor());
    }
    for (std::uint16_t i = 0; ecd.descriptors && i < ecd.count; ++i) {
        put_descriptor(*ecd.descriptors[i]);
    }
}

void AsfObjectWriter::put_descriptor(const _asf_content_descriptor_t& descriptor) {
    const std::size_t name = descriptor.name ? descriptor.name_length : 0;
    const std::size_t value = descriptor.value ? descriptor.value_length : 0;
    if (begin(Kind::descriptor, descriptor.name, descriptor.name_length)) {
        cursor_.put_le16(descriptor.name_length);
        cursor_.put(descriptor.name, name);
        cursor_.put_le16(descriptor.type);
        cursor_.put_le16(descriptor.value_length);
        cursor_.put(descriptor.value, value);
    }
}

void AsfObjectWriter::put_padding(const _asf_object_t& object) {
    const std::int64_t start = position();
    if (!begin(Kind::padding, &object)) {
        return;
    }
    put_object_header(object);
    const std::int64_t next = asf_position_behind(start, object.size);
    if (next >= 0) {
        cursor_.seek(static_cast<std::uint64_t>(next));
    } else {
        leads_nowhere_ = true;
        [[maybe_unused]] const bool never = flush(false);
    }
}

void AsfObjectWriter::put_block(const _asf_object_t& object) {
    if (begin(Kind::block, &object)) {
        cursor_.put(&object, object.size);
    }
}

bool AsfObjectWriter::flush(bool list_goes_on) {
    if (!failed_) {
        field_count_ = cursor_.fields();
        const bool whole = cursor_.commit();
        if (!whole && fields_follow(list_goes_on)) {
            cursor_.ask_why_short();
        }
        written_ += cursor_.bytes_written();
        failed_ = !whole || leads_nowhere_;
        trace(whole);
        step_count_ = 0;
    }
    return !failed_;
}

bool AsfObjectWriter::finish() {
    return flush(false);
}

bool AsfObjectWriter::settle() {
    return fio_lseek(file_, position(), SEEK_SET) == position();
}

/** Whether the last commit stopped in a field behind which others of the same object are tried, so that they
   tell why: every one but the last, unless it is the GUID, without which nothing is tried. */
bool AsfObjectWriter::fields_follow(bool list_goes_on) const {
    const std::uint64_t stopped_in = cursor_.fields_written();
    std::size_t i = 0;
    while (i + 1 < step_count_ && steps_[i + 1].first_field <= stopped_in) {
        ++i;
    }
    if (i == step_count_) {
        return false;
    }
    const Step& step = steps_[i];
    const bool is_last = i + 1 == step_count_;
    const std::uint64_t end = is_last ? field_count_ : steps_[i + 1].first_field;
    const bool descriptor_follows = is_last ? list_goes_on : steps_[i + 1].kind == Kind::descriptor;
    const bool is_in_list = step.kind == Kind::ecd || step.kind == Kind::descriptor;
    const bool is_guid = step.kind != Kind::descriptor && stopped_in == step.first_field;
    return !is_guid && (stopped_in + 1 < end || (is_in_list && descriptor_follows));
}

/** The lines of all steps since the last flush, WHOLE when every byte of them was written. */
void AsfObjectWriter::trace(bool whole) {
    const std::uint64_t written = cursor_.bytes_written();
    for (std::size_t i = 0; i < step_count_; ++i) {
        const Step& step = steps_[i];
        if (stuck_at_ >= 0) {
            if (step.kind != Kind::descriptor) {
                stuck_at_ = -1;
                return;
            }
            trace_step(step, stuck_at_);
            continue;
        }
        const bool is_last = i + 1 == step_count_;
        const bool stopped = !whole && (is_last || written < steps_[i + 1].first_byte);
        if (stopped && !trace_stopped(step, written - step.first_byte)) {
            return;
        }
        if (!stopped) {
            trace_step(step, step.position);
        }
    }
}

bool AsfObjectWriter::trace_stopped(const Step& step, std::uint64_t written) {
    if (step.kind == Kind::padding) {
        asf_log_object(step.position, *static_cast<const _asf_object_t*>(step.what));
    } else {
        trace_step(step, step.position);
    }
    // Of a list the other descriptors are traced where the file has stopped, unless not even its GUID is
    // there.
    if (step.kind == Kind::descriptor || (step.kind == Kind::ecd && written >= sizeof(GUID))) {
        stuck_at_ = step.position + static_cast<std::int64_t>(written);
    }
    return stuck_at_ >= 0;
}

void AsfObjectWriter::trace_step(const Step& step, std::int64_t position) {
    if (step.kind == Kind::descriptor) {
        asf_log_content_descriptor_name(position, step.what, step.name_length);
        return;
    }
    const auto& object = *static_cast<const _asf_object_t*>(step.what);
    switch (step.kind) {
    case Kind::cd:
        asf_log_content_description(position, static_cast<const _asf_content_description_t&>(object));
        break;
    case Kind::ecd:
        asf_log_ext_content_description(position, static_cast<const _asf_ext_content_description_t&>(object));
        break;
    default:
        break;
    }
    asf_log_object(position, object);
    if (step.kind == Kind::padding) {
        asf_log_padding_object(position, object);
    }
}

bool asf_put_header_object(AsfObjectWriter* writer, const _asf_header_object_t& header) {
    const TraceBatch batch;
    writer->put_header(header);
    for (std::uint32_t i = 0; i < header.child_count; ++i) {
        const _asf_object_t* const child = header.children[i];
        if (!child) {
            continue;
        }
        if (child->guid == ASF_ContentDescription) {
            writer->put_content_description(*static_cast<const _asf_content_description_t*>(child));
        } else if (child->guid == ASF_ExtendedContentDescription) {
            writer->put_ext_content_description(*static_cast<const _asf_ext_content_description_t*>(child));
        } else if (child->guid == ASF_PaddingObject) {
            writer->put_padding(*child);
        } else {
            writer->put_block(*child);
        }
    }
    return writer->finish();
}

} // namespace velmora
