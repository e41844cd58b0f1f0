/** What a search of a large library costs: 100,000 files of more than 100 KiB in 1,000 folders.

   Prints each cost in milliseconds, by the clock and of processor time (all threads, user and system), as a
   multiple of what it is measured against, and as ok or TOO SLOW. A listing works in two threads at once, so
   the clock is what it is judged by; processor time is there for a machine that has other things to do. The
   measures take turns; each cost is the median. Ends with 1 when anything is too slow. Start it with the
   offscreen platform on a machine without a display. */

#include "browser/folder_walk.h"
#include "browser/media_search.h"
#include "browser/media_table.h"
#include "platform/file_path.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include <fcntl.h>
#include <malloc.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace velmora;

constexpr int folderCount = 1000;
constexpr int filesPerFolder = 100;
constexpr int fileCount = folderCount * filesPerFolder;
constexpr off_t fileSize = 200'000;

/** Names in no order, as a user's are. */
std::string fileName(unsigned number) {
    const unsigned scattered = number * 2654435761U;
    return "a recording of some evening " + std::to_string(scattered) + ".mp3";
}

bool makeFile(const std::string& path) {
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
    if (file < 0) {
        return false;
    }
    const bool sized = ftruncate(file, fileSize) == 0;
    return close(file) == 0 && sized;
}

bool makeLibrary(const std::string& root) {
    unsigned number = 0;
    for (int folder = 0; folder < folderCount; ++folder) {
        const std::string path = root + "/folder " + std::to_string(folder);
        if (mkdir(path.c_str(), 0755) != 0) {
            return false;
        }
        for (int file = 0; file < filesPerFolder; ++file) {
            if (!makeFile(path + '/' + fileName(number++))) {
                return false;
            }
        }
    }
    return true;
}

double milliseconds(const QElapsedTimer& timer) {
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

struct Cost {
    double clock = 0;
    double processor = 0;
};

double milliseconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

/** The processor time that this process and its ended children took. */
double processorTime() {
    double sum = 0;
    for (const int who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        struct rusage usage {};
        getrusage(who, &usage);
        sum += milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
    }
    return sum;
}

class CostMeter {
public:
    CostMeter() { clock_.start(); }
    Cost cost() const { return {milliseconds(clock_), processorTime() - processorAtStart_}; }

private:
    double processorAtStart_ = processorTime();
    QElapsedTimer clock_;
};

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

Cost median(const std::vector<Cost>& costs) {
    std::vector<double> clocks;
    std::vector<double> processors;
    for (const Cost& cost : costs) {
        clocks.push_back(cost.clock);
        processors.push_back(cost.processor);
    }
    return {median(clocks), median(processors)};
}

Cost runFind(const std::string& root) {
    const std::string command = "find '" + root + "' -type f -size +100k > /dev/null";
    const CostMeter meter;
    if (std::system(command.c_str()) != 0) {
        std::fputs("find failed\n", stderr);
        std::exit(2);
    }
    return meter.cost();
}

class Counter : public FolderWalkListener {
public:
    bool searchRunning() const override { return true; }
    void enteringFolder(const QByteArray&) override {}
    void foundFile(const QByteArray&) override { ++files; }

    int files = 0;
};

Cost runWalk(const std::string& root) {
    Counter counter;
    const CostMeter meter;
    searchFolder(QByteArray::fromStdString(root), counter);
    const Cost cost = meter.cost();
    if (counter.files != fileCount) {
        std::fprintf(stderr, "the walk found %d files\n", counter.files);
        std::exit(2);
    }
    return cost;
}

class NoDocument : public MediaDocument {
public:
    QString displayName() const override { return {}; }
    bool readFromURL(const std::optional<QUrl>&, const QString&, Error*) override { return false; }
    MediaFile* mediaFile() const override { return nullptr; }
    bool saveMediaFile(Error*) override { return false; }
};

/** The longest time between two beats of a timer that is always due. */
class GapMeter {
public:
    GapMeter() {
        QObject::connect(&timer_, &QTimer::timeout, [this] { beat(); });
        sinceBeat_.start();
        timer_.start(1);
    }

    double longest() const { return longest_; }

private:
    void beat() {
        longest_ = std::max(longest_, milliseconds(sinceBeat_));
        sinceBeat_.restart();
    }

    QTimer timer_;
    QElapsedTimer sinceBeat_;
    double longest_ = 0;
};

struct Listing {
    Cost cost;
    double longestGap = 0;
    double bytesPerRow = 0;
};

/** Lists the whole library in a shown window. SORTCOLUMN is an index into the table's columns, -1 for no
   order. */
Listing runListing(const std::string& root, int sortColumn) {
    NoDocument document;
    QTableView view;
    view.resize(800, 600);
    view.show();
    MediaTable table(view, document, {});
    if (sortColumn >= 0) {
        table.tableViewDidClickTableColumn(sortColumn);
    }
    MediaSearch search;
    QObject::connect(&search, &MediaSearch::fileFound, &table, &MediaTable::addMediaFile);
    QCoreApplication::processEvents();

    malloc_trim(0);
    const struct mallinfo2 before = mallinfo2();
    const CostMeter meter;
    QEventLoop loop;
    Cost cost;
    QObject::connect(view.model(), &QAbstractItemModel::rowsInserted, &loop, [&] {
        if (view.model()->rowCount() == fileCount) {
            cost = meter.cost();
            // The gap that this belongs to counts too.
            QTimer::singleShot(20, &loop, &QEventLoop::quit);
        }
    });
    const GapMeter gaps;
    search.queueFolders({pathFromBytes(QByteArray::fromStdString(root))});
    loop.exec();
    const struct mallinfo2 after = mallinfo2();
    const auto inUse = [](const struct mallinfo2& info) {
        return static_cast<double>(info.uordblks + info.hblkhd);
    };
    return {cost, gaps.longest(), (inUse(after) - inUse(before)) / fileCount};
}

/** The median cost of LISTINGS, and the worst of everything else. */
Listing summary(const std::vector<Listing>& listings) {
    Listing result;
    std::vector<Cost> costs;
    for (const Listing& listing : listings) {
        costs.push_back(listing.cost);
        result.longestGap = std::max(result.longestGap, listing.longestGap);
        result.bytesPerRow = std::max(result.bytesPerRow, listing.bytesPerRow);
    }
    result.cost = median(costs);
    return result;
}

bool report(const char* what, double value, const char* unit, double limit) {
    const bool ok = value <= limit;
    std::printf("%-46s %10.2f %-12s limit %8.2f  %s\n", what, value, unit, limit, ok ? "ok" : "TOO SLOW");
    return ok;
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    const std::string root = folder.path().toStdString();
    if (!folder.isValid() || !makeLibrary(root)) {
        std::fputs("can't make the library\n", stderr);
        return 2;
    }
    // A search logs each folder and its end.
    if (!std::freopen("/dev/null", "w", stderr)) {
        return 2;
    }

    constexpr int rounds = 5;
    std::vector<Cost> finds;
    std::vector<Cost> walks;
    std::vector<Listing> unsortedListings;
    std::vector<Listing> sortedListings;
    for (int round = 0; round < rounds; ++round) {
        finds.push_back(runFind(root));
        walks.push_back(runWalk(root));
        unsortedListings.push_back(runListing(root, -1));
        sortedListings.push_back(runListing(root, MediaTableModel::columnIndex(u"filename")));
    }
    const Cost find = median(finds);
    const Cost walk = median(walks);
    const Listing unsorted = summary(unsortedListings);
    const Listing sorted = summary(sortedListings);

    const auto print = [&](const char* how, double Cost::*cost) {
        std::printf("%s: find %.1f ms, walk %.1f ms, listing %.1f ms, listing by name %.1f ms\n", how,
                    find.*cost, walk.*cost, unsorted.cost.*cost, sorted.cost.*cost);
    };
    print("clock", &Cost::clock);
    print("processor", &Cost::processor);
    bool ok = report("walk", walk.clock / find.clock, "x find", 1.5);
    ok &= report("listing in the order of arrival", unsorted.cost.clock / walk.clock, "x walk", 3);
    ok &= report("listing in the order of names", sorted.cost.clock / walk.clock, "x walk", 5);
    ok &= report("longest gap in the event loop", unsorted.longestGap, "ms", 50);
    ok &= report("longest gap in the event loop, by name", sorted.longestGap, "ms", 50);
    ok &= report("memory of a row", std::max(unsorted.bytesPerRow, sorted.bytesPerRow), "bytes", 1024);
    return ok ? 0 : 1;
}
