#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace velmora {

/** Rows of cells, as they go to a spreadsheet and come from one. */
using CellBlock = std::vector<QStringList>;

/** CELL as a spreadsheet is to get it: a text that it would take for a formula (one that begins with =, +, -,
   @, a tab or a line break, which a file of a stranger may hold) gets a quote (') in front, and so does one
   that has such quotes in front of such a text already. Numbers stay numbers: those with a sign, too. */
[[nodiscard]] QString withoutFormula(const QString& cell);
/** The inverse of withoutFormula. */
[[nodiscard]] QString withFormula(const QString& cell);

/** BLOCK as tab-separated text: each row ends with a line feed; a cell with a tab, a line break or a
   quotation mark stands in quotation marks, those in it twice. Formulas are made harmless. */
[[nodiscard]] QString blockText(const CellBlock& block);

/** The cells of TEXT, as blockText and spreadsheets write them; line breaks may be those of any system. A
   quotation mark that stands within a cell is one. Rows are as long as the text has them. */
[[nodiscard]] CellBlock blockFromText(const QString& text);

} // namespace velmora
