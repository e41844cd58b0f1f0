#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace velmora::portable {

/** What saves took out of files, kept so that it can be put back: in a temporary file without a name, in
   $TMPDIR or else /var/tmp, which goes with the object and with the process. Used by one thread at a time. */
class KeptBytes {
public:
    KeptBytes() = default;
    ~KeptBytes();
    KeptBytes(const KeptBytes&) = delete;
    KeptBytes& operator=(const KeptBytes&) = delete;

    [[nodiscard]] std::uint64_t size() const { return size_; }
    /** Puts BYTES behind those that are kept. False, with errno and nothing more kept than before, where they
       can't be written. */
    [[nodiscard]] bool append(std::span<const std::uint8_t> bytes);
    /** Keeps only the first SIZE bytes. */
    void shrink_to(std::uint64_t size);
    /** The file that they are in, which stays the object's own; -1 as long as there is none. */
    [[nodiscard]] int descriptor() const { return descriptor_; }

private:
    [[nodiscard]] bool open();

    int descriptor_ = -1;
    std::uint64_t size_ = 0;
};

} // namespace velmora::portable
