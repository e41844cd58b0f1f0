/** What 100,000 files do to the library table's window while they are listed and read: the longest time in
   which its event loop did nothing else, and what a row takes of memory beside its texts. The files are those
   of a folder, by ten names each. */

#include "library/library_window.h"
#include "platform/file_path.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <malloc.h>
#include <string>
#include <vector>

namespace {

using namespace velmora;

/** So many files come from a search in one turn of the event loop. */
constexpr std::size_t filesAtOnce = 100;

/** The longest time between two beats of a timer that is always due: by the clock, and of this
   thread's processor time. */
class GapMeter {
public:
    GapMeter() {
        QObject::connect(&timer_, &QTimer::timeout, [this] { beat(); });
        timer_.start(1);
    }

    double longestByClock() const { return longestByClock_; }
    double longestOfProcessor() const { return longestOfProcessor_; }

private:
    static double milliseconds(clockid_t clock) {
        struct timespec now {};
        clock_gettime(clock, &now);
        return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
    }
    void beat() {
        const double clock = milliseconds(CLOCK_MONOTONIC);
        const double processor = milliseconds(CLOCK_THREAD_CPUTIME_ID);
        longestByClock_ = std::max(longestByClock_, clock - lastClock_);
        longestOfProcessor_ = std::max(longestOfProcessor_, processor - lastProcessor_);
        lastClock_ = clock;
        lastProcessor_ = processor;
    }

    QTimer timer_;
    double lastClock_ = milliseconds(CLOCK_MONOTONIC);
    double lastProcessor_ = milliseconds(CLOCK_THREAD_CPUTIME_ID);
    double longestByClock_ = 0;
    double longestOfProcessor_ = 0;
};

double bytesInUse() {
    malloc_trim(0);
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

/** The bytes of the texts that the table shows, of which the path stands for the name and the folder. */
double bytesOfTexts(const LibraryModel& model) {
    double bytes = 0;
    for (int file = 0; file < model.rows().end(); ++file) {
        bytes += static_cast<double>(model.rows().at(file).path().toUtf8().size());
        for (const LibraryColumn column : libraryColumns()) {
            if (column != LibraryColumn::name && column != LibraryColumn::folder) {
                bytes += static_cast<double>(model.rows().text(file, column).toUtf8().size());
            }
        }
    }
    return bytes;
}

/** Runs the event loop for MILLISECONDS. */
void runLoop(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(argv[1])) {
        if (entry.is_regular_file()) {
            paths.push_back(entry.path().string());
        }
    }
    LibraryWindow window;
    window.present();
    window.view().sortByColumn(LibraryColumn::title, false);
    runLoop(500);
    LibraryModel& model = window.model();
    const double before = bytesInUse();
    const GapMeter gaps;
    std::size_t next = 0;
    QTimer feed;
    QObject::connect(&feed, &QTimer::timeout, [&] {
        for (const std::size_t end = std::min(next + filesAtOnce, paths.size()); next < end; ++next) {
            model.addFile(pathFromBytes(QByteArray::fromStdString(paths[next])), 0);
        }
    });
    feed.start(0);
    while (next < paths.size() || model.unread() > 0 || model.rowCount() < static_cast<int>(paths.size())) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (next == paths.size()) {
            feed.stop();
        }
    }
    // The last order comes a moment later.
    runLoop(2000);
    const double clock = gaps.longestByClock();
    const double processor = gaps.longestOfProcessor();
    const auto rows = static_cast<double>(paths.size());
    std::printf("stall %.1f ms, by the clock %.1f ms, row %.0f bytes, texts %.0f bytes\n", processor, clock,
                (bytesInUse() - before) / rows, bytesOfTexts(model) / rows);
    return 0;
}
