#pragma once

/** Where the tag library's traces go. */
enum class TraceSink {
    nowhere, ///< /dev/null
    closed   ///< every write fails, as on a closed descriptor, whose number stays taken all the same
};

/** Puts SINK in the place of standard error. False when it can't be opened. */
[[nodiscard]] bool sendTracesTo(TraceSink sink);
