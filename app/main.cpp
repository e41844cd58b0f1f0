#include "MyDocument.h"
#include "VelmoraDocumentController.h"
#include "command_line.h"

#include "browser/VelmoraController.h"
#include "platform/image.h"
#include "platform/legible_style.h"
#include "platform/localisation.h"
#include "platform/settings.h"
#include "platform/standard_streams.h"

#include <QApplication>
#include <QIcon>
#include <QImageReader>
#include <QPixmap>

#include <cstdio>
#include <filesystem>

namespace {

using velmora::CommandLine;

/** Answers what needs no window, nor a system of windows. Gives the program's exit code. */
int answer(const CommandLine& line) {
    switch (line.task) {
    case CommandLine::Task::printHelp:
        return std::puts(qPrintable(velmora::commandLineHelp())) < 0 ? 1 : 0;
    case CommandLine::Task::printVersion:
        return std::puts("Velmora " VELMORA_VERSION) < 0 ? 1 : 0;
    default:
        std::fprintf(stderr, "%s\n", qPrintable(velmora::unknownOptionMessage(line.unknownOption)));
        return 2;
    }
}

/** The program's icon, read as what it is: a look for its format would load the library of
   every picture format. */
QIcon windowIcon() {
    QImageReader reader(QStringLiteral(":/velmora.png"), "png");
    reader.setAutoDetectImageFormat(false);
    return QIcon(QPixmap::fromImage(reader.read()));
}

} // namespace

int main(int argc, char** argv) {
    velmora::ensureStandardStreams();
    velmora::keepNoSettings();
    std::error_code noFolder;
    const std::string folder = std::filesystem::current_path(noFolder).string();
    const CommandLine line =
        velmora::commandLine(QList<QByteArray>(argv + 1, argv + argc), QByteArray::fromStdString(folder));
    if (line.task != CommandLine::Task::run) {
        const QCoreApplication application(argc, argv);
        velmora::installLocalisation();
        return answer(line);
    }
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Velmora"));
    QApplication::setWindowIcon(windowIcon());
    velmora::installLegibleStyle();
    velmora::installLocalisation();
    velmora::allowLargeImages();

    const velmora::VelmoraDocumentController documentController;
    velmora::ApplicationTermination termination;
    velmora::MyDocument document(termination);
    document.makeWindow();
    document.showWindow();
    document.controller()->openPaths(line.paths);
    return QApplication::exec();
}
