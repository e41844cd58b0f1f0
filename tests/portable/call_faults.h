#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/** Makes chosen calls of the system fail in a replacement of a file: those that the portable tags and the
   byte layer under them make. Programs that link velmora_call_faults lead them through here; without an
   object of the class they reach the system unchanged. */
namespace velmora::test {

/** What becomes of a call. */
struct CallFault {
    enum class Kind {
        error,       ///< it does nothing and fails
        short_count, ///< it moves at most so many bytes
        kill_before, ///< the process is killed in its place
        kill_after,  ///< the process is killed when it is done
    };
    Kind kind = Kind::error;
    int error = 0;
    std::size_t most = 0;
};

/** One call, in the order made. */
struct CallRecord {
    std::string name;
    std::size_t length = 0; ///< bytes that it was to move; 0 for calls that move none
};

/** Watches the calls of the whole process; at most one lives. */
class CallFaults {
public:
    CallFaults();
    ~CallFaults();
    CallFaults(const CallFaults&) = delete;
    CallFaults& operator=(const CallFaults&) = delete;

    /** The NTH call from now on (1 is the first) meets with FAULT. */
    void set(std::size_t nth, const CallFault& fault);
    /** From the NTH call from now on the disk is full: what needs space there fails, but for writes into the
       file open as EXCEPT, which lies on another one. */
    void fill_disk(std::size_t nth, int except = -1);
    /** The file system has no files without a name, or it has. */
    void refuse_unnamed_files(bool refuse) { no_unnamed_files_ = refuse; }
    /** The system can't copy from file to file. */
    void refuse_copying(bool refuse) { no_copying_ = refuse; }

    [[nodiscard]] const std::vector<CallRecord>& records() const { return records_; }

    /* For the calls, not for tests. */
    [[nodiscard]] static CallFaults* current();
    [[nodiscard]] bool unnamed_files_refused() const { return no_unnamed_files_; }
    [[nodiscard]] bool copying_refused() const { return no_copying_; }
    /** Records a call; the fault that it meets with, or null. WRITTEN is the file that it needs space for, -1
       a new one, nothing where it needs none. */
    [[nodiscard]] const CallFault* next(const char* name, std::size_t length, std::optional<int> written);

private:
    std::vector<CallRecord> records_;
    std::size_t nth_ = 0;
    CallFault fault_;
    std::size_t full_from_ = 0; ///< 0: the disk has room
    int not_full_ = -1;
    bool no_unnamed_files_ = false;
    bool no_copying_ = false;
};

} // namespace velmora::test
