#include "platform/log.h"
#include "platform/standard_streams.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <initializer_list>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velmora {
namespace {

/** The number of the first file opened in a process that was started without CLOSED. */
int firstDescriptorWithout(std::initializer_list<int> closed) {
    const pid_t child = ::fork();
    if (child == 0) {
        for (const int descriptor : closed) {
            ::close(descriptor);
        }
        ensureStandardStreams();
        ::_exit(::open("/dev/null", O_RDONLY));
    }
    int status = 0;
    EXPECT_EQ(child, ::waitpid(child, &status, 0));
    return WEXITSTATUS(status);
}

TEST(StandardStreams, NoFileGetsTheNumberOfAMissingOne) {
    EXPECT_GT(firstDescriptorWithout({2}), 2);
    EXPECT_GT(firstDescriptorWithout({0}), 2);
    EXPECT_GT(firstDescriptorWithout({1, 2}), 2);
    EXPECT_GT(firstDescriptorWithout({0, 1, 2}), 2);
}

TEST(StandardStreams, WriteToOneWhoseReaderIsGoneFailsAndTheProgramGoesOn) {
    int ends[2];
    ASSERT_EQ(0, ::pipe(ends));
    ::close(ends[0]);
    const pid_t child = ::fork();
    if (child == 0) {
        ::signal(SIGPIPE, SIG_DFL);
        ::dup2(ends[1], STDERR_FILENO);
        ensureStandardStreams();
        const bool failed = ::write(STDERR_FILENO, "x", 1) < 0 && errno == EPIPE;
        ::_exit(failed ? 0 : 1);
    }
    ::close(ends[1]);
    int status = 0;
    EXPECT_EQ(child, ::waitpid(child, &status, 0));
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(0, WEXITSTATUS(status));
}

TEST(StandardStreams, WriteBeyondTheFileSizeLimitFailsAndTheProgramGoesOn) {
    const int file = ::open("/tmp", O_TMPFILE | O_RDWR, 0600);
    ASSERT_GE(file, 0);
    const pid_t child = ::fork();
    if (child == 0) {
        ::signal(SIGXFSZ, SIG_DFL);
        const rlimit limit{1, 1};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        ensureStandardStreams();
        const bool failed = ::write(file, "x", 1) == 1 && ::write(file, "x", 1) < 0 && errno == EFBIG;
        ::_exit(failed ? 0 : 1);
    }
    ::close(file);
    int status = 0;
    EXPECT_EQ(child, ::waitpid(child, &status, 0));
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(0, WEXITSTATUS(status));
}

TEST(StandardStreams, OpenOnesStayWhatTheyAre) {
    int ends[2];
    ASSERT_EQ(0, ::pipe(ends));
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(ends[1], STDERR_FILENO);
        ensureStandardStreams();
        ::_exit(::write(STDERR_FILENO, "x", 1) == 1 ? 0 : 1);
    }
    ::close(ends[1]);
    char byte = 0;
    EXPECT_EQ(1, ::read(ends[0], &byte, 1));
    EXPECT_EQ('x', byte);
    ::close(ends[0]);
    ::waitpid(child, nullptr, 0);
}

/** A pipe that nobody reads, without room for a single byte. */
class FullPipe {
public:
    FullPipe() {
        EXPECT_EQ(0, ::pipe(ends_));
        ::fcntl(ends_[1], F_SETFL, O_NONBLOCK);
        for (const std::size_t size : {std::size_t(4096), std::size_t(1)}) {
            while (::write(ends_[1], std::string(size, 'x').data(), size) > 0) {
            }
        }
        ::fcntl(ends_[1], F_SETFL, 0);
    }
    ~FullPipe() {
        ::close(ends_[0]);
        ::close(ends_[1]);
    }
    FullPipe(const FullPipe&) = delete;
    FullPipe& operator=(const FullPipe&) = delete;

    [[nodiscard]] int writeEnd() const { return ends_[1]; }
    /** Takes out all that is in it. */
    [[nodiscard]] std::string drain() const {
        ::fcntl(ends_[0], F_SETFL, O_NONBLOCK);
        std::string all;
        char buffer[4096];
        for (ssize_t count = 0; (count = ::read(ends_[0], buffer, sizeof buffer)) > 0;) {
            all.append(buffer, static_cast<std::size_t>(count));
        }
        return all;
    }

private:
    int ends_[2] = {-1, -1};
};

/** The result of BODY in a process of its own whose standard error is PIPE; 99 when it takes ten seconds. */
template <typename Body>
int resultWithStandardError(const FullPipe& pipe, Body body) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(pipe.writeEnd(), STDERR_FILENO);
        ensureStandardStreams();
        ::signal(SIGALRM, [](int) { ::_exit(99); });
        ::alarm(10);
        ::_exit(body());
    }
    int status = 0;
    EXPECT_EQ(child, ::waitpid(child, &status, 0));
    return WEXITSTATUS(status);
}

TEST(StandardStreams, LogGoesOnWhenNobodyReads) {
    const FullPipe pipe;
    // A moment for each line would be a hundred seconds.
    EXPECT_EQ(0, resultWithStandardError(pipe, [] {
                  for (int line = 0; line < 1000; ++line) {
                      appLog(QStringLiteral("a line that nobody reads\n"));
                  }
                  return 0;
              }));
    EXPECT_EQ(std::string::npos, pipe.drain().find("nobody"));
}

TEST(StandardStreams, LineLongerThanAPipeDoesNotHoldUpTheLogEither) {
    const FullPipe pipe;
    (void)pipe.drain();
    EXPECT_EQ(0, resultWithStandardError(pipe, [] {
                  appLog(QString(1'000'000, u'x'));
                  return 0;
              }));
}

TEST(StandardStreams, ReaderThatIsOnlySlowMissesNothing) {
    const FullPipe pipe;
    const pid_t reader = ::fork();
    if (reader == 0) {
        std::string all;
        for (int look = 0; look < 500 && all.find("second") == std::string::npos; ++look) {
            ::usleep(20'000);
            all += pipe.drain();
        }
        all.erase(0, all.find_first_not_of('x'));
        ::_exit(all == "first\nsecond\n" ? 0 : 1);
    }
    EXPECT_EQ(0, resultWithStandardError(pipe, [] {
                  appLog(QStringLiteral("first"));
                  appLog(QStringLiteral("second"));
                  return 0;
              }));
    int status = 0;
    EXPECT_EQ(reader, ::waitpid(reader, &status, 0));
    EXPECT_EQ(0, WEXITSTATUS(status));
}

TEST(StandardStreams, ReaderThatComesBackGetsTheLinesFromThenOn) {
    const FullPipe pipe;
    EXPECT_EQ(0, resultWithStandardError(pipe, [&pipe] {
                  appLog(QStringLiteral("lost"));
                  (void)pipe.drain();
                  appLog(QStringLiteral("read"));
                  return pipe.drain() == "read\n" ? 0 : 1;
              }));
}

TEST(StandardStreams, OtherProgramsEndOfThePipeStaysAsItIs) {
    const FullPipe pipe;
    EXPECT_EQ(0, resultWithStandardError(pipe, [] { return 0; }));
    EXPECT_EQ(0, ::fcntl(pipe.writeEnd(), F_GETFL) & O_NONBLOCK);
}

} // namespace
} // namespace velmora
