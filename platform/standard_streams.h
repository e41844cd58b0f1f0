#pragma once

namespace velmora {

/** Sees to it that descriptors 0, 1 and 2 are open, on /dev/null where the program was started without them.
   Otherwise the next file to be opened would get such a number, and what is logged would be written into it.
   Also sees to it that a write to one whose reader has gone away fails and does not end the program.
   To be called before any file is opened. */
void ensureStandardStreams();

} // namespace velmora
