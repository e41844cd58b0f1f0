#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace velmora {

/** A name that a file can be given. */
struct FileName {
    QByteArray bytes;
    bool shortened = false; ///< it is not all of the text
};

/** The longest name of a file that all usual file systems take, in bytes. */
inline constexpr qsizetype longestFileName = 255;

/** TEXT as the name of a file with EXTENSION (its dot included, empty for none), which is kept byte for byte.
   What one of the usual file systems or another system refuses becomes "_": slashes and the characters \ : *
   ? " < > |, control characters, a dot in front, and so does what would make the name that of a device
   ("con"). Line breaks and tabs are blanks. Blanks at both ends and dots at the end go. What is longer than
   longestFileName with the extension is cut between two characters as the user sees them. Half surrogate
   pairs are bytes that are no UTF-8, as in every path. Nothing where no text or no room is left. */
[[nodiscard]] std::optional<FileName> fileNameOf(const QString& text, const QByteArray& extension);

/** Whether the file at PATH has to keep its name: its tag lies in another file, which goes by it. */
[[nodiscard]] bool hasFixedName(const QByteArray& path);

/** The extension of the file at PATH with its dot, as media files are told by it; empty where it has none. */
[[nodiscard]] QByteArray extensionOf(const QByteArray& path);

} // namespace velmora
