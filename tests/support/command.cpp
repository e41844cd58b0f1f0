#include "command.h"

#include "support/bytes.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <sstream>
#include <tuple>

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

void make_file(const std::string& command, const std::string& path) {
    static std::map<std::string, std::string> made;
    const auto known = made.find(command);
    if (known != made.end()) {
        write_file(path, known->second);
        return;
    }
    EXPECT_EQ("", run_command(command + " " + shell_word(path)));
    made[command] = read_file(path);
}

std::string run_on_file(const std::string& front, const std::string& path, const std::string& behind) {
    static std::map<std::tuple<std::string, std::string, std::string>, std::string> printed;
    const std::tuple run(front, behind, read_file(path));
    const auto known = printed.find(run);
    if (known != printed.end()) {
        return known->second;
    }
    return printed[run] = run_command(front + " " + shell_word(path) + " " + behind);
}

std::map<std::string, std::string> probed_tags(const std::string& path) {
    std::istringstream lines(run_command(
        "ffprobe -v error -show_entries format_tags -of default=noprint_wrappers=1 " + shell_word(path)));
    std::map<std::string, std::string> tags;
    for (std::string line; std::getline(lines, line);) {
        const std::size_t equals = line.find('=');
        EXPECT_TRUE(line.starts_with("TAG:") && equals != std::string::npos) << line;
        tags[line.substr(4, equals - 4)] = line.substr(equals + 1);
    }
    return tags;
}

std::string shell_word(const std::string& text) {
    std::string word = "'";
    for (const char c : text) {
        word += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return word + "'";
}

} // namespace velmora::test
