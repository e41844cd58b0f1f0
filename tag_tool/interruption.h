#pragma once

namespace velmora::tag_tool {

/** From now on SIGINT and SIGTERM are noted instead of ending the program, and writes that nobody reads or
   that are beyond a file size limit fail instead of ending it. */
void note_interruptions();

/** The signal that came, or 0. */
[[nodiscard]] int interruption();

} // namespace velmora::tag_tool
