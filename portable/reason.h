#pragma once

#include <stdexcept>
#include <string>

namespace velmora::portable {

/** Why a file could not be read or saved, for those who tell the user. */
enum class ReasonCode {
    system,         ///< a call of the system failed: Reason::error
    unknown_kind,   ///< not a kind of file that carries a tag
    foreign_field,  ///< a field that this kind of file does not have; detail: its name
    damaged,        ///< the container contradicts itself; detail: what was met, in the format's own terms
    unsupported,    ///< whole, but of a sort that can't be written safely; detail: which
    too_large,      ///< a value or a file larger than the format takes; detail: which
    not_regular,    ///< a folder, a pipe, a device
    not_writable,   ///< the file's mode takes its owner the permission to write
    file_refused,   ///< the user may not write to the file
    folder_refused, ///< the user may put no new file into its folder; detail: while doing what
    more_links,     ///< further hard links would be parted
    changed_meanwhile,
    no_space,
    would_lose,        ///< the check of the new file found a difference; detail: what would have been lost
    folder_not_synced, ///< a warning: the new file is there, its folder was not synced
    cancelled,
    not_kept, ///< what the file was can't be kept, and so it is not changed
};

struct Reason {
    ReasonCode code = ReasonCode::system;
    int error = 0;      ///< errno, for the codes that stand on a call of the system; 0 otherwise
    std::string detail; ///< see the code; UTF-8

    friend bool operator==(const Reason&, const Reason&) = default;
};

/** One English sentence, without a full stop, that says what and why. */
[[nodiscard]] std::string sentence(const Reason& reason);

/** How a reason travels inside this room; it never leaves it. */
class Refusal : public std::runtime_error {
public:
    explicit Refusal(Reason reason) : std::runtime_error(sentence(reason)), reason_(std::move(reason)) {}
    [[nodiscard]] const Reason& reason() const { return reason_; }

private:
    Reason reason_;
};

} // namespace velmora::portable
