#include "change_files.h"

#include "interruption.h"
#include "printing.h"
#include "progress_bar.h"

#include "portable/portable_tags.h"

namespace velmora::tag_tool {

namespace {

using portable::Field;
using portable::Media;
using portable::MediaKind;
using portable::SaveOutcome;

/** Deletes every field that files of that media have. */
portable::TagEdits removal(Media media) {
    portable::TagEdits edits;
    const bool film = media == Media::video;
    for (const Field field : {Field::title, Field::artist, film ? Field::director : Field::album,
                              Field::synopsis, Field::genre}) {
        edits.text(field) = portable::Edit<std::string>::remove();
    }
    if (film) {
        edits.text(Field::rating) = portable::Edit<std::string>::remove();
    }
    edits.year = portable::Edit<int>::remove();
    edits.cover = portable::Edit<portable::Cover>::remove();
    return edits;
}

/** Why REQUEST names the field of artist and cast by the wrong one of its names; empty where it does not. */
std::string wrong_name(const Request& request, const std::optional<MediaKind>& kind) {
    const bool film = kind && kind->media == Media::video;
    const bool wrong = kind && (film ? request.names_artist : request.names_cast);
    return wrong ? portable::sentence({portable::ReasonCode::foreign_field, 0, film ? "artist" : "cast"})
                 : std::string();
}

SaveOutcome change(const Request& request, const std::string& path, const portable::SaveOptions& options) {
    if (request.command == Request::Command::set) {
        return save_tags(path, request.edits, options);
    }
    const std::optional<MediaKind> kind = portable::media_kind(path);
    return request.all ? remove_tags(path, options)
                       : save_tags(path, removal(kind ? kind->media : Media::audio), options);
}

/** Changes one file. Returns whether it went well. */
bool change_file(const Request& request, const FoundFile& file, const portable::SaveOptions& options,
                 ProgressBar& bar) {
    const auto fail = [&](const std::string& reason) {
        bar.hide();
        print_failure(file.path, reason);
        return false;
    };
    std::string failure = file.failure;
    if (failure.empty()) {
        failure = wrong_name(request, portable::media_kind(file.path));
    }
    if (!failure.empty()) {
        return fail(failure);
    }
    const SaveOutcome outcome = change(request, file.path, options);
    if (outcome.failure) {
        return fail(sentence(*outcome.failure));
    }
    if (outcome.warning) {
        bar.hide();
        print_failure(file.path, sentence(*outcome.warning));
    }
    if (request.dry_run && outcome.result == portable::SaveResult::saved) {
        bar.hide();
        print(in_one_line(file.path) + "\n");
    }
    return true;
}

} // namespace

bool change_files(const Request& request, const std::vector<FoundFile>& files) {
    ProgressBar bar(files.size());
    std::size_t done = 0;
    portable::SaveOptions options;
    options.break_links = request.break_links;
    options.dry_run = request.dry_run;
    options.progress = [&](std::uint64_t bytes, std::uint64_t total) {
        bar.show(done, bytes, total);
        return interruption() == 0;
    };
    bool all_well = true;
    for (const FoundFile& file : files) {
        if (interruption() != 0) {
            break;
        }
        bar.show(done);
        all_well = change_file(request, file, options, bar) && all_well;
        ++done;
    }
    return all_well;
}

} // namespace velmora::tag_tool
