#pragma once

#include "portable/reason.h"

#include <cstdint>
#include <functional>

namespace velmora::portable {

/** How far a save is. The one who asked for it hears of it, and may cancel. */
class Progress {
public:
    /** REPORT is given the bytes done and those to do, and cancels by returning false. May be empty. */
    explicit Progress(std::function<bool(std::uint64_t done, std::uint64_t total)> report)
        : report_(std::move(report)) {}

    void set_total(std::uint64_t total) { total_ = total; }
    /** BYTES more are done. Throws the Refusal `cancelled`. */
    void advance(std::uint64_t bytes) {
        done_ += bytes;
        check();
    }
    /** Throws the Refusal `cancelled` where the one who asked says so. */
    void check() const {
        if (report_ && !report_(done_, total_)) {
            throw Refusal({ReasonCode::cancelled, 0, {}});
        }
    }

private:
    std::function<bool(std::uint64_t, std::uint64_t)> report_;
    std::uint64_t done_ = 0;
    std::uint64_t total_ = 0;
};

} // namespace velmora::portable
