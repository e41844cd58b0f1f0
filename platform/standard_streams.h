#pragma once

namespace velmora {

/** Sees to it that descriptors 0, 1 and 2 are open, on /dev/null where the program was started without them.
   Otherwise the next file to be opened would get such a number, and what is logged would be written into it.
   Also sees to it that a write fails and does not end the program where a stream's reader has gone away, or
   where a file would grow beyond the size that the process may give to one; and that a write of this program
   (O_NONBLOCK, of an end of its own) fails and does not wait where the reader of a pipe or terminal has
   stopped. To be called before any file is opened. */
void ensureStandardStreams();

} // namespace velmora
