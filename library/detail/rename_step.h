#pragma once

#include <QByteArray>

namespace velmora {

/* One change of a name each. They return 0, or the system's error number with everything as it was. */

/** Gives the file at FROM the name TO in the same folder; EEXIST where there is a file of that name. A file
   system that takes TO for the name of the same file ("a" and "A") is no hindrance. */
[[nodiscard]] int renameWithoutReplacing(const QByteArray& from, const QByteArray& to);

/** Exchanges the names of two files in one step. Any error where the file system can't. */
[[nodiscard]] int exchangeNames(const QByteArray& one, const QByteArray& other);

/** A name beside PATH that no file has at the moment. */
[[nodiscard]] QByteArray unusedNameBeside(const QByteArray& path);

} // namespace velmora
