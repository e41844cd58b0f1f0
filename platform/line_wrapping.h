#pragma once

class QPlainTextEdit;
class QString;

namespace velmora {

/** Puts TEXT into FIELD, however long its words are: lines are broken between words where they can be, and
   anywhere in a text with a word of many thousand letters. Looking for a place to break costs the square of
   such a word's length, which is minutes for a megabyte. */
void setWrappedText(QPlainTextEdit& field, const QString& text);

} // namespace velmora
