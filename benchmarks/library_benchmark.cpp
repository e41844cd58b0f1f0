/** What it takes to read the tags of a folder's files into the library table, beside a loop over TagLib's
   FileRef on all cores. Both take turns; prints the median of each in milliseconds by the clock. */

#include "taglib_peer_loop.h"

#include "library/library_window.h"
#include "platform/file_path.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace {

using namespace velmora;

constexpr int rounds = 9;

double milliseconds(const QElapsedTimer& timer) {
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double readIntoTable(const std::vector<std::string>& paths) {
    LibraryWindow window;
    window.present();
    QCoreApplication::processEvents();
    LibraryModel& model = window.model();
    QElapsedTimer timer;
    timer.start();
    for (const std::string& path : paths) {
        model.addFile(pathFromBytes(QByteArray::fromStdString(path)), 0);
    }
    while (model.unread() > 0 || model.rowCount() < static_cast<int>(paths.size())) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    const double took = milliseconds(timer);
    for (int file = 0; file < model.rows().end(); ++file) {
        if (model.rows().at(file).state != ReadState::read ||
            model.rows().text(file, LibraryColumn::title).isEmpty()) {
            std::fputs("the table did not read a file\n", stderr);
            std::exit(2);
        }
    }
    return took;
}

double readWithTagLib(const std::vector<std::string>& paths) {
    QElapsedTimer timer;
    timer.start();
    if (lengthOfTags(paths) == 0) {
        std::fputs("TagLib read nothing\n", stderr);
        std::exit(2);
    }
    return milliseconds(timer);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::directory_iterator(argv[1])) {
        paths.push_back(entry.path().string());
    }
    std::vector<double> table;
    std::vector<double> yardstick;
    for (int round = 0; round <= rounds; ++round) {
        const double one = readIntoTable(paths);
        const double other = readWithTagLib(paths);
        // The first round warms up.
        if (round > 0) {
            table.push_back(one);
            yardstick.push_back(other);
        }
    }
    std::printf("table %.2f ms, yardstick %.2f ms\n", median(table), median(yardstick));
    return 0;
}
