#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

/** Watches the POSIX calls that a piece of code makes, and makes chosen ones fail.

   A test program gets this by linking velmora_system_call_faults: the linker then leads the calls made by
   the program's own objects and static libraries (the C and C++ runtime keeps its own) through here. They
   reach the system unchanged while no object of the class lives, and from every thread but the one that made
   it.

   To run an operation once for each of its calls, with that call failing:

        int calls = 0;
        {
            SystemCallFaults watch;
            store(path);
            calls = watch.count();
        }
        for (int nth = 1; nth <= calls; ++nth) {
            restore(path);
            SystemCallFaults faults;
            faults.fail(nth, EIO);
            store(path);
            EXPECT_EQ(0, faults.open_descriptors());
        }
*/
namespace velmora::test {

enum class SystemCall { open, close, read, write, lseek, stat, fsync, unlink, rename, mktemp };

/** The call's name, for messages. */
[[nodiscard]] const char* name_of(SystemCall call);

/** One call, in the order made. */
struct SystemCallRecord {
    SystemCall call = SystemCall::open;
    std::string path;           ///< as given, or that which the descriptor was opened with
    std::string target;         ///< rename: the new name; mktemp: the name that was made
    int descriptor = -1;        ///< of the calls that take one
    std::int64_t position = -1; ///< read and write: where in the file the call began
    std::int64_t requested = 0; ///< read and write: bytes asked for; lseek: the offset; open: the flags
    std::int64_t result = 0;    ///< as the caller saw it; mktemp: 0 or -1
    int error = 0;              ///< errno of a failed call
};

/** While an object lives, its thread's calls are counted and recorded; at most one lives in a thread. */
class SystemCallFaults {
public:
    SystemCallFaults();
    ~SystemCallFaults();
    SystemCallFaults(const SystemCallFaults&) = delete;
    SystemCallFaults& operator=(const SystemCallFaults&) = delete;

    /** The NTH call from the object's beginning (1 is the first), of whatever kind, fails with ERROR. */
    void fail(int nth, int error);
    /** The NTH call of this kind fails with ERROR. A failed close has closed the descriptor all the same, a
       failed mktemp has emptied the name, and every other call that fails has done nothing. */
    void fail(SystemCall call, int nth, int error);
    /** The NTH call of this kind and all after it fail, as on a full or broken disk. */
    void fail_from(SystemCall call, int nth, int error);
    /** The NTH call and all after it, of whatever kind, do nothing and fail with EIO. What the files hold
       then is what a program leaves that is killed between two calls. */
    void stop_at(int nth);
    /** The NTH read or write moves at most BYTES bytes; 0 is an end of file, or a write that
       takes nothing. */
    void cut_short(SystemCall call, int nth, std::size_t bytes);
    /** The bytes from BEGIN to END (without it) of every file can't be read, or written: a transfer that
       comes to them in CALLs of that kind ends in front of them, and one that begins with them fails with
       ERROR (0: it moves nothing). However the bytes are shared out among calls, the same ones are lost. */
    void refuse_bytes(SystemCall call, std::int64_t begin, std::int64_t end, int error);
    /** From now on mktemp also creates the (empty) file that it has named. */
    void create_generated_names() { create_generated_names_ = true; }

    /** Calls made so far, the failed ones included. */
    [[nodiscard]] int count() const { return static_cast<int>(records_.size()); }
    [[nodiscard]] int count(SystemCall call) const;
    /** Bytes really read, or written. */
    [[nodiscard]] std::int64_t bytes(SystemCall call) const;
    /** The file position behind the last byte that was read, or written; 0 when none was. */
    [[nodiscard]] std::int64_t reach(SystemCall call) const;
    /** Descriptors opened since the object's beginning and not closed. */
    [[nodiscard]] int open_descriptors() const { return static_cast<int>(open_.size()); }
    [[nodiscard]] const std::vector<SystemCallRecord>& records() const { return records_; }

    /* For the wrapped calls, not for tests. */

    struct Fate {
        int error = 0;                ///< 0: the call goes to the system
        std::size_t limit = SIZE_MAX; ///< bytes that a read or write may move
    };
    /** The object that watches this thread, or null. */
    [[nodiscard]] static SystemCallFaults* of_this_thread();
    /** POSITION and LENGTH: what a read or write is to move. */
    [[nodiscard]] Fate fate_of_next(SystemCall call, std::int64_t position = 0,
                                    std::int64_t length = 0) const;
    [[nodiscard]] std::string path_of(int descriptor) const;
    [[nodiscard]] bool creates_generated_names() const { return create_generated_names_; }
    void record(const SystemCallRecord& record);

private:
    struct Fault {
        std::optional<SystemCall> call; ///< nothing: any
        int nth;
        bool and_later;
        Fate fate;
    };
    struct RefusedBytes {
        SystemCall call;
        std::int64_t begin;
        std::int64_t end;
        int error;
    };
    std::vector<Fault> faults_;
    std::vector<RefusedBytes> refused_;
    std::vector<SystemCallRecord> records_;
    std::map<int, std::string> open_;
    bool create_generated_names_ = false;
};

} // namespace velmora::test
