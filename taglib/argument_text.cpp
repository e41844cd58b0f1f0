#include "argument_text.h"

#include <cstdlib>
#include <cstring>

namespace velmora {

namespace {

bool is_blank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

const char* skip_blanks(const char* text) {
    while (is_blank(*text)) {
        ++text;
    }
    return text;
}

} // namespace

char* strxchg(char** slot, const char* text) {
    // The copy comes first: the text may be the slot's old string.
    char* const copy = text && *text ? ::strdup(text) : nullptr;
    std::free(*slot);
    *slot = copy;
    return copy;
}

void Util_StrToFilter(char* text) {
    for (; *text; ++text) {
        if (*text == '|') {
            *text = '\0';
        }
    }
}

void Util_UnquoteSpaces(char* text) {
    if (*text != '"') {
        return;
    }
    const std::size_t length = std::strlen(text) - 1;
    std::memmove(text, text + 1, length + 1);
    if (length > 0 && text[length - 1] == '"') {
        text[length - 1] = '\0';
    }
}

char* Util_CopyArg(const char* command_line, char* argument) {
    const char* from = skip_blanks(command_line);
    if (!*from) {
        return nullptr;
    }
    char* to = argument;
    for (bool quoted = false; *from && (quoted || !is_blank(*from)); ++from) {
        quoted ^= *from == '"';
        *to++ = *from;
    }
    *to = '\0';
    return argument;
}

const char* Util_GetNextArg(const char* command_line) {
    const char* at = skip_blanks(command_line);
    for (bool quoted = false; *at && (quoted || !is_blank(*at)); ++at) {
        if (*at == '\\' && at[1]) {
            ++at;
        } else {
            quoted ^= *at == '"';
        }
    }
    return skip_blanks(at);
}

} // namespace velmora
