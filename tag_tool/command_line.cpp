#include "command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <charconv>
#include <memory>
#include <sstream>
#include <utility>

namespace velmora::tag_tool {

namespace {

using portable::Edit;
using portable::Field;

constexpr int wrong_use = 2;

/** The texts of `set`, as they are given. */
struct TextOption {
    const char* name;
    const char* description;
    Field field;
};

constexpr std::array text_options = {
    TextOption{"--title", "The title", Field::title},
    TextOption{"--artist", "The artist of a song", Field::artist},
    TextOption{"--album", "The album of a song", Field::album},
    TextOption{"--cast", "The cast of a film", Field::artist},
    TextOption{"--director", "The director of a film", Field::director},
    TextOption{"--synopsis", "The synopsis of a film, or the comment on a song", Field::synopsis},
    TextOption{"--genre", "The genre", Field::genre},
    TextOption{"--rating", "The rating of a film", Field::rating},
};

/** What the parser fills in. */
struct Given {
    Request request;
    std::array<std::optional<std::string>, text_options.size()> texts;
    std::optional<std::string> year;
    bool no_cover = false;
};

/** Whether the word behind NAME is its value, whatever that looks like. */
bool takes_value(std::string_view name) {
    return name == "--year" || name == "--cover" ||
           std::any_of(text_options.begin(), text_options.end(),
                       [name](const TextOption& option) { return name == option.name; });
}

/** ARGUMENTS for the parser: "--name=value" becomes two words, so that a value may be empty, and names behind
   "--" can't be taken for options. */
std::vector<std::string> prepared(const std::vector<std::string>& arguments) {
    std::vector<std::string> words;
    bool options = true;
    bool value = false;
    for (const std::string& argument : arguments) {
        const std::size_t equals = argument.find('=');
        if (std::exchange(value, false)) {
            words.push_back(argument);
        } else if (!options) {
            words.push_back(argument.starts_with('-') ? "./" + argument : argument);
        } else if (argument == "--") {
            options = false;
        } else if (argument.starts_with("--") && equals != std::string::npos) {
            words.push_back(argument.substr(0, equals));
            words.push_back(argument.substr(equals + 1));
        } else {
            words.push_back(argument);
            value = takes_value(argument);
        }
    }
    return words;
}

constexpr std::string_view paths_name = "PATH";

/** Help in which the paths, which the parser does not count, are said to be needed. */
class HelpWithPaths : public CLI::Formatter {
public:
    std::string make_usage(const CLI::App* command, std::string name) const override {
        const std::string optional = "[" + std::string(paths_name) + "]";
        std::string usage = CLI::Formatter::make_usage(command, std::move(name));
        const std::size_t place = usage.find(optional);
        return place == std::string::npos
                   ? usage
                   : usage.replace(place, optional.size(), std::string(paths_name) + "...");
    }
};

/** The paths are what the parser leaves: it would take a name in brackets for a list. */
void add_paths(CLI::App& command, Given& given) {
    command.add_flag("-r,--recursive", given.request.recursive, "Take the files in folders, too");
    command.add_option(std::string(paths_name), "Files, or with --recursive folders")
        ->type_name("...")
        ->expected(0);
    command.formatter(std::make_shared<HelpWithPaths>());
    command.allow_extras();
}

/** Throws where there are none, and for an option that COMMAND does not have. */
void take_paths(const CLI::App& command, Request& request) {
    request.paths = command.remaining();
    for (const std::string& path : request.paths) {
        if (path.size() > 1 && path.starts_with('-')) {
            throw CLI::ExtrasError({path});
        }
    }
    if (request.paths.empty()) {
        throw CLI::RequiredError(std::string(paths_name));
    }
}

void add_change_options(CLI::App& command, Given& given) {
    command.add_flag("-n,--dry-run", given.request.dry_run,
                     "Change nothing, and print the files that would change");
    command.add_flag("--break-links", given.request.break_links,
                     "Change files with further hard links, which keep the old contents");
}

CLI::App* add_show(CLI::App& parser, Given& given) {
    CLI::App* const command = parser.add_subcommand("show", "Print what the tags of files say");
    command->add_flag("--json", given.request.json, "Print an array with an object for each file");
    add_paths(*command, given);
    return command;
}

CLI::App* add_set(CLI::App& parser, Given& given) {
    CLI::App* const command =
        parser.add_subcommand("set", "Write into the tags of files. An empty text deletes the field");
    for (std::size_t i = 0; i < text_options.size(); ++i) {
        command->add_option(text_options[i].name, given.texts[i], text_options[i].description)
            ->type_name("TEXT");
    }
    command->add_option("--year", given.year, "The year, in at most four digits")->type_name("N");
    CLI::Option* const cover =
        command->add_option("--cover", given.request.cover_path, "A picture that becomes the cover as it is")
            ->type_name("FILE");
    command->add_flag("--no-cover", given.no_cover, "Delete the cover")->excludes(cover);
    add_change_options(*command, given);
    add_paths(*command, given);
    return command;
}

CLI::App* add_remove(CLI::App& parser, Given& given) {
    CLI::App* const command = parser.add_subcommand("remove", "Delete the fields that `set` writes");
    command->add_flag("--all", given.request.all, "Delete every tag whole, with all that others put there");
    add_change_options(*command, given);
    add_paths(*command, given);
    return command;
}

Edit<std::string> edit_of(const std::string& text) {
    return text.empty() ? Edit<std::string>::remove() : Edit<std::string>::set(text);
}

/** Throws where TEXT is no year. */
Edit<int> year_edit(const std::string& text) {
    int year = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), year);
    if (!text.empty() &&
        (error != std::errc() || end != text.data() + text.size() || year < 0 || year > 9999)) {
        throw CLI::ValidationError("--year", "a number of at most four digits");
    }
    return year == 0 ? Edit<int>::remove() : Edit<int>::set(year);
}

void take_edits(const Given& given, Request& request) {
    for (std::size_t i = 0; i < text_options.size(); ++i) {
        if (given.texts[i]) {
            request.edits.text(text_options[i].field) = edit_of(*given.texts[i]);
            request.names_artist =
                request.names_artist || std::string_view(text_options[i].name) == "--artist";
            request.names_cast = request.names_cast || std::string_view(text_options[i].name) == "--cast";
        }
    }
    if (given.year) {
        request.edits.year = year_edit(*given.year);
    }
    if (given.no_cover) {
        request.edits.cover = Edit<portable::Cover>::remove();
    }
    if (request.edits.empty() && request.cover_path.empty()) {
        throw CLI::ValidationError("set", "nothing to set");
    }
}

Ending ending_of(const CLI::App& parser, const CLI::Error& error) {
    std::ostringstream output;
    std::ostringstream complaint;
    const int status = parser.exit(error, output, complaint);
    return {status == 0 ? 0 : wrong_use, output.str(), complaint.str()};
}

} // namespace

std::variant<Request, Ending> parse_command_line(std::vector<std::string> arguments) {
    Given given;
    CLI::App parser("Shows and writes the tags of films and songs that other programs read.", "velmora-tag");
    parser.set_version_flag("--version", "velmora-tag " VELMORA_VERSION);
    parser.require_subcommand(1);
    CLI::App* const show = add_show(parser, given);
    CLI::App* const set = add_set(parser, given);
    CLI::App* const remove = add_remove(parser, given);
    try {
        arguments = prepared(arguments);
        std::reverse(arguments.begin(), arguments.end()); // as the parser takes them
        parser.parse(std::move(arguments));
        given.request.command = show->parsed()     ? Request::Command::show
                                : remove->parsed() ? Request::Command::remove
                                                   : Request::Command::set;
        take_paths(*parser.get_subcommands().front(), given.request);
        if (set->parsed()) {
            take_edits(given, given.request);
        }
    } catch (const CLI::Error& error) {
        return ending_of(parser, error);
    }
    return std::move(given.request);
}

} // namespace velmora::tag_tool
