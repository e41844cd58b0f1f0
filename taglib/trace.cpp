#include "trace.h"

#include "trace_format.h"

#include <cerrno>
#include <cstdio>

namespace velmora {

void DebugTraceV(const char* format, va_list arguments) {
    const int error = errno;
    // Zeros: a conversion that fails may leave the text without an end.
    char message[message_capacity] = {};
    if (needs_own_formatting(format)) {
        format_message(message, format, arguments);
    } else if (std::vsnprintf(message, sizeof message, format, arguments) < 0) {
        message[message_capacity - 1] = '\0';
    }
    std::fputs(message, stderr);
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

} // namespace velmora
