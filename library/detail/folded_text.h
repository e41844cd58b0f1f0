#pragma once

#include <QString>

#include <string>

namespace velmora {

/** TEXT as searches compare it, in UTF-8: without regard to case, to accents, and to forms of the same letter
   ("É", "é" and "e" are one; so are "ß" and "ss", wide and narrow forms, curly and straight quotes). Marks
   that make another letter, as in Japanese or Hindi, stay. Line breaks are blanks. Half a surrogate pair,
   which stands in paths for a byte that is no UTF-8, is a question mark. */
[[nodiscard]] std::string foldedText(const QString& text);

} // namespace velmora
