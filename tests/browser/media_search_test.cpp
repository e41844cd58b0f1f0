#include "browser/media_search.h"

#include "platform/file_path.h"
#include "support/bytes.h"
#include "support/qt_printing.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "support/waiting.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <gmock/gmock.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <iterator>
#include <memory>
#include <optional>
#include <sstream>
#include <thread>

#include <sys/stat.h>
#include <unistd.h>

namespace velmora {
namespace {

using test::waitUntil;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr long long foundSize = 102401;

/** Writes down what a search tells its window. */
class MediaSearchTest : public testing::Test {
protected:
    MediaSearchTest() {
        QObject::connect(search_.get(), &MediaSearch::progressAnimationChanged,
                         [this](bool animating) { note(animating ? "animate" : "stop animation"); });
        QObject::connect(search_.get(), &MediaSearch::stopEnabledChanged,
                         [this](bool enabled) { note(enabled ? "enable stop" : "disable stop"); });
        QObject::connect(search_.get(), &MediaSearch::scanStatusChanged,
                         [this](const QString& text) { note("status " + text.toStdString()); });
        QObject::connect(search_.get(), &MediaSearch::fileFound, [this](const QString& path) {
            files_ += path;
            note("file " + path.toStdString());
        });
    }

    void note(const std::string& event) {
        events_.push_back(event);
        if (onEvent_) {
            onEvent_(event);
        }
    }

    QString makeFolder(const std::string& name) {
        const std::string path = scratch_ / name;
        EXPECT_EQ(0, mkdir(path.c_str(), 0755)) << path;
        return QString::fromStdString(path);
    }
    QString makeFile(const std::string& name, long long size = foundSize) {
        test::write_sparse_file(scratch_ / name, size, "x", 0);
        return QString::fromStdString(scratch_ / name);
    }
    /** A folder of COUNT files that a search lists. */
    QString makeFullFolder(const std::string& name, int count) {
        const QString folder = makeFolder(name);
        for (int number = 0; number < count; ++number) {
            makeFile(name + "/" + std::to_string(number) + ".mp3");
        }
        return folder;
    }

    [[nodiscard]] int searchesDone() const {
        return static_cast<int>(std::count(events_.begin(), events_.end(), "status Search Done."));
    }
    [[nodiscard]] std::string lastStopEvent() const {
        const auto last = std::find_if(events_.rbegin(), events_.rend(),
                                       [](const std::string& event) { return event.ends_with(" stop"); });
        return last == events_.rend() ? "none" : *last;
    }
    [[nodiscard]] int searchesStarted() const {
        return static_cast<int>(std::count(events_.begin(), events_.end(), "animate"));
    }
    bool runLoopUntilDone(int searches = 1) {
        return waitUntil([this, searches] { return searchesDone() == searches; });
    }
    /** Lets the worker look for the last time while the main loop stands still; false when it never does. */
    bool waitForWorkersLastLook() {
        QElapsedTimer timer;
        timer.start();
        while (!search_->hasWorkerLooked() && timer.elapsed() < 20'000) {
            std::this_thread::yield();
        }
        return search_->hasWorkerLooked();
    }
    static std::ptrdiff_t threadsOfThisProcess() {
        return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
    }

    std::string logOf(const std::function<void()>& action) {
        test::StreamCapture capture(stderr);
        action();
        return capture.text();
    }

    test::ScratchFolder scratch_;
    /** Keeps the searches' logs out of the test's output. */
    test::StreamCapture quiet_{stderr};
    std::vector<std::string> events_;
    QStringList files_;
    std::function<void(const std::string&)> onEvent_;
    std::unique_ptr<MediaSearch> search_ = std::make_unique<MediaSearch>();
};

TEST_F(MediaSearchTest, IsIdleAtFirst) {
    EXPECT_FALSE(search_->isSearchRunning());
    EXPECT_EQ(nullptr, search_->mainThreadPort());
    EXPECT_EQ(QStringList(), search_->searchFolders());
}

TEST_F(MediaSearchTest, StartSetsTheFlagThenAnimatesThenEnablesStop) {
    onEvent_ = [this](const std::string&) {
        EXPECT_TRUE(search_->isSearchRunning());
        EXPECT_NE(nullptr, search_->mainThreadPort());
    };
    search_->startMediaSearch();
    onEvent_ = {};
    EXPECT_THAT(events_, ElementsAre("animate", "enable stop"));
}

TEST_F(MediaSearchTest, WorkerStartsAfterTheAnimation) {
    test::StreamCapture log(stderr);
    const std::ptrdiff_t before = threadsOfThisProcess();
    std::ptrdiff_t atAnimation = 0;
    onEvent_ = [&](const std::string& event) {
        if (event == "animate") {
            atAnimation = threadsOfThisProcess();
        }
    };
    search_->startMediaSearch();
    EXPECT_EQ(before, atAnimation);
    ASSERT_TRUE(runLoopUntilDone());
    EXPECT_THAT(log.text(), HasSubstr("search thread started up\n"));
}

TEST_F(MediaSearchTest, EmptyQueueStillMakesAWholeSearch) {
    search_->startMediaSearch();
    ASSERT_TRUE(runLoopUntilDone());
    EXPECT_THAT(events_, ElementsAre("animate", "enable stop", "stop animation", "disable stop",
                                     "status Search Done."));
}

TEST_F(MediaSearchTest, DoneClearsPortAndFlagBeforeItTellsTheWindow) {
    search_->startMediaSearch();
    onEvent_ = [this](const std::string&) {
        EXPECT_FALSE(search_->isSearchRunning());
        EXPECT_EQ(nullptr, search_->mainThreadPort());
    };
    ASSERT_TRUE(runLoopUntilDone());
}

TEST_F(MediaSearchTest, DonePrintsALineOnStandardOutput) {
    test::StreamCapture capture(stdout);
    search_->startMediaSearch();
    const bool done = runLoopUntilDone();
    const std::string text = capture.text();
    ASSERT_TRUE(done);
    EXPECT_EQ("***** GOT SEARCH DONE MESSAGE *****\n", text);
}

TEST_F(MediaSearchTest, DoneTellsTheWindowBeforeItPrintsTheLine) {
    test::StreamCapture capture(stdout);
    std::string printedAtStatus = "never";
    onEvent_ = [&](const std::string& event) {
        if (event == "status Search Done.") {
            printedAtStatus = capture.text();
        }
    };
    search_->startMediaSearch();
    ASSERT_TRUE(runLoopUntilDone());
    EXPECT_EQ("", printedAtStatus);
}

TEST_F(MediaSearchTest, FolderThatIsQueuedOnTheWordThatTheSearchIsDoneIsSearched) {
    const QString folder = makeFullFolder("music", 1);
    onEvent_ = [&](const std::string& event) {
        if (event == "status Search Done." && files_.isEmpty()) {
            search_->queueFolders({folder});
            // The finished worker still holds the queue.
            EXPECT_FALSE(search_->isSearchRunning());
        }
    };
    search_->startMediaSearch();
    ASSERT_TRUE(runLoopUntilDone(2));
    EXPECT_EQ(QStringList{folder + "/0.mp3"}, files_);
}

TEST_F(MediaSearchTest, TellsFoldersAndFilesInTheOrderOfTheWalk) {
    const QString folder = makeFolder("music");
    const QString file = makeFile("music/a.mp3");
    search_->queueFolders({folder});
    ASSERT_TRUE(runLoopUntilDone());
    EXPECT_THAT(events_, ElementsAre("animate", "enable stop", "status " + folder.toStdString(),
                                     "file " + file.toStdString(), "stop animation", "disable stop",
                                     "status Search Done."));
}

TEST_F(MediaSearchTest, LogsItsThreadAndEachFolder) {
    const std::string folder = makeFolder("music").toStdString();
    makeFolder("music/below");
    const std::string log = logOf([this, &folder] {
        search_->queueFolders({QString::fromStdString(folder)});
        runLoopUntilDone();
        search_.reset();
    });
    EXPECT_EQ("search thread started up\nsearch: entering " + folder + "\nsearch: entering " + folder +
                  "/below\nsearch thread exiting\n",
              log);
}

TEST_F(MediaSearchTest, FolderIsLoggedBeforeItsMessageArrives) {
    const std::string folder = makeFolder("music").toStdString();
    test::StreamCapture capture(stderr);
    std::string logAtStatus;
    onEvent_ = [&](const std::string& event) {
        if (event == "status " + folder) {
            logAtStatus = capture.text();
        }
    };
    search_->queueFolders({QString::fromStdString(folder)});
    runLoopUntilDone();
    EXPECT_THAT(logAtStatus, HasSubstr("search: entering " + folder + "\n"));
}

TEST_F(MediaSearchTest, QueuedFoldersAreSearchedInTheirOrder) {
    const QString b = makeFolder("b");
    const QString a = makeFolder("a");
    search_->queueFolders({b, a});
    ASSERT_TRUE(runLoopUntilDone());
    EXPECT_THAT(events_, ElementsAre("animate", "enable stop", "status " + b.toStdString(),
                                     "status " + a.toStdString(), "stop animation", "disable stop",
                                     "status Search Done."));
    EXPECT_EQ(QStringList(), search_->searchFolders());
}

TEST_F(MediaSearchTest, FolderThatIsQueuedTwiceIsListedTwice) {
    const QString folder = makeFullFolder("music", 1);
    search_->queueFolders({folder, folder});
    ASSERT_TRUE(runLoopUntilDone());
    EXPECT_EQ((QStringList{folder + "/0.mp3", folder + "/0.mp3"}), files_);
}

TEST_F(MediaSearchTest, NoFoldersStartNothing) {
    search_->queueFolders({});
    EXPECT_FALSE(search_->isSearchRunning());
    EXPECT_THAT(events_, IsEmpty());
}

TEST_F(MediaSearchTest, UnlistableFolderEndsLikeAnyOther) {
    search_->queueFolders({"/no/such/folder"});
    ASSERT_TRUE(runLoopUntilDone());
    EXPECT_EQ("status /no/such/folder", events_[2]);
    EXPECT_EQ(QStringList(), files_);
}

TEST_F(MediaSearchTest, StartWhileASearchRunsDoesNothing) {
    const std::string log = logOf([this] {
        search_->startMediaSearch();
        const MessagePort* const port = search_->mainThreadPort();
        search_->startMediaSearch();
        EXPECT_EQ(port, search_->mainThreadPort());
        EXPECT_TRUE(runLoopUntilDone());
        EXPECT_FALSE(search_->isSearchRunning()) << "a second search would begin when the first one is done";
        search_.reset(); // waits for all workers
    });
    EXPECT_EQ("search thread started up\nsearch thread exiting\n", log);
    EXPECT_EQ(1, searchesStarted());
    EXPECT_EQ(1, searchesDone());
}

TEST_F(MediaSearchTest, EachSearchHasAPortOfItsOwn) {
    search_->startMediaSearch();
    ASSERT_TRUE(runLoopUntilDone());
    search_->startMediaSearch();
    EXPECT_NE(nullptr, search_->mainThreadPort());
    ASSERT_TRUE(runLoopUntilDone(2));
    EXPECT_EQ(nullptr, search_->mainThreadPort());
}

TEST_F(MediaSearchTest, StopClearsTheFlagAndNothingElse) {
    makeFullFolder("music", 10);
    search_->queueFolders({QString::fromStdString(scratch_.path())});
    const std::vector<std::string> before = events_;
    search_->stopScan();
    EXPECT_FALSE(search_->isSearchRunning());
    EXPECT_NE(nullptr, search_->mainThreadPort());
    EXPECT_EQ(before, events_);
    ASSERT_TRUE(runLoopUntilDone());
    EXPECT_EQ("status Search Done.", events_.back());
}

TEST_F(MediaSearchTest, StopWhileIdleDoesNothing) {
    search_->stopScan();
    EXPECT_THAT(events_, IsEmpty());
    search_->startMediaSearch();
    EXPECT_TRUE(search_->isSearchRunning());
    ASSERT_TRUE(runLoopUntilDone());
}

/** A queue whose first folder never ends, so that a test decides when its search is over. */
class EndlessSearchTest : public MediaSearchTest {
protected:
    EndlessSearchTest() {
        // Two links in each folder make a tree of 2^40 folders.
        endless_ = makeFolder("endless");
        for (const char* link : {"endless/a", "endless/b"}) {
            EXPECT_EQ(0, symlink(".", (scratch_ / link).c_str()));
        }
        waiting_ = makeFullFolder("waiting", 1);
        added_ = makeFolder("added");
    }
    bool startEndless() {
        search_->queueFolders({endless_, waiting_});
        return waitUntil([this] { return events_.size() > 5; });
    }
    [[nodiscard]] std::vector<std::string> statusesAfterStart(int start) const {
        std::vector<std::string> statuses;
        int starts = 0;
        for (const std::string& event : events_) {
            starts += event == "animate" ? 1 : 0;
            if (starts == start && event.starts_with("status ")) {
                statuses.push_back(event.substr(7));
            }
        }
        return statuses;
    }

    QString endless_;
    QString waiting_;
    QString added_;
};

TEST_F(EndlessSearchTest, StoppedSearchLeavesTheOtherFoldersQueued) {
    ASSERT_TRUE(startEndless());
    search_->stopScan();
    ASSERT_TRUE(runLoopUntilDone());
    EXPECT_EQ(QStringList{waiting_}, search_->searchFolders());
}

TEST_F(EndlessSearchTest, FoldersOfAStoppedSearchComeBeforeNewOnes) {
    ASSERT_TRUE(startEndless());
    search_->stopScan();
    ASSERT_TRUE(runLoopUntilDone());
    search_->queueFolders({added_});
    ASSERT_TRUE(runLoopUntilDone(2));
    EXPECT_THAT(statusesAfterStart(2),
                ElementsAre(waiting_.toStdString(), added_.toStdString(), "Search Done."));
}

TEST_F(EndlessSearchTest, FolderThatIsQueuedWhileTheWorkerUnwindsIsSearchedAfterIt) {
    ASSERT_TRUE(startEndless());
    search_->stopScan();
    search_->queueFolders({added_});
    EXPECT_FALSE(search_->isSearchRunning());
    EXPECT_EQ(1, searchesStarted());
    ASSERT_TRUE(runLoopUntilDone(2));
    EXPECT_EQ(2, searchesStarted());
    EXPECT_THAT(statusesAfterStart(2),
                ElementsAre(waiting_.toStdString(), added_.toStdString(), "Search Done."));
}

TEST_F(EndlessSearchTest, StopTakesBackASearchThatWaitsForTheWorkerToUnwind) {
    ASSERT_TRUE(startEndless());
    search_->stopScan();
    search_->queueFolders({added_});
    EXPECT_EQ("enable stop", lastStopEvent()) << "there is something to stop";
    search_->stopScan();
    ASSERT_TRUE(runLoopUntilDone());
    EXPECT_FALSE(search_->isSearchRunning());
    EXPECT_EQ(1, searchesStarted());
    EXPECT_EQ("disable stop", lastStopEvent());
    EXPECT_EQ((QStringList{waiting_, added_}), search_->searchFolders());
}

TEST_F(EndlessSearchTest, FolderThatIsQueuedAfterASecondStopIsSearched) {
    ASSERT_TRUE(startEndless());
    search_->stopScan();
    search_->queueFolders({added_});
    search_->stopScan();
    search_->queueFolders({added_});
    ASSERT_TRUE(runLoopUntilDone(2));
    EXPECT_THAT(statusesAfterStart(2), ElementsAre(waiting_.toStdString(), added_.toStdString(),
                                                   added_.toStdString(), "Search Done."));
}

TEST_F(EndlessSearchTest, FolderThatIsQueuedDuringASearchIsTakenByItsWorker) {
    ASSERT_TRUE(startEndless());
    search_->queueFolders({added_});
    for (const char* link : {"endless/a", "endless/b"}) {
        EXPECT_EQ(0, unlink((scratch_ / link).c_str()));
    }
    ASSERT_TRUE(runLoopUntilDone());
    EXPECT_EQ(1, searchesStarted());
    EXPECT_THAT(events_, testing::Contains("status " + added_.toStdString()));
}

TEST_F(EndlessSearchTest, NewSearchBeginsOnlyAfterTheOldWorkersLastMessage) {
    ASSERT_TRUE(startEndless());
    search_->stopScan();
    search_->startMediaSearch();
    ASSERT_TRUE(runLoopUntilDone(2));
    const auto firstDone = std::find(events_.begin(), events_.end(), "status Search Done.");
    const auto secondStart =
        std::find(std::next(std::find(events_.begin(), events_.end(), "animate")), events_.end(), "animate");
    EXPECT_LT(firstDone, secondStart);
}

TEST_F(EndlessSearchTest, WorkersNeverOverlap) {
    const std::string log = logOf([this] {
        for (int round = 0; round < 20; ++round) {
            search_->queueFolders({endless_});
            search_->stopScan();
            search_->queueFolders({added_});
            waitUntil([this] { return search_->isSearchRunning(); });
        }
        search_.reset();
    });
    int running = 0;
    std::istringstream lines(log);
    for (std::string line; std::getline(lines, line);) {
        running += line == "search thread started up" ? 1 : 0;
        running -= line == "search thread exiting" ? 1 : 0;
        ASSERT_GE(running, 0);
        ASSERT_LE(running, 1);
    }
    EXPECT_EQ(0, running);
}

TEST_F(EndlessSearchTest, DestroyingTheSearchEndsTheWorkerWithoutTheMainLoop) {
    ASSERT_TRUE(startEndless());
    const std::string log = logOf([this] { search_.reset(); });
    EXPECT_THAT(log, HasSubstr("search thread exiting\n"));
}

TEST_F(MediaSearchTest, DestroyingTheSearchWhoseWorkerHoldsTheQueueEnds) {
    search_->startMediaSearch();
    ASSERT_TRUE(waitForWorkersLastLook());
    search_.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(0, searchesDone());
}

TEST_F(MediaSearchTest, QueueingWhileTheFinishedWorkerHoldsTheQueueComesBackAndSearches) {
    const QString folder = makeFullFolder("music", 1);
    search_->startMediaSearch();
    ASSERT_TRUE(waitForWorkersLastLook());
    // The worker has looked for the last time, and its message waits for the main loop.
    ASSERT_TRUE(search_->isSearchRunning());
    search_->queueFolders({folder});
    search_->queueFolders({folder});
    ASSERT_TRUE(runLoopUntilDone(2));
    EXPECT_EQ((QStringList{folder + "/0.mp3", folder + "/0.mp3"}), files_);
}

TEST_F(MediaSearchTest, FoldersThatHadToWaitKeepTheirPlaceInTheQueue) {
    const QString a = makeFolder("a");
    const QString b = makeFolder("b");
    search_->startMediaSearch();
    ASSERT_TRUE(waitForWorkersLastLook());
    search_->queueFolders({a});
    search_->queueFolders({b});
    EXPECT_EQ((QStringList{a, b}), search_->searchFolders());
    ASSERT_TRUE(runLoopUntilDone(2));
    const auto placeOfA = std::find(events_.begin(), events_.end(), "status " + a.toStdString());
    EXPECT_NE(events_.end(), std::find(placeOfA, events_.end(), "status " + b.toStdString()));
}

TEST_F(MediaSearchTest, StopAlsoHoldsForFoldersThatHadToWait) {
    const QString folder = makeFullFolder("music", 1);
    search_->startMediaSearch();
    ASSERT_TRUE(waitForWorkersLastLook());
    search_->queueFolders({folder});
    search_->stopScan();
    ASSERT_TRUE(runLoopUntilDone());
    EXPECT_FALSE(search_->isSearchRunning());
    EXPECT_EQ(QStringList{folder}, search_->searchFolders());
    EXPECT_EQ(QStringList(), files_);
}

TEST_F(MediaSearchTest, NoFolderIsEverLostWhenItIsQueuedAtTheEndOfASearch) {
    constexpr int rounds = 300;
    const QString folder = makeFullFolder("music", 1);
    for (int round = 0; round < rounds; ++round) {
        search_->queueFolders({folder});
        if (round % 3 == 0) {
            QCoreApplication::processEvents();
        }
    }
    EXPECT_TRUE(waitUntil([this] { return files_.size() == rounds && !search_->isSearchRunning(); }))
        << files_.size();
}

TEST_F(MediaSearchTest, UnknownMessageIsLoggedAndNothingElse) {
    EXPECT_EQ("Bad msg in main thread: 99\n", logOf([this] { search_->handlePortMessage({99, {"/a"}}); }));
    EXPECT_EQ("Bad msg in main thread: 103\n", logOf([this] { search_->handlePortMessage({103, {}}); }));
    EXPECT_EQ("Bad msg in main thread: -1\n", logOf([this] { search_->handlePortMessage({-1, {}}); }));
    EXPECT_THAT(events_, IsEmpty());
}

TEST_F(MediaSearchTest, MessagesAreDispatchedByTheirIds) {
    search_->handlePortMessage({100, {QByteArray("/folder\0", 8)}});
    search_->handlePortMessage({101, {QByteArray("/folder/a.mp3\0", 14)}});
    EXPECT_THAT(events_, ElementsAre("status /folder", "file /folder/a.mp3"));
}

TEST_F(MediaSearchTest, NoMessageIsHandledWhileAModalLoopRuns) {
    const QString folder = makeFullFolder("music", 3);
    std::optional<ModalLoop> question(std::in_place);
    search_->queueFolders({folder});
    ASSERT_TRUE(waitForWorkersLastLook());
    QCoreApplication::processEvents();
    EXPECT_THAT(events_, ElementsAre("animate", "enable stop"));
    question.reset();
    ASSERT_TRUE(runLoopUntilDone());
    EXPECT_EQ(3, files_.size());
}

TEST_F(MediaSearchTest, LogShowsAPathByteForByte) {
    const std::string folder = scratch_ / "f\xE4#?%41<b>";
    ASSERT_EQ(0, mkdir(folder.c_str(), 0755));
    const std::string log = logOf([&] {
        search_->queueFolders({pathFromBytes(QByteArray::fromStdString(folder))});
        runLoopUntilDone();
    });
    EXPECT_THAT(log, HasSubstr("search: entering " + folder + "\n"));
}

TEST_F(MediaSearchTest, PathsOfAnyBytesArriveByteForByte) {
    const std::string folder = scratch_ / "f\xE4\n#?%41<b>";
    ASSERT_EQ(0, mkdir(folder.c_str(), 0755));
    std::vector<std::string> expected;
    for (const char* name :
         {"#1?.mp3", "100%41.mp3", "<b>bold<i>.mp3", "two\nlines.mp3", "caf\xE9.mp3", "\xFF\x01.mp3"}) {
        expected.push_back(folder + "/" + name);
        test::write_sparse_file(expected.back(), foundSize, "x", 0);
    }
    search_->queueFolders({pathFromBytes(QByteArray::fromStdString(folder))});
    ASSERT_TRUE(runLoopUntilDone());
    std::vector<std::string> arrived;
    for (const QString& file : files_) {
        arrived.push_back(pathBytes(file).toStdString());
    }
    EXPECT_THAT(arrived, testing::UnorderedElementsAreArray(expected));
}

} // namespace
} // namespace velmora
