#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <string_view>

/** Paths in the window are QStrings that lose nothing: a path is bytes, and bytes that are not UTF-8 are kept
   as lone low surrogates (byte 0x80 + n as U+DC80 + n), which no valid text contains. Every file access turns
   the path back into its bytes here; Qt's own path functions would replace such bytes. */
namespace velmora {

[[nodiscard]] QString pathFromBytes(const QByteArray& bytes);
/** The inverse of pathFromBytes, byte for byte. */
[[nodiscard]] QByteArray pathBytes(const QString& path);

/** The bytes of the path of NAME in FOLDER, with one slash between them; NAME alone without a folder. */
[[nodiscard]] QByteArray joinedPath(const QByteArray& folder, std::string_view name);

/** The bytes of the path of the user's home folder: as the environment says, or else the user database, or
   else the root folder. */
[[nodiscard]] QByteArray homeFolder();

/** The file URL of an absolute PATH. "#", "?" and "%" are ordinary characters, and bytes that are not UTF-8
   stand percent-encoded. */
[[nodiscard]] QUrl fileUrlFromPath(const QString& path);
/** The path of a file URL made by fileUrlFromPath or by another program; empty for a URL that is not a local
   file, or is one of another machine. */
[[nodiscard]] QString pathFromFileUrl(const QUrl& url);

/** The text behind the last "/". */
[[nodiscard]] QString lastPathComponent(const QString& path);
/** The text behind the last dot of the last component, case kept; empty when there is no dot. ".app" has
   "app". */
[[nodiscard]] QString pathExtension(const QString& path);
/** PATH without its last component and the slash before it ("/" for a file in the root); empty when it has no
   "/". */
[[nodiscard]] QString pathFolder(const QString& path);
/** PATH without the extension of its last component and the dot before it. */
[[nodiscard]] QString pathWithoutExtension(const QString& path);

/** Whether there is a file or folder of any kind at PATH. From any thread. */
[[nodiscard]] bool fileExists(const QString& path);
/** Whether there is a pipe or a device at PATH: opening or reading one may wait for ever. From any thread. */
[[nodiscard]] bool isPipeOrDevice(const QString& path);
/** Whether the user may read what is at PATH, and it is neither a pipe nor a device. From any thread. */
[[nodiscard]] bool isReadableFile(const QString& path);

} // namespace velmora
