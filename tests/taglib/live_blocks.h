#pragma once

/** Counts the memory blocks of the malloc family that are taken and not given back, for the requests of the
   program's own objects and static libraries. A test program gets this by compiling live_blocks.cpp and
   linking with the wraps of velmora_count_live_blocks. */
namespace velmora::test {

[[nodiscard]] long live_blocks();

} // namespace velmora::test
