#pragma once

#include <QString>

namespace velmora {

/** The application's log: one event, one line on standard error. TEXT is written as UTF-8 as it is, paths in
   it (platform/file_path.h) byte for byte, and a line end is added only when it has none. Nothing filters it
   and nothing is quoted; it is lost when standard error does not wait (platform/standard_streams.h) and is
   still full after a moment. May be called from any thread. */
void appLog(const QString& text);

} // namespace velmora
