#include "harness.h"

#include <algorithm>
#include <cstdio>
#include <exception>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <unistd.h>
#include <vector>

/** Stands in for libFuzzer's main: runs a target once on each file of the folders that are named, without any
   other tool than the compiler of the day. Findings end the program. */
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> files_in(const fs::path& folder) {
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string contents_of(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/** The targets' code traces a lot. */
void discard_output() {
    const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    ::dup2(nowhere, STDOUT_FILENO);
    ::dup2(nowhere, STDERR_FILENO);
    ::close(nowhere);
}

std::size_t replay(const fs::path& folder, int report) {
    std::size_t inputs = 0;
    for (const fs::path& file : files_in(folder)) {
        const std::string input = contents_of(file);
        ::dprintf(report, "%s\n", file.c_str());
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
        ++inputs;
    }
    return inputs;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> folders(argv + 1, argv + argc);
    LLVMFuzzerInitialize(&argc, &argv);
    const int report = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 100);
    discard_output();
    try {
        std::size_t inputs = 0;
        for (const std::string& folder : folders) {
            inputs += replay(folder, report);
        }
        ::dprintf(report, "%zu inputs\n", inputs);
        return inputs > 0 ? 0 : 1;
    } catch (const std::exception& error) {
        ::dprintf(report, "%s\n", error.what());
        return 1;
    }
}
