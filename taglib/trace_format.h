#pragma once

#include <cstdarg>
#include <cstddef>
#include <optional>

/** The trace's own reading of a format, for the conversions that the C library lacks or reads otherwise. */
namespace velmora {

/** Bytes of a finished message with its terminator. */
inline constexpr std::size_t message_capacity = 512;

/** Formats a message whose conversions, up to where the message is full, are all among %x, %d, %s, %S, %I64x and
    %I64d, without flags: what nearly every one is, and many times as fast as the general way. Returns the
    message's length; nothing for any other format. */
[[nodiscard]] std::optional<std::size_t> format_plainly(char (&message)[message_capacity], const char* format,
                                                        va_list arguments);

/** Whether FORMAT has an "I64" or "%S" conversion; all others are vsnprintf's. */
[[nodiscard]] bool needs_own_formatting(const char* format);

/** vsnprintf with "I64" and "%S" (see trace.h), cut to the message's capacity and always terminated. Ends at
   the first conversion that is not known or that fails, with what precedes it in the message. Flags, width
   and precision are those of printf; for "%S" they count bytes of UTF-8. */
void format_message(char (&message)[message_capacity], const char* format, va_list arguments);

} // namespace velmora
