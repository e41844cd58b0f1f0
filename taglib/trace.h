#pragma once

#include <array>
#include <cstdarg>
#include <cstddef>

/** The tag library's own log, on standard error. */
namespace velmora {

/** Bytes of a finished message with its terminator. */
inline constexpr std::size_t message_capacity = 512;

/** Formats as vsnprintf does, with two conversions of its own: "I64", as in "%I64x" and "%I64d", is the
   length of a 64-bit value, and "%S" takes a `const void*` to zero-terminated UTF-16LE text (unaligned is
   fine, null prints nothing), shown as UTF-8 whatever the locale. The finished text is cut to 511 bytes and
   written to standard error as it is: no prefix, no line end. It is lost when standard error is one
   that does not wait (O_NONBLOCK) and is still full after a moment. errno is what it was before the call. */
void DebugTraceV(const char* format, va_list arguments);

/** A trace: what was found or done. */
void DebugInfo(const char* format, ...);
/** A failure. By convention the text begins with the reporting function's name and a colon, and ends with a
   line end. */
void DebugError(const char* format, ...);

/** While an object lives, its thread's messages are lost: for what reads a file again and has nothing to
   tell. */
class TraceMute {
public:
    TraceMute();
    ~TraceMute();
    TraceMute(const TraceMute&) = delete;
    TraceMute& operator=(const TraceMute&) = delete;
};

/** While an object lives, its thread's messages are gathered and written in pieces of up to 4,096 bytes, in
   their order; the last piece when the object ends. For loops that trace every small thing of a file, where
   a write for each line would take longer than all else. What is called meanwhile writes nothing of its own
   to standard error. Inside another batch an object does nothing. */
class TraceBatch {
public:
    TraceBatch();
    ~TraceBatch();
    TraceBatch(const TraceBatch&) = delete;
    TraceBatch& operator=(const TraceBatch&) = delete;

    /* For DebugTraceV and its like. */

    /** Where the next message is to be put, with room for message_capacity bytes. */
    [[nodiscard]] char* next() { return text_.data() + length_; }
    /** Takes the LENGTH bytes of the message that was put there. */
    void take(std::size_t length);

private:
    static constexpr std::size_t most_gathered = 4096;

    void write();

    std::size_t length_ = 0;
    std::array<char, most_gathered + message_capacity> text_;
};

} // namespace velmora
