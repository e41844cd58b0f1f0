#include "trace.h"

#include "trace_format.h"

#include "log_seam/patient_write.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace velmora {

namespace {

thread_local TraceBatch* batch_of_this_thread = nullptr;

/** A pipe takes such texts, of up to 4,096 bytes, whole or not at all, so that a second call repeats nothing. */
void write_out(const char* text) {
    write_patiently([text] { return std::fputs(text, stderr) != EOF; });
}

void write_message(const char* message, std::size_t length) {
    if (batch_of_this_thread) {
        batch_of_this_thread->add(message, length);
    } else {
        write_out(message);
    }
}

/** Formats any message; returns its length. */
std::size_t format_any(char (&message)[message_capacity], const char* format, va_list arguments) {
    if (needs_own_formatting(format)) {
        format_message(message, format, arguments);
    } else {
        // Zeros: a conversion that fails may leave the text without an end.
        std::memset(message, 0, sizeof message);
        if (std::vsnprintf(message, sizeof message, format, arguments) < 0) {
            message[message_capacity - 1] = '\0';
        }
    }
    return std::strlen(message);
}

} // namespace

void DebugTraceV(const char* format, va_list arguments) {
    const int error = errno;
    char message[message_capacity];
    const std::optional<std::size_t> length = format_plainly(message, format, arguments);
    write_message(message, length ? *length : format_any(message, format, arguments));
    errno = error;
}

void DebugInfo(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    DebugTraceV(format, arguments);
    va_end(arguments);
}

void DebugError(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    DebugTraceV(format, arguments);
    va_end(arguments);
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

void TraceBatch::add(const char* text, std::size_t length) {
    if (length >= text_.size() - length_) {
        write();
    }
    std::memcpy(text_.data() + length_, text, length);
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
