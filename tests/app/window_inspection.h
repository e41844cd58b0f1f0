#pragma once

#include <QStringList>
#include <QWidget>

/** What is wrong with a window as its user meets it. Each list is empty where nothing is. */
namespace velmora::test {

/** Texts of buttons, labels and headers that have less room than they need. */
[[nodiscard]] QStringList cutTexts(const QWidget& window);
/** The buttons and texts that reach beyond the window, or sideways beyond what they are scrolled in. */
[[nodiscard]] QStringList controlsOutside(const QWidget& window);
/** The letters for the Alt key in WINDOW and its menu bar, once for each thing that has them. */
[[nodiscard]] QStringList altLetters(const QWidget& window);
/** The letters of the commands of all menus below WINDOW's menu bar, and complaints of letters that are given
   twice in one menu and of commands without one. Menus that are lists of fields or columns need none. */
[[nodiscard]] QStringList wrongMenuLetters(const QWidget& window);
/** What stands more than once in ALL. */
[[nodiscard]] QStringList givenTwice(QStringList all);
/** The controls of WINDOW that are seen and take the keyboard and have no accessible name or no tip. */
[[nodiscard]] QStringList namelessControls(const QWidget& window);
/** The controls of WINDOW that take the keyboard, are seen and enabled, and that the Tab key does not reach
   from the one that has it. WINDOW is the active one. */
[[nodiscard]] QStringList controlsBeyondTab(const QWidget& window);

} // namespace velmora::test
