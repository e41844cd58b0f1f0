#include "command_line.h"

#include "platform/file_path.h"
#include "platform/localisation.h"

#include <QUrl>

#include <algorithm>
#include <array>
#include <string_view>

namespace velmora {
namespace {

/** Options of the toolkit, which takes them with one dash or two. */
struct ToolkitOption {
    const char* name;
    bool hasValue;
};
constexpr std::array toolkitOptions = {
    ToolkitOption{"display", true},       ToolkitOption{"geometry", true},
    ToolkitOption{"platform", true},      ToolkitOption{"plugin", true},
    ToolkitOption{"platformtheme", true}, ToolkitOption{"qwindowgeometry", true},
    ToolkitOption{"qwindowicon", true},   ToolkitOption{"qwindowtitle", true},
    ToolkitOption{"session", true},       ToolkitOption{"style", true},
    ToolkitOption{"stylesheet", true},    ToolkitOption{"title", true},
    ToolkitOption{"nograb", false},       ToolkitOption{"reverse", false},
};

const ToolkitOption* toolkitOption(const QByteArray& argument) {
    const QByteArray name = argument.mid(argument.startsWith("--") ? 2 : 1);
    const auto* const option =
        std::find_if(toolkitOptions.begin(), toolkitOptions.end(),
                     [&](const ToolkitOption& candidate) { return name == candidate.name; });
    return option == toolkitOptions.end() ? nullptr : option;
}

/** What no path can be made of, as a file of another machine, stays a name that nothing has. */
QString absolutePath(const QByteArray& argument, const QByteArray& folder) {
    if (argument.isEmpty() || argument.startsWith('/')) {
        return pathFromBytes(argument);
    }
    if (argument.startsWith("file:")) {
        if (const QString path = pathFromFileUrl(QUrl::fromEncoded(argument)); path.startsWith(u'/')) {
            return path;
        }
    }
    std::string_view name(argument.constData(), static_cast<std::size_t>(argument.size()));
    while (name.starts_with("./")) {
        name.remove_prefix(2);
    }
    return pathFromBytes(name == "." ? folder : joinedPath(folder, name));
}

} // namespace

CommandLine commandLine(const QList<QByteArray>& arguments, const QByteArray& folder) {
    CommandLine line;
    bool options = true;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QByteArray& argument = arguments[i];
        if (!options || !argument.startsWith('-') || argument == "-") {
            line.paths += absolutePath(argument, folder);
        } else if (argument == "--") {
            options = false;
        } else if (argument == "--help" || argument == "-h") {
            return {CommandLine::Task::printHelp, {}, {}};
        } else if (argument == "--version") {
            return {CommandLine::Task::printVersion, {}, {}};
        } else if (const ToolkitOption* const option = toolkitOption(argument)) {
            i += option->hasValue ? 1 : 0;
        } else {
            return {CommandLine::Task::refuse, {}, pathFromBytes(argument)};
        }
    }
    return line;
}

QString commandLineHelp() {
    return (QStringList{
                localised("Usage: velmora [FILE|FOLDER]..."),
                localised("Edits titles, artists, covers and more of films and music."),
                QString(),
                localised("  FILE       is listed; a single one is opened"),
                localised("  FOLDER     is searched for films and music"),
                localised("  --help     prints this and ends"),
                localised("  --version  prints the version and ends"),
            })
        .join(u'\n');
}

QString unknownOptionMessage(const QString& option) {
    return localised("velmora: unknown option %@; --help tells the others", option);
}

} // namespace velmora
