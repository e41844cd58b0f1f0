#include "portable_input.h"

namespace velmora::fuzz {
namespace {

using portable::Field;
using portable::KeptBytes;
using portable::ReadOutcome;
using portable::SaveOutcome;
using portable::SaveResult;
using portable::TagEdits;

/** Whether the value of FIELD is what was asked for. A genre may be a number, which reads as its name; a
   cover that goes may have hidden a picture, which shows then. */
bool is_as_asked(Field field, const TagEdits& edits, const ReadOutcome& before, const ReadOutcome& after) {
    if (field == Field::year) {
        return after.values.year == edits.year.applied_to(before.values.year);
    }
    if (field == Field::cover) {
        return edits.cover.deletes() || after.values.cover == edits.cover.applied_to(before.values.cover);
    }
    const auto& edit = edits.text(field);
    return (field == Field::genre && edit.sets()) ||
           after.values.text(field) == edit.applied_to(before.values.text(field));
}

/** EDITS as a save takes them: what is empty is deleted. */
TagEdits without_empty(TagEdits edits) {
    for (auto& text : edits.texts) {
        text = text.sets() && text.value()->empty() ? portable::Edit<std::string>::remove() : text;
    }
    edits.year = edits.year.sets() && *edits.year.value() == 0 ? portable::Edit<int>::remove() : edits.year;
    edits.cover = edits.cover.sets() && edits.cover.value()->bytes.empty()
                      ? portable::Edit<portable::Cover>::remove()
                      : edits.cover;
    return edits;
}

bool has_damaged_texts(const TagEdits& edits) {
    for (const auto& text : edits.texts) {
        for (const char letter : text.value().value_or(std::string())) {
            if (static_cast<unsigned char>(letter) >= 0x80) {
                return true; // which becomes something else where it is no UTF-8
            }
        }
    }
    return false;
}

SaveOutcome save(const MediaFile& file, const TagEdits& edits, KeptBytes& kept) {
    const std::string bytes = file.bytes();
    const ReadOutcome before = portable::read_tags(file.path());
    portable::SaveOptions options;
    options.kept = &kept;
    SaveOutcome saved = portable::save_tags(file.path(), edits, options);
    require(!file.has_neighbours(), "nothing stays beside the file");
    require((saved.result == SaveResult::failed) == saved.failure.has_value(), "a failure has a reason");
    if (saved.result != SaveResult::saved) {
        require(file.bytes() == bytes, "a file that is not saved stays as it is");
        return saved;
    }
    const ReadOutcome after = portable::read_tags(file.path());
    require(!before.failure && !after.failure, "what is saved can be read");
    require_sound(after.values);
    const TagEdits asked = without_empty(edits);
    for (std::size_t i = 0; i < portable::field_count && !has_damaged_texts(edits); ++i) {
        require(is_as_asked(static_cast<Field>(i), asked, before, after),
                "a field is what was asked for, or as it was");
    }
    return saved;
}

/** Makes FILE the BYTES again that it had before the save of OUTCOME, where it was saved, and puts what it
   is now under `after`. */
void put_back(const MediaFile& file, SaveOutcome& outcome, const std::string& bytes, const KeptBytes& kept) {
    if (outcome.result == SaveResult::saved) {
        require(outcome.way_back.has_value(), "a saved file has a way back");
        outcome = portable::put_back(file.path(), *outcome.way_back, outcome.after, kept);
        require(outcome.result == SaveResult::saved, "the way back is open");
    }
    require(file.bytes() == bytes, "every byte comes back");
    require(!file.has_neighbours(), "nothing stays beside the file");
}

} // namespace
} // namespace velmora::fuzz

/** Input: a byte for the kind of file, what to set and to delete, a file. Twice: the second save meets
   what the first wrote. Then both are taken back. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora::fuzz;
    Input input(data, size);
    const std::string_view extension = take_extension(input);
    const TagEdits edits = take_edits(input, extension);
    const MediaFile file(input.rest(), extension);
    const DescriptorCheck descriptors;
    KeptBytes kept;
    const std::string original = file.bytes();
    SaveOutcome first = save(file, edits, kept);
    TagEdits other;
    other.text(Field::title) = velmora::portable::Edit<std::string>::set("Another title");
    const std::string made = file.bytes();
    SaveOutcome second = save(file, other, kept);
    put_back(file, second, made, kept);
    first.after = second.result == SaveResult::saved ? second.after : first.after;
    put_back(file, first, original, kept);
    return 0;
}
