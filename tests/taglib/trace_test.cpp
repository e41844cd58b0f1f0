#include "support/bytes.h"
#include "support/stream_capture.h"
#include "taglib/detail/trace_line.h"
#include "taglib/trace.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <clocale>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace velmora {
namespace {

using test::hex;
using test::StreamCapture;

/** What a trace of these arguments writes. */
template <typename... Arguments>
std::string traced(const char* format, Arguments... arguments) {
    StreamCapture transcript;
    DebugInfo(format, arguments...);
    return transcript.text();
}

/** UTF-16LE bytes with their terminator. */
std::string utf16(const char* digits) {
    return hex(digits) + std::string(2, '\0');
}

void trace_by_list(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    DebugTraceV(format, arguments);
    va_end(arguments);
}

TEST(Trace, IsWrittenAsItIsWithNothingAdded) {
    EXPECT_EQ("id3_load_file_info: Couldn't open file\n", traced("id3_load_file_info: Couldn't open file\n"));
    EXPECT_EQ("no line end", traced("no line end"));
    EXPECT_EQ("", traced(""));
}

TEST(Trace, IsTheSameFromAllThreeFunctions) {
    StreamCapture transcript;
    DebugInfo("%s: %d\n", "info", 1);
    DebugError("%s: %d\n", "error", 2);
    trace_by_list("%s: %d\n", "list", 3);
    EXPECT_EQ("info: 1\nerror: 2\nlist: 3\n", transcript.text());
}

TEST(TraceMute, LosesWhatItsThreadSaysWhileItLives) {
    StreamCapture transcript;
    {
        const TraceMute mute;
        DebugInfo("%s\n", "lost");
        { const TraceMute another; }
        DebugError("lost, too\n");
        trace_by_list("%5d\n", 3);
        TraceLine().text("lost as well\n");
        const TraceBatch batch;
        DebugInfo("lost in a batch\n");
    }
    DebugInfo("kept\n");
    EXPECT_EQ("kept\n", transcript.text());
}

TEST(Trace, GoesToStandardErrorAlone) {
    StreamCapture out(stdout);
    StreamCapture error(stderr);
    DebugInfo("text\n");
    EXPECT_EQ("", out.text());
    EXPECT_EQ("text\n", error.text());
}

TEST(Trace, FormatsTheCLibrarysConversions) {
    EXPECT_EQ("-5 | 7 ff 0x1f |  ab| 00c% x",
              traced("%d | %u %x %#x |%4s| %03x%% %c", -5, 7u, 0xFFu, 0x1Fu, "ab", 0xCu, 'x'));
}

TEST(Trace, Of512CharactersLosesTheLast) {
    EXPECT_EQ(std::string(511, 'a'), traced("%s", std::string(511, 'a').c_str()));
    EXPECT_EQ(std::string(511, 'a'), traced("%s", (std::string(511, 'a') + "b").c_str()));
}

TEST(Trace, Of600CharactersIsCutTo511) {
    EXPECT_EQ("x: " + std::string(508, 'a'), traced("x: %s\n", std::string(600, 'a').c_str()));
    EXPECT_EQ(std::string(511, 'a'), traced(std::string(600, 'a').c_str()));
}

TEST(Trace, With64BitNumbersIsCutTo511CharactersToo) {
    EXPECT_EQ("5" + std::string(510, 'a'),
              traced("%I64x%s\n", std::int64_t{5}, std::string(600, 'a').c_str()));
    EXPECT_EQ("5" + std::string(510, 'b'),
              traced(("%I64x" + std::string(600, 'b')).c_str(), std::int64_t{5}));
    EXPECT_EQ(std::string(509, 'c') + "12", traced(("%s%I64d" + std::string("\n")).c_str(),
                                                   std::string(509, 'c').c_str(), std::int64_t{1234}));
}

TEST(Trace, LeavesErrnoAsItWas) {
    StreamCapture transcript;
    errno = 78;
    DebugError("%s\n", std::string(600, 'a').c_str());
    EXPECT_EQ(78, errno);
    DebugError("%I64d\n", std::int64_t{1});
    EXPECT_EQ(78, errno);
}

TEST(Trace, LeavesErrnoAsItWasWhenStandardErrorIsFull) {
    const int saved = ::dup(STDERR_FILENO);
    const int full = ::open("/dev/full", O_WRONLY);
    ::dup2(full, STDERR_FILENO);
    errno = 5;
    DebugError("text\n");
    const int error = errno;
    ::dup2(saved, STDERR_FILENO);
    std::clearerr(stderr);
    ::close(full);
    ::close(saved);
    EXPECT_EQ(5, error);
}

TEST(Trace, PrintsWhatPrecedesAConversionThatFails) {
    // No wide character has this number.
    EXPECT_EQ("before ", traced("before %lc after\n", wint_t{0x7FFFFFFF}));
    EXPECT_EQ("before 1 ", traced("before %I64d %lc after\n", std::int64_t{1}, wint_t{0x7FFFFFFF}));
}

TEST(Trace, Prints64BitNumbersWhole) {
    EXPECT_EQ("123456789abcdef0", traced("%I64x", std::int64_t{0x123456789ABCDEF0}));
    EXPECT_EQ("-9223372036854775808", traced("%I64d", INT64_MIN));
    EXPECT_EQ("18446744073709551615", traced("%I64u", UINT64_MAX));
    EXPECT_EQ("ffffffffffffffff", traced("%I64x", std::int64_t{-1}));
}

TEST(Trace, KeepsFlagsAndWidthOf64BitNumbers) {
    EXPECT_EQ("0x0000000000001f", traced("%#016I64x", std::int64_t{0x1F}));
    EXPECT_EQ("[-7   ]", traced("[%-5I64d]", std::int64_t{-7}));
    EXPECT_EQ("[   +7]", traced("[%+*I64d]", 5, std::int64_t{7}));
    EXPECT_EQ("[7    ]", traced("[%*I64d]", -5, std::int64_t{7}));
    EXPECT_EQ("[007]", traced("[%.*I64d]", 3, std::int64_t{7}));
    EXPECT_EQ("[7]", traced("[%.*I64d]", -3, std::int64_t{7}));
}

TEST(Trace, Takes64BitNumbersAmongOthers) {
    EXPECT_EQ("a 100000000 -2 x 200000000 b 3 100% 4\n",
              traced("%s %I64x %d %c %I64x %s %u 100%% %ld\n", "a", std::int64_t{0x100000000}, -2, 'x',
                     std::int64_t{0x200000000}, "b", 3u, 4L));
    EXPECT_EQ("asf_read_header_object: Size overrun reading header object 1e + 100000000 > 64\n",
              traced("asf_read_header_object: Size overrun reading header object %I64x + %I64x > %I64x\n",
                     std::int64_t{0x1E}, std::int64_t{0x100000000}, std::int64_t{0x64}));
}

TEST(Trace, TakesEveryLengthBesideA64BitNumber) {
    EXPECT_EQ("1 -2 -3 4 5 6 7 2.5 1.5 z",
              traced("%I64d %hd %hhd %ld %lld %zu %jd %.1f %.1Lf %c", std::int64_t{1}, -2, -3, 4L, 5LL,
                     std::size_t{6}, std::intmax_t{7}, 2.5, 1.5L, 'z'));
}

TEST(Trace, LeavesTheLettersAloneOutsideAConversion) {
    EXPECT_EQ("I64 S %I64 %S 5", traced("I64 S %%I64 %%S %d", 5));
}

TEST(Trace, PrintsUtf16AsUtf8) {
    // A, e with acute, the euro sign, a clef beyond the first plane.
    EXPECT_EQ("A\xC3\xA9\xE2\x82\xAC\xF0\x9D\x84\x9E\n",
              traced("%S\n", utf16("4100 E900 AC20 34D8 1EDD").data()));
}

TEST(Trace, PrintsUtf16TheSameInEveryLocale) {
    const std::string text = utf16("E900 4E2D");
    const std::string expected = "\xC3\xA9\xE2\xB5\x8E|";
    EXPECT_EQ(expected, traced("%S|", text.data()));
    ASSERT_NE(nullptr, std::setlocale(LC_ALL, "C.UTF-8"));
    EXPECT_EQ(expected, traced("%S|", text.data()));
    std::setlocale(LC_ALL, "C");
}

TEST(Trace, PrintsNothingForAMissingOrEmptyUtf16Text) {
    EXPECT_EQ("[]", traced("[%S]", static_cast<const void*>(nullptr)));
    EXPECT_EQ("[]", traced("[%S]", utf16("").data()));
}

TEST(Trace, TakesUtf16TextAtAnyAddress) {
    const std::string bytes = "x" + utf16("4100 4200");
    EXPECT_EQ("AB", traced("%S", static_cast<const void*>(bytes.data() + 1)));
}

TEST(Trace, ShowsTheReplacementCharacterForAnUnpairedSurrogate) {
    EXPECT_EQ("\xEF\xBF\xBD", traced("%S", utf16("34D8").data()));
    EXPECT_EQ("\xEF\xBF\xBD"
              "A",
              traced("%S", utf16("34D8 4100").data()));
    EXPECT_EQ("\xEF\xBF\xBD"
              "A",
              traced("%S", utf16("1EDD 4100").data()));
    EXPECT_EQ("\xEF\xBF\xBD\xEE\x80\x80", traced("%S", utf16("34D8 00E0").data()));
    EXPECT_EQ("\xEF\xBF\xBD\xF0\x9D\x84\x9E", traced("%S", utf16("34D8 34D8 1EDD").data()));
}

TEST(Trace, TakesUtf16TextAmongOtherArguments) {
    EXPECT_EQ("[5a] Title = T\xC3\xA4 7 plain -1\n",
              traced("[%I64x] Title = %S %d %s %I64d\n", std::int64_t{0x5A}, utf16("5400 E400").data(), 7,
                     "plain", std::int64_t{-1}));
}

TEST(Trace, CutsUtf16TextAt511BytesEvenInsideACharacter) {
    std::string text;
    for (int i = 0; i < 1000; ++i) {
        text += hex("AC20");
    }
    text += std::string(2, '\0');
    std::string expected;
    for (int i = 0; i < 170; ++i) {
        expected += "\xE2\x82\xAC";
    }
    EXPECT_EQ(expected + "\xE2", traced("%S\n", text.data()));
    EXPECT_EQ("xy" + expected.substr(0, 509), traced("xy%S\n", text.data()));
}

TEST(Trace, CountsWidthAndPrecisionOfUtf16TextInBytesOfUtf8) {
    EXPECT_EQ("[ \xC3\xA9]", traced("[%3S]", utf16("E900").data()));
    EXPECT_EQ("[AB]", traced("[%.2S]", utf16("4100 4200 4300").data()));
}

TEST(Trace, EndsAtAConversionThatNobodyKnows) {
    EXPECT_EQ("1 ", traced("%I64d %y %d\n", std::int64_t{1}, 2));
    EXPECT_EQ("1 ", traced("%I64d %", std::int64_t{1}));
}

/** Standard error as a socket that keeps each write apart. */
class Writes {
public:
    Writes() : saved_(::dup(STDERR_FILENO)) {
        EXPECT_EQ(0, ::socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends_));
        ::dup2(ends_[1], STDERR_FILENO);
    }
    ~Writes() {
        ::dup2(saved_, STDERR_FILENO);
        for (const int descriptor : {saved_, ends_[0], ends_[1]}) {
            ::close(descriptor);
        }
    }
    Writes(const Writes&) = delete;
    Writes& operator=(const Writes&) = delete;

    /** What was written since the last call. */
    [[nodiscard]] std::vector<std::string> taken() const {
        std::vector<std::string> writes;
        char bytes[8192];
        ssize_t count = 0;
        while ((count = ::recv(ends_[0], bytes, sizeof bytes, MSG_DONTWAIT)) > 0) {
            writes.emplace_back(bytes, static_cast<std::size_t>(count));
        }
        return writes;
    }

private:
    int saved_;
    int ends_[2] = {-1, -1};
};

TEST(TraceBatch, WritesItsMessagesTogetherAtItsEnd) {
    const Writes writes;
    {
        const TraceBatch batch;
        DebugInfo("one %d\n", 1);
        DebugError("two %I64d\n", std::int64_t{2});
        EXPECT_EQ(std::vector<std::string>{}, writes.taken());
    }
    EXPECT_EQ(std::vector<std::string>{"one 1\ntwo 2\n"}, writes.taken());
    DebugInfo("three\n");
    EXPECT_EQ(std::vector<std::string>{"three\n"}, writes.taken());
}

TEST(TraceBatch, WritesNothingWithoutMessages) {
    const Writes writes;
    { const TraceBatch batch; }
    EXPECT_EQ(std::vector<std::string>{}, writes.taken());
}

TEST(TraceBatch, WritesWholeMessagesOfUpTo4096BytesTogether) {
    const Writes writes;
    {
        const TraceBatch batch;
        for (int i = 0; i < 9; ++i) {
            DebugInfo("%s\n", std::string(511, 'x').c_str()); // cut to 511: without its line end
        }
    }
    EXPECT_EQ((std::vector<std::string>{std::string(8 * 511, 'x'), std::string(511, 'x')}), writes.taken());
}

TEST(TraceBatch, WritesTheLastMessageThatFitsWithTheOthers) {
    const Writes writes;
    {
        const TraceBatch batch;
        for (int i = 0; i < 8; ++i) {
            DebugInfo("%s", std::string(511, 'x').c_str());
        }
        DebugInfo("12345678");
        DebugInfo("9");
    }
    EXPECT_EQ((std::vector<std::string>{std::string(8 * 511, 'x') + "12345678", "9"}), writes.taken());
}

TEST(TraceBatch, InsideAnotherOneDoesNothing) {
    const Writes writes;
    {
        const TraceBatch outer;
        DebugInfo("one\n");
        {
            const TraceBatch inner;
            DebugInfo("two\n");
        }
        EXPECT_EQ(std::vector<std::string>{}, writes.taken());
    }
    EXPECT_EQ(std::vector<std::string>{"one\ntwo\n"}, writes.taken());
}

TEST(TraceBatch, KeepsErrnoWhenItsWriteFails) {
    const int saved = ::dup(STDERR_FILENO);
    const int full = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
    ::dup2(full, STDERR_FILENO);
    {
        const TraceBatch batch;
        DebugInfo("text\n");
        errno = 5;
    }
    const int error = errno;
    ::dup2(saved, STDERR_FILENO);
    std::clearerr(stderr);
    ::close(full);
    ::close(saved);
    EXPECT_EQ(5, error);
}

/** One zero-terminated text in UTF-16LE: "e", U+00E9, U+20AC, U+1F600. */
const std::uint8_t wide[] = {'e', 0, 0xE9, 0, 0xAC, 0x20, 0x3D, 0xD8, 0x00, 0xDE, 0, 0};

TEST(TraceLine, IsWrittenWholeWhenItsObjectGoes) {
    const Writes writes;
    {
        TraceLine line;
        line.text("[").hex(0x1A2B).text("] ").utf16le(wide).text(" (").decimal(-7).text(")\n");
        EXPECT_EQ(std::vector<std::string>{}, writes.taken());
    }
    EXPECT_EQ(std::vector<std::string>{"[1a2b] e\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80 (-7)\n"},
              writes.taken());
}

TEST(TraceLine, ShowsTheLeastAndTheMostOfItsNumbers) {
    const Writes writes;
    TraceLine().hex(0).text(" ").decimal(0);
    TraceLine().hex(UINT64_MAX).text(" ").decimal(INT64_MIN).text(" ").decimal(INT64_MAX);
    TraceLine().text("[").utf16le(nullptr).text("]");
    EXPECT_EQ(
        (std::vector<std::string>{"0 0", "ffffffffffffffff -9223372036854775808 9223372036854775807", "[]"}),
        writes.taken());
}

TEST(TraceLine, IsCutTo511BytesWhereverThatIs) {
    const std::string filling(509, 'x');
    const Writes writes;
    TraceLine().text(filling).text("123");
    TraceLine().text(filling).hex(0xABC);
    TraceLine().text(filling).decimal(-12);
    TraceLine().text(filling).utf16le(wide).text("!");
    TraceLine().text(filling + "12").hex(1).decimal(1).utf16le(wide).text("!");
    EXPECT_EQ((std::vector<std::string>{filling + "12", filling + "ab", filling + "-1", filling + "e\xC3",
                                        filling + "12"}),
              writes.taken());
}

TEST(TraceLine, TakesItsTurnInABatch) {
    const Writes writes;
    {
        const TraceBatch batch;
        for (int i = 0; i < 8; ++i) {
            TraceLine().text(std::string(511, 'x'));
        }
        DebugInfo("12345678");
        TraceLine().text("9");
        DebugInfo("%5d", 10);
    }
    EXPECT_EQ((std::vector<std::string>{std::string(8 * 511, 'x') + "12345678", "9   10"}), writes.taken());
}

TEST(TraceLine, KeepsErrnoWhenItCantBeWritten) {
    const int saved = ::dup(STDERR_FILENO);
    const int full = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
    ::dup2(full, STDERR_FILENO);
    errno = 5;
    TraceLine().text("text\n");
    const int error = errno;
    ::dup2(saved, STDERR_FILENO);
    std::clearerr(stderr);
    ::close(full);
    ::close(saved);
    EXPECT_EQ(5, error);
}

TEST(Trace, NobodyWhoReadsIsWaitedForMoreThanAMoment) {
    int ends[2];
    ASSERT_EQ(0, ::pipe2(ends, O_NONBLOCK));
    const std::string filling(4096, 'x');
    while (::write(ends[1], filling.data(), filling.size()) > 0) {
    }
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(ends[1], STDERR_FILENO);
        ::alarm(10);
        errno = EXDEV;
        // A moment for each text would be a hundred seconds.
        for (int line = 0; line < 1000; ++line) {
            DebugInfo("nobody reads this %d\n", line);
        }
        ::_exit(errno == EXDEV ? 0 : 1);
    }
    int status = 0;
    EXPECT_EQ(child, ::waitpid(child, &status, 0));
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(0, WEXITSTATUS(status));
    ::close(ends[0]);
    ::close(ends[1]);
}

TEST(Trace, ReaderWhoIsOnlySlowMissesNothing) {
    int ends[2];
    ASSERT_EQ(0, ::pipe2(ends, O_NONBLOCK));
    const std::string filling(4096, 'x');
    std::string buffer(1 << 20, '\0');
    while (::write(ends[1], filling.data(), filling.size()) > 0) {
    }
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(ends[1], STDERR_FILENO);
        DebugInfo("first\n");
        DebugInfo("second\n");
        ::_exit(0);
    }
    ::usleep(30'000);
    EXPECT_LT(0, ::read(ends[0], buffer.data(), buffer.size()));
    ASSERT_EQ(child, ::waitpid(child, nullptr, 0));
    const ssize_t count = ::read(ends[0], buffer.data(), buffer.size());
    EXPECT_EQ("first\nsecond\n", count > 0 ? buffer.substr(0, static_cast<std::size_t>(count)) : "");
    ::close(ends[0]);
    ::close(ends[1]);
}

} // namespace
} // namespace velmora
