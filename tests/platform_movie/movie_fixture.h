#pragma once

#include "media_files.h"

#include "platform/movie/movie.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace velmora::test {

/** A movie whose signals are counted. */
class MovieTest : public testing::Test {
protected:
    static constexpr int patience = 20000; ///< milliseconds for something that must happen
    /** Milliseconds in which something that must not happen would have. A bound, because nothing tells that
       the system's player has no more to say of a file: more than twice the 150 after which a file is looked
       at, and ten frames of a film. Under load it may be too short to see a fault; it never makes one up. */
    static constexpr int silence = 400;
    /** Milliseconds in which a frame that is under way when a movie is paused arrives; no signal follows. */
    static constexpr int lastFrame = 200;

    /** Waits for the file opened last to be decided. */
    void waitForDecision() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return opened.count() + failed.count() > 0; }, patience));
    }

    /** Opens PATH and waits until it is decided. */
    void open(const QString& path) {
        opened.clear();
        failed.clear();
        movie.open(path);
        waitForDecision();
    }

    /** Waits for a frame that satisfies CONDITION. */
    template <typename Condition>
    [[nodiscard]] bool waitForFrame(Condition condition) {
        return QTest::qWaitFor([&] { return condition(movie.currentFrame()); }, patience);
    }

    QString avi() { return files.film("film.avi", {"-c:v", "mpeg4", "-q:v", "2"}); }
    QString mp3() { return files.sound("sound.mp3", {"-c:a", "libmp3lame"}); }

    MediaFiles& files = MediaFiles::shared();
    Movie movie;
    QSignalSpy opened{&movie, &Movie::opened};
    QSignalSpy failed{&movie, &Movie::failed};
};

} // namespace velmora::test
