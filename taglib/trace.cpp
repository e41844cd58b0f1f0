#include "trace.h"

#include "detail/trace_format.h"
#include "detail/trace_line.h"
#include "log_seam/patient_write.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace velmora {

namespace {

thread_local TraceBatch* batch_of_this_thread = nullptr;
thread_local int mutes_of_this_thread = 0;

/** A pipe takes such texts, of up to 4,096 bytes, whole or not at all, so that a second call repeats
   nothing. */
void write_out(const char* text) {
    write_patiently([text] { return std::fputs(text, stderr) != EOF; });
}

/** Formats any message; returns its length. */
std::size_t format_any(char* message, const char* format, va_list arguments) {
    if (needs_own_formatting(format)) {
        format_message(message, format, arguments);
    } else {
        // Zeros: a conversion that fails may leave the text without an end.
        std::memset(message, 0, message_capacity);
        if (std::vsnprintf(message, message_capacity, format, arguments) < 0) {
            message[message_capacity - 1] = '\0';
        }
    }
    return std::strlen(message);
}

/** Writes a message that can be formatted plainly, and leaves errno alone. False for any other, of which
   nothing is written. */
bool trace_plainly(const char* format, FormatArguments& arguments) {
    char own[message_capacity];
    char* const message = place_for_message(own);
    std::size_t length = 0;
    const bool is_plain = format_plainly(message, format, arguments, &length);
    if (is_plain) {
        write_message(message, length);
    }
    return is_plain;
}

} // namespace

char* place_for_message(char* own) {
    return batch_of_this_thread ? batch_of_this_thread->next() : own;
}

void write_message(char* message, std::size_t length) {
    if (mutes_of_this_thread > 0) {
        return; // every message comes through here
    }
    if (batch_of_this_thread) {
        batch_of_this_thread->take(length);
    } else {
        const int error = errno;
        message[length] = '\0';
        write_out(message);
        errno = error;
    }
}

void DebugTraceV(const char* format, va_list arguments) {
    const int error = errno;
    FormatArguments copy;
    va_copy(copy.list, arguments);
    if (!trace_plainly(format, copy)) {
        char own[message_capacity];
        char* const message = place_for_message(own);
        write_message(message, format_any(message, format, arguments));
    }
    va_end(copy.list);
    errno = error;
}

void DebugInfo(const char* format, ...) {
    FormatArguments arguments;
    va_start(arguments.list, format);
    const bool written = trace_plainly(format, arguments);
    va_end(arguments.list);
    if (!written) {
        va_start(arguments.list, format);
        DebugTraceV(format, arguments.list);
        va_end(arguments.list);
    }
}

void DebugError(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    DebugTraceV(format, arguments);
    va_end(arguments);
}

TraceMute::TraceMute() {
    ++mutes_of_this_thread;
}

TraceMute::~TraceMute() {
    --mutes_of_this_thread;
}

TraceBatch::TraceBatch() {
    if (!batch_of_this_thread) {
        batch_of_this_thread = this;
    }
}

TraceBatch::~TraceBatch() {
    if (batch_of_this_thread == this) {
        write();
        batch_of_this_thread = nullptr;
    }
}

void TraceBatch::take(std::size_t length) {
    if (length_ + length > most_gathered) {
        char message[message_capacity];
        std::memcpy(message, next(), length);
        write();
        std::memcpy(next(), message, length);
    }
    length_ += length;
}

void TraceBatch::write() {
    const int error = errno;
    text_[length_] = '\0';
    length_ = 0;
    write_out(text_.data());
    errno = error;
}

} // namespace velmora
