#pragma once

namespace velmora::test {

/** Scratch folders that are made from now on in this process lie in memory, where the system has a file
   system there that knows attributes of files and has room; otherwise where they lay. For tests that write
   thousands of files, none of which has to last. */
void scratch_in_memory();

} // namespace velmora::test
