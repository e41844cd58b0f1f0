#include "platform/standard_streams.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <initializer_list>
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
    const pid_t child = ::fork();
    if (child == 0) {
        ::signal(SIGPIPE, SIG_DFL);
        ::dup2(ends[1], STDERR_FILENO);
        ::close(ends[0]);
        ensureStandardStreams();
        const bool failed = ::write(STDERR_FILENO, "x", 1) < 0 && errno == EPIPE;
        ::_exit(failed ? 0 : 1);
    }
    ::close(ends[0]);
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

} // namespace
} // namespace velmora
