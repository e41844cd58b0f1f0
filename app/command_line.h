#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace velmora {

/** What the program was asked on its command line. */
struct CommandLine {
    enum class Task {
        run,
        printHelp,
        printVersion,
        refuse, ///< `unknownOption` is none of the program's
    };
    Task task = Task::run;
    /** The files and folders, absolute, in their order. */
    QStringList paths;
    QString unknownOption;
};

/** Takes ARGUMENTS apart, the program's name not among them: `file:` addresses and paths of any bytes, those
   that are not absolute as seen from FOLDER. What is meant for the toolkit (such as "-platform xcb") is left
   to it. Behind "--" everything is a path. */
[[nodiscard]] CommandLine commandLine(const QList<QByteArray>& arguments, const QByteArray& folder);

/** What --help prints. */
[[nodiscard]] QString commandLineHelp();

/** What is said on standard error of an OPTION that is none. */
[[nodiscard]] QString unknownOptionMessage(const QString& option);

} // namespace velmora
