#pragma once

#include <cstddef>
#include <cstdint>

/** The one place where the UTF-16LE text of an ASF file meets the UTF-8 text of the tag record. Two
   process-wide converters stand behind it, so it is used on one thread only. */
namespace velmora {

/** Bytes in front of the first zero unit of a text of LENGTH bytes (a last odd byte is no unit): an even
   number. */
[[nodiscard]] std::size_t utf16le_length(const void* text, std::size_t length);

/** Converts the units in front of the first zero unit of SOURCE, at most LENGTH bytes of it, into TARGET,
   at most CAPACITY bytes. Stops at the first unpaired surrogate and at the first character that no longer
   fits whole; what was converted until then stays. No terminator is written: callers zero TARGET
   beforehand. */
void utf16le_to_utf8(const void* source, std::size_t length, char* target, std::size_t capacity);

/** Converts SOURCE, zero-terminated UTF-8 text, into TARGET, at most CAPACITY bytes. Stops at the first
   invalid byte and at the first character that no longer fits whole; what was converted until then stays. No
   terminator is written: callers zero TARGET beforehand. */
void utf8_to_utf16le(const char* source, void* target, std::size_t capacity);

/** A text of a file, which may lack its terminator, in the form that "%S" of DebugInfo takes: as much of it
   as a message can hold, terminated. */
class Utf16TraceText {
public:
    /** TEXT may be null. */
    Utf16TraceText(const void* text, std::size_t length);
    /** Null for no text. */
    [[nodiscard]] const void* get() const { return present_ ? units_ : nullptr; }

private:
    static constexpr std::size_t longest_message = 512;
    std::uint8_t units_[2 * longest_message + 2];
    bool present_;
};

} // namespace velmora
