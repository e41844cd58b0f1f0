/** What 100,000 files do to the library table's window while they are listed and read: the longest time in
   which its event loop did nothing else, and what a row takes of memory beside its texts. The files are those
   of a folder, by ten names each. */

#include "library/library_window.h"
#include "platform/file_path.h"

#include <QApplication>
#include <QEventLoop>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <malloc.h>
#include <string>
#include <vector>

namespace {

using namespace velmora;

/** So many files come from a search in one turn of the event loop. */
constexpr std::size_t filesOfSearch = 100;
constexpr int frames = 500;

double milliseconds(clockid_t clock) {
    struct timespec now {};
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

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

/** In milliseconds, from scrolling until the table has been painted anew. */
struct FrameTimes {
    double median = 0;             ///< by the clock
    double longest = 0;            ///< by the clock
    double longestOfProcessor = 0; ///< of the main thread's processor time
};

template <typename Scroll>
FrameTimes frameTimes(Scroll scroll) {
    std::vector<double> times;
    FrameTimes result;
    for (int frame = 0; frame < frames; ++frame) {
        const double clock = milliseconds(CLOCK_MONOTONIC);
        const double processor = milliseconds(CLOCK_THREAD_CPUTIME_ID);
        scroll();
        // What was scrolled is painted by an event of its own.
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        times.push_back(milliseconds(CLOCK_MONOTONIC) - clock);
        result.longestOfProcessor =
            std::max(result.longestOfProcessor, milliseconds(CLOCK_THREAD_CPUTIME_ID) - processor);
    }
    std::sort(times.begin(), times.end());
    result.median = times[times.size() / 2];
    result.longest = times.back();
    return result;
}

/** Turns the wheel over TABLE by one notch towards the user. */
void turnWheel(QWidget& table) {
    const QPointF middle(QRectF(table.rect()).center());
    constexpr int notch = 120;
    QWheelEvent event(middle, table.mapToGlobal(middle), {}, QPoint(0, -notch), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&table, &event);
}

void print(const char* how, const FrameTimes& times) {
    std::printf(", %s %.1f ms, longest %.1f ms, processor %.1f ms", how, times.median, times.longest,
                times.longestOfProcessor);
}

/** Prints what a frame takes by pages, and by the wheel from the top again. */
void printFrameTimes(LibraryView& view) {
    QScrollBar& bar = *view.verticalScrollBar();
    print("page", frameTimes([&bar] { bar.triggerAction(QAbstractSlider::SliderPageStepAdd); }));
    const int reached = bar.value();
    bar.setValue(0);
    print("wheel", frameTimes([&view] { turnWheel(*view.viewport()); }));
    if (reached < frames || bar.value() < frames) {
        std::fputs("the table did not scroll\n", stderr);
        std::exit(2);
    }
    std::puts("");
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
    std::vector<QString> paths;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(argv[1])) {
        if (entry.is_regular_file()) {
            paths.push_back(pathFromBytes(QByteArray::fromStdString(entry.path().string())));
        }
    }
    // The table may also be opened when all files are in the list.
    const bool atOnce = argc > 2 && std::string(argv[2]) == "at-once";
    const std::size_t filesAtOnce = atOnce ? paths.size() : filesOfSearch;
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
            model.addFile(paths[next], 0);
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
    std::printf("stall %.1f ms, by the clock %.1f ms, row %.0f bytes, texts %.0f bytes", processor, clock,
                (bytesInUse() - before) / rows, bytesOfTexts(model) / rows);
    printFrameTimes(window.view());
    return 0;
}
