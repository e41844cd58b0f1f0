#include "system_call_faults.h"

#include <algorithm>
#include <cerrno>
#include <stdexcept>

namespace velmora::test {

namespace {
thread_local SystemCallFaults* watching = nullptr;
} // namespace

const char* name_of(SystemCall call) {
    static const char* const names[] = {"open", "close", "read",   "write",  "lseek",
                                        "stat", "fsync", "unlink", "rename", "mktemp"};
    return names[static_cast<int>(call)];
}

SystemCallFaults::SystemCallFaults() {
    if (watching) {
        throw std::logic_error("this thread's calls are watched already");
    }
    watching = this;
}

SystemCallFaults::~SystemCallFaults() {
    watching = nullptr;
}

void SystemCallFaults::fail(int nth, int error) {
    faults_.push_back({std::nullopt, nth, false, {error, SIZE_MAX}});
}

void SystemCallFaults::fail(SystemCall call, int nth, int error) {
    faults_.push_back({call, nth, false, {error, SIZE_MAX}});
}

void SystemCallFaults::fail_from(SystemCall call, int nth, int error) {
    faults_.push_back({call, nth, true, {error, SIZE_MAX}});
}

void SystemCallFaults::stop_at(int nth) {
    faults_.push_back({std::nullopt, nth, true, {EIO, SIZE_MAX}});
}

void SystemCallFaults::cut_short(SystemCall call, int nth, std::size_t bytes) {
    faults_.push_back({call, nth, false, {0, bytes}});
}

int SystemCallFaults::count(SystemCall call) const {
    return static_cast<int>(std::count_if(records_.begin(), records_.end(),
                                          [call](const auto& record) { return record.call == call; }));
}

std::int64_t SystemCallFaults::bytes(SystemCall call) const {
    std::int64_t sum = 0;
    for (const SystemCallRecord& record : records_) {
        if (record.call == call && record.result > 0) {
            sum += record.result;
        }
    }
    return sum;
}

std::int64_t SystemCallFaults::reach(SystemCall call) const {
    std::int64_t end = 0;
    for (const SystemCallRecord& record : records_) {
        if (record.call == call && record.result > 0) {
            end = std::max(end, record.position + record.result);
        }
    }
    return end;
}

SystemCallFaults* SystemCallFaults::of_this_thread() {
    return watching;
}

void SystemCallFaults::refuse_bytes(SystemCall call, std::int64_t begin, std::int64_t end, int error) {
    refused_.push_back({call, begin, end, error});
}

SystemCallFaults::Fate SystemCallFaults::fate_of_next(SystemCall call, std::int64_t position,
                                                      std::int64_t length) const {
    for (const Fault& fault : faults_) {
        if (fault.call && *fault.call != call) {
            continue;
        }
        const int next = 1 + (fault.call ? count(call) : count());
        if (fault.and_later ? next >= fault.nth : next == fault.nth) {
            return fault.fate;
        }
    }
    for (const RefusedBytes& bytes : refused_) {
        if (bytes.call == call && position < bytes.end && position + length > bytes.begin) {
            return position < bytes.begin ? Fate{0, static_cast<std::size_t>(bytes.begin - position)}
                                          : Fate{bytes.error, 0};
        }
    }
    return {};
}

std::string SystemCallFaults::path_of(int descriptor) const {
    const auto found = open_.find(descriptor);
    return found == open_.end() ? std::string() : found->second;
}

void SystemCallFaults::record(const SystemCallRecord& record) {
    records_.push_back(record);
    if (record.call == SystemCall::open && record.result >= 0) {
        open_[static_cast<int>(record.result)] = record.path;
    } else if (record.call == SystemCall::close) {
        open_.erase(record.descriptor); // also when it failed: the system has let go of the descriptor
    }
}

} // namespace velmora::test
