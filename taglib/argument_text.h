#pragma once

/** Small helpers for argument lists and owned strings. Nothing in the program calls them. */
namespace velmora {

/** Replaces the string that SLOT owns (malloc family) by a copy of TEXT, or by null when TEXT is null or
   empty. TEXT may be the old string itself. Returns the slot's new value. */
char* strxchg(char** slot, const char* text);

/** Replaces every "|" by a zero byte, in place: a list of zero-terminated strings. */
void Util_StrToFilter(char* text);

/** Takes a leading double quote off, in place, and then one at the end. */
void Util_UnquoteSpaces(char* text);

/** Skips blanks (space, tab, CR, LF) in COMMAND_LINE and copies the next argument, up to a blank outside
   double quotes, with its quotes. Returns ARGUMENT (the caller makes it as long as COMMAND_LINE), or null,
   with nothing copied, when no argument is left. */
char* Util_CopyArg(const char* command_line, char* argument);

/** Skips blanks, one argument (a backslash makes the next character ordinary, double quotes group blanks) and
   the blanks behind it. Returns where the next argument begins. */
[[nodiscard]] const char* Util_GetNextArg(const char* command_line);

} // namespace velmora
