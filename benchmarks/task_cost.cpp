/** What one task costs beside time, in a process of its own.
   task_cost calls read FILE | calls store FILE: the system calls of a read of FILE's tag, or of a store of a
   title into it, writes to standard error not counted.
   task_cost memory bare | memory read FILE | memory move FILE: the peak of the process's memory in KiB. A
   move shifts everything behind the first 5000 bytes by 1 KiB, up and back.

   Prints one number. */

#include "trace_sink.h"
#include "velmora_tasks.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

[[noreturn]] void fail(const char* what) {
    std::fprintf(stdout, "task_cost: %s failed\n", what);
    std::exit(1);
}

/** A call that no task makes: it tells the tracer where the task begins and ends. */
void mark() {
    ::syscall(SYS_getppid);
}

bool run(std::string_view task, const char* path, const char* title) {
    const tasks::Format format = tasks::formatOf(path);
    return task == "store" ? tasks::storeTitle(format, path, title) : tasks::read(format, path);
}

[[noreturn]] void runTraced(std::string_view task, const char* path) {
    // Once before: what the process makes for itself on the first use is not the task's. The titles are those
    // of the store that is timed.
    const bool warm =
        sendTracesTo(TraceSink::nowhere) && run(task, path, "A walk along the river in the evening");
    if (!warm || ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0 || ::raise(SIGSTOP) != 0) {
        ::_exit(1);
    }
    mark();
    const bool good = run(task, path, "A walk");
    mark();
    ::_exit(good ? 0 : 1);
}

/** Lets CHILD go on to the next start or end of a system call. False when it has ended. */
bool goOn(pid_t child, int& status) {
    return ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr) == 0 && ::waitpid(child, &status, 0) == child &&
           WIFSTOPPED(status);
}

int countCalls(std::string_view task, const char* path) {
    const pid_t child = ::fork();
    if (child == 0) {
        runTraced(task, path);
    }
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child || !WIFSTOPPED(status) ||
        ::ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD) != 0) {
        fail("tracing");
    }
    int marks = 0;
    int calls = 0;
    while (goOn(child, status)) {
        __ptrace_syscall_info call{};
        if (::ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof call, &call) <= 0 ||
            call.op != PTRACE_SYSCALL_INFO_ENTRY) {
            continue;
        }
        if (call.entry.nr == SYS_getppid) {
            ++marks;
        } else if (marks == 1 && !(call.entry.nr == SYS_write && call.entry.args[0] == STDERR_FILENO)) {
            ++calls;
        }
    }
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0 || marks != 2) {
        fail("the task");
    }
    return calls;
}

long peakMemory() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:")) {
            return std::strtol(line.c_str() + 6, nullptr, 10);
        }
    }
    fail("reading /proc/self/status");
}

long memoryOf(std::string_view task, const char* path) {
    constexpr long long from = 5000;
    constexpr long long to = from + 1024;
    bool good = sendTracesTo(TraceSink::nowhere);
    if (task == "read") {
        good = good && tasks::read(tasks::formatOf(path), path);
    } else if (task == "move") {
        good = good && tasks::move(path, from, to) && tasks::move(path, to, from);
    }
    if (!good) {
        fail("the task");
    }
    return peakMemory();
}

} // namespace

int main(int argc, char** argv) {
    const std::string_view what = argc > 1 ? argv[1] : "";
    if (what == "calls" && argc == 4) {
        std::printf("%d\n", countCalls(argv[2], argv[3]));
    } else if (what == "memory" && argc >= 3) {
        std::printf("%ld\n", memoryOf(argv[2], argc > 3 ? argv[3] : nullptr));
    } else {
        std::fputs("usage: task_cost calls read|store FILE | memory bare | memory read|move FILE\n", stderr);
        return 2;
    }
    return 0;
}
