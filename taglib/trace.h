#pragma once

#include <cstdarg>

/** The tag library's own log, on standard error. */
namespace velmora {

/** Formats as vsnprintf does, with two conversions of its own: "I64", as in "%I64x" and "%I64d", is the
   length of a 64-bit value, and "%S" takes a `const void*` to zero-terminated UTF-16LE text (unaligned is
   fine, null prints nothing), shown as UTF-8 whatever the locale. The finished text is cut to 511 bytes and
   written to standard error as it is: no prefix, no line end. errno is what it was before the call. */
void DebugTraceV(const char* format, va_list arguments);

/** A trace: what was found or done. */
void DebugInfo(const char* format, ...);
/** A failure. By convention the text begins with the reporting function's name and a colon, and ends with a
   line end. */
void DebugError(const char* format, ...);

} // namespace velmora
