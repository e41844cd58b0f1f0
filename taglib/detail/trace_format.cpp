#include "trace_format.h"

#include "trace_text.h"

#include <cstdint>
#include <cstdio>
#include <cstring>

namespace velmora {

namespace {

/** Room for any conversion that a message writes out in full: flags, width, precision, length and letter. */
constexpr std::size_t conversion_capacity = 64;

/** One conversion of a format, with numbers in place of the "*" and "ll" in place of "I64". */
struct Conversion {
    char text[conversion_capacity];
    std::size_t length = 0;
    char letter = 0; ///< 0: no conversion that is known
    enum class Size { plain, long_, long_long, intmax, size, ptrdiff, long_double } size = Size::plain;

    void add(char c) {
        if (length + 1 < sizeof text) {
            text[length++] = c;
        }
    }
    /** A width or precision that came as an argument. */
    void add_number(int number) {
        if (number < 0 && text[length - 1] == '.') {
            --length; // a negative precision is none
            return;
        }
        char digits[16];
        std::snprintf(digits, sizeof digits, "%d", number);
        for (const char* digit = digits; *digit; ++digit) {
            add(*digit);
        }
    }
};

bool is_one_of(char c, const char* set) {
    return c != '\0' && std::strchr(set, c) != nullptr;
}

/** Reads the length modifier at AT into CONVERSION and returns what follows it. */
const char* read_length(const char* at, Conversion& conversion) {
    using Size = Conversion::Size;
    if (std::strncmp(at, "I64", 3) == 0) {
        conversion.size = Size::long_long;
        conversion.add('l');
        conversion.add('l');
        return at + 3;
    }
    for (; is_one_of(*at, "hljztL"); ++at) {
        switch (*at) {
        case 'l':
            conversion.size = conversion.size == Size::long_ ? Size::long_long : Size::long_;
            break;
        case 'j':
            conversion.size = Size::intmax;
            break;
        case 'z':
            conversion.size = Size::size;
            break;
        case 't':
            conversion.size = Size::ptrdiff;
            break;
        case 'L':
            conversion.size = Size::long_double;
            break;
        default: // h and hh arrive as int
            break;
        }
        conversion.add(*at);
    }
    return at;
}

/** Reads the conversion at AT, behind its "%", and returns what follows it. */
const char* read_conversion(const char* at, FormatArguments& arguments, Conversion& conversion) {
    conversion.add('%');
    for (; is_one_of(*at, "-+ #0123456789.*"); ++at) {
        if (*at == '*') {
            conversion.add_number(va_arg(arguments.list, int));
        } else {
            conversion.add(*at);
        }
    }
    at = read_length(at, conversion);
    if (!is_one_of(*at, "diouxXcspSeEfFgGaA%")) {
        return at;
    }
    conversion.letter = *at;
    conversion.add(*at == 'S' ? 's' : *at);
    conversion.text[conversion.length] = '\0';
    return at + 1;
}

/** The conversions that nearly every message of a walk through a file is made of, without flags and width. */
enum class Plain { none, hex, decimal, hex64, decimal64, text, utf16 };

/** Reads the conversion at AT and moves AT behind it; leaves AT alone for any other. */
Plain plain_conversion(const char*& at) {
    const bool is_wide = std::strncmp(at, "I64", 3) == 0;
    Plain plain = Plain::none;
    switch (at[is_wide ? 3 : 0]) {
    case 'x':
        plain = is_wide ? Plain::hex64 : Plain::hex;
        break;
    case 'd':
        plain = is_wide ? Plain::decimal64 : Plain::decimal;
        break;
    case 's':
        plain = is_wide ? Plain::none : Plain::text;
        break;
    case 'S':
        plain = is_wide ? Plain::none : Plain::utf16;
        break;
    default:
        break;
    }
    if (plain != Plain::none) {
        at += is_wide ? 4 : 1;
    }
    return plain;
}

// NOLINTBEGIN(clang-analyzer-valist.Uninitialized): the analyzer loses sight of a list that is a member
/** Prints the argument of a conversion that plain_conversion takes; returns the bytes that fit into ROOM. */
std::size_t print_plain(char* to, std::size_t room, Plain plain, FormatArguments& arguments) {
    va_list& list = arguments.list;
    switch (plain) {
    case Plain::hex:
        return put_hex(to, room, va_arg(list, unsigned));
    case Plain::decimal:
        return put_decimal(to, room, va_arg(list, int));
    case Plain::hex64:
        return put_hex(to, room, va_arg(list, unsigned long long));
    case Plain::decimal64:
        return put_decimal(to, room, va_arg(list, long long));
    case Plain::text: {
        const char* const text = va_arg(list, const char*);
        return text ? put_text(to, room, text, ::strnlen(text, room)) : put_text(to, room, "(null)", 6);
    }
    default:
        return put_utf16le(to, room, va_arg(list, const void*));
    }
}
// NOLINTEND(clang-analyzer-valist.Uninitialized)

// NOLINTBEGIN(bugprone-branch-clone): the branches take arguments of different types
/** Prints one conversion with its argument; the result is snprintf's. */
int print_conversion(char* to, std::size_t room, const Conversion& conversion, FormatArguments& arguments) {
    using Size = Conversion::Size;
    va_list& list = arguments.list;
    const char* const text = conversion.text;
    if (conversion.letter == '%') {
        return std::snprintf(to, room, "%%");
    }
    if (conversion.letter == 'S') {
        char utf8[message_capacity + 4];
        utf8_from_utf16le(va_arg(list, const void*), utf8);
        return std::snprintf(to, room, text, utf8);
    }
    if (is_one_of(conversion.letter, "sp")) {
        return std::snprintf(to, room, text, va_arg(list, const void*));
    }
    if (is_one_of(conversion.letter, "eEfFgGaA")) {
        return conversion.size == Size::long_double ? std::snprintf(to, room, text, va_arg(list, long double))
                                                    : std::snprintf(to, room, text, va_arg(list, double));
    }
    switch (conversion.size) {
    case Size::long_:
        return std::snprintf(to, room, text, va_arg(list, long));
    case Size::long_long:
        return std::snprintf(to, room, text, va_arg(list, long long));
    case Size::intmax:
        return std::snprintf(to, room, text, va_arg(list, std::intmax_t));
    case Size::size:
        return std::snprintf(to, room, text, va_arg(list, std::size_t));
    case Size::ptrdiff:
        return std::snprintf(to, room, text, va_arg(list, std::ptrdiff_t));
    default:
        return std::snprintf(to, room, text, va_arg(list, int));
    }
}
// NOLINTEND(bugprone-branch-clone)

} // namespace

bool needs_own_formatting(const char* format) {
    for (const char* at = std::strchr(format, '%'); at; at = std::strchr(at, '%')) {
        ++at;
        if (*at == '%') {
            ++at;
            continue;
        }
        while (is_one_of(*at, "-+ #0123456789.*")) {
            ++at;
        }
        if (*at == 'I' || *at == 'S') {
            return true;
        }
    }
    return false;
}

bool format_plainly(char* message, const char* format, FormatArguments& arguments, std::size_t* length) {
    char* to = message;
    char* const last = message + message_capacity - 1; // where the terminator stands at the latest
    bool is_plain = true;
    while (is_plain && *format && to != last) {
        for (; *format && *format != '%' && to != last; ++to) {
            *to = *format++;
        }
        if (*format == '%' && to != last) {
            ++format;
            const Plain plain = plain_conversion(format);
            is_plain = plain != Plain::none;
            to += is_plain ? print_plain(to, static_cast<std::size_t>(last + 1 - to), plain, arguments) : 0;
        }
    }
    *to = '\0';
    *length = static_cast<std::size_t>(to - message);
    return is_plain;
}

void format_message(char* message, const char* format, va_list list) {
    FormatArguments arguments;
    va_copy(arguments.list, list);
    std::size_t used = 0;
    while (*format && used + 1 < message_capacity) {
        const std::size_t room = message_capacity - used;
        if (*format != '%') {
            message[used++] = *format++;
            continue;
        }
        Conversion conversion;
        format = read_conversion(format + 1, arguments, conversion);
        const int count =
            conversion.letter ? print_conversion(message + used, room, conversion, arguments) : -1;
        if (count < 0) {
            break;
        }
        used += static_cast<std::size_t>(count) < room ? static_cast<std::size_t>(count) : room - 1;
    }
    message[used] = '\0';
    va_end(arguments.list);
}

} // namespace velmora
