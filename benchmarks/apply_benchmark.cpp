/** apply_benchmark FOLDER GENRE: sets the genre of the folder's files as the library table's Apply does it,
   and prints how long that took, in milliseconds by the clock. */

#include "library/apply_run.h"
#include "platform/file_path.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <vector>

namespace {

using namespace velmora;

std::vector<ApplyItem> itemsOf(const char* folder, const char* genre) {
    std::vector<ApplyItem> items;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        ApplyItem item;
        item.file = static_cast<int>(items.size());
        item.path = pathFromBytes(QByteArray::fromStdString(entry.path().string()));
        item.edits.text(portable::Field::genre) = portable::Edit<std::string>::set(genre);
        items.push_back(std::move(item));
    }
    return items;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const std::vector<ApplyItem> items = itemsOf(argv[1], argv[2]);
    UndoStep undo;
    portable::KeptBytes kept;
    QElapsedTimer timer;
    timer.start();
    const std::vector<ApplyResult> results = applyItems(
        items, [](std::size_t, std::size_t) { return true; }, undo, kept);
    const double took = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    const bool allDone = std::all_of(results.begin(), results.end(),
                                     [](const ApplyResult& result) { return result.end == ApplyEnd::done; });
    if (!allDone || undo.size() != items.size()) {
        std::fputs("a file was not written\n", stderr);
        return 1;
    }
    std::printf("%.2f\n", took);
    return 0;
}
