#include "printing.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace velmora::tag_tool {

namespace {

int output_error = 0;

bool is_control(char letter) {
    return static_cast<unsigned char>(letter) < 0x20 || letter == 0x7F;
}

std::string escaped(char letter) {
    switch (letter) {
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        std::array<char, 5> text{};
        std::snprintf(text.data(), text.size(), "\\x%02X",
                      static_cast<unsigned>(static_cast<unsigned char>(letter)));
        return text.data();
    }
}

} // namespace

std::string in_one_line(std::string_view text) {
    std::string line;
    for (const char letter : text) {
        line += is_control(letter) ? escaped(letter) : std::string(1, letter);
    }
    return line;
}

void print(std::string_view text) {
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size() && output_error == 0) {
        output_error = errno;
    }
}

bool finish_printing() {
    if (std::fflush(stdout) != 0 && output_error == 0) {
        output_error = errno;
    }
    if (output_error != 0) {
        print_failure("standard output", std::strerror(output_error));
    }
    return output_error == 0;
}

void print_failure(std::string_view path, std::string_view reason) {
    const std::string line = in_one_line(path) + ": " + in_one_line(reason) + "\n";
    std::fwrite(line.data(), 1, line.size(), stderr);
}

} // namespace velmora::tag_tool
