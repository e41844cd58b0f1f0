#include "change_files.h"
#include "command_line.h"
#include "file_walk.h"
#include "interruption.h"
#include "printing.h"
#include "show_files.h"

#include "portable/picture_header.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>
#include <memory>

namespace velmora::tag_tool {

namespace {

constexpr int a_file_failed = 1;
constexpr int wrong_use = 2;
constexpr int ended_by_signal = 128; ///< and the signal's number

/** Reads the picture that is to be the cover. False, with a line on standard error, where it is none. */
bool read_cover(Request& request) {
    constexpr std::size_t largest_cover = 64UL * 1024 * 1024;
    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    const std::unique_ptr<std::FILE, Close> file(std::fopen(request.cover_path.c_str(), "rbe"));
    portable::Cover cover;
    cover.bytes.resize(file ? largest_cover : 0);
    errno = file ? 0 : errno;
    cover.bytes.resize(file ? std::fread(cover.bytes.data(), 1, cover.bytes.size(), file.get()) : 0);
    const auto header = portable::picture_header(cover.bytes);
    if (!header || cover.bytes.size() == largest_cover) {
        print_failure(request.cover_path,
                      errno != 0 ? std::strerror(errno) : "not a picture that can be a cover");
        return false;
    }
    cover.mime = header->mime;
    request.edits.cover = portable::Edit<portable::Cover>::set(std::move(cover));
    return true;
}

int end(const Ending& ending) {
    print(ending.output);
    std::fputs(ending.error.c_str(), stderr);
    return finish_printing() ? ending.status : a_file_failed;
}

int run(std::vector<std::string> arguments) {
    auto parsed = parse_command_line(std::move(arguments));
    if (const auto* const ending = std::get_if<Ending>(&parsed)) {
        return end(*ending);
    }
    auto& request = std::get<Request>(parsed);
    note_interruptions();
    if (!request.cover_path.empty() && !read_cover(request)) {
        return wrong_use;
    }
    const std::vector<FoundFile> files = find_files(request.paths, request.recursive);
    bool all_well =
        request.command == Request::Command::show ? show_files(request, files) : change_files(request, files);
    all_well = finish_printing() && all_well;
    return interruption() != 0 ? ended_by_signal + interruption() : all_well ? 0 : a_file_failed;
}

} // namespace
} // namespace velmora::tag_tool

int main(int argc, char** argv) {
    try {
        return velmora::tag_tool::run(std::vector<std::string>(argv + 1, argv + argc));
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "velmora-tag: %s\n", exception.what());
        return velmora::tag_tool::a_file_failed;
    }
}
