#include "command.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace velmora::test {

std::string run_command(const std::string& command) {
    std::FILE* const pipe = ::popen(("{ " + command + " ; } 2>&1").c_str(), "r");
    if (!pipe) {
        ADD_FAILURE() << "can't run: " << command;
        return {};
    }
    std::string output;
    char buffer[4096];
    for (std::size_t count = 0; (count = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;) {
        output.append(buffer, count);
    }
    EXPECT_EQ(0, ::pclose(pipe)) << command << "\n" << output;
    return output;
}

std::string shell_word(const std::string& text) {
    std::string word = "'";
    for (const char c : text) {
        word += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return word + "'";
}

} // namespace velmora::test
