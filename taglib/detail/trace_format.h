#pragma once

#include "taglib/trace.h"

#include <cstdarg>
#include <cstddef>

/** The trace's own reading of a format, for the conversions that the C library lacks or reads otherwise. */
namespace velmora {

/** A va_list that can be handed on by reference on every ABI. */
struct FormatArguments {
    va_list list;
};

/* The functions put a message, and its terminator, into MESSAGE, which has message_capacity bytes. */

/** For a message whose conversions, up to where it is full, are all among %x, %d, %s, %S, %I64x and %I64d,
   without flags: what nearly every one is, and many times as fast as the general way. Uses ARGUMENTS up and
   sets LENGTH to the message's. False for any other format; MESSAGE then holds what precedes
   the conversion. */
[[nodiscard]] bool format_plainly(char* message, const char* format, FormatArguments& arguments,
                                  std::size_t* length);

/** Whether FORMAT has an "I64" or "%S" conversion; all others are vsnprintf's. */
[[nodiscard]] bool needs_own_formatting(const char* format);

/** vsnprintf with "I64" and "%S" (see trace.h), cut to the message's capacity and always terminated. Ends at
   the first conversion that is not known or that fails, with what precedes it in the message. Flags, width
   and precision are those of printf; for "%S" they count bytes of UTF-8. */
void format_message(char* message, const char* format, va_list arguments);

} // namespace velmora
