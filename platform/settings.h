#pragma once

#include <QList>
#include <QMap>
#include <QSize>
#include <QString>

#include <optional>

namespace velmora {

/** How a user wants the window to look at each start. */
struct WindowLayout {
    QSize size; ///< in logical pixels; of the window before it was maximised
    bool isMaximised = false;
    QMap<QString, QList<int>>
        parts;          ///< by the object name of a splitter or table: the sizes of its parts or columns
    QString sortColumn; ///< a column's identifier; empty for none
    bool isDescending = false;
};

/** The program keeps no settings that nobody asked for, and the toolkit keeps none in its name: which
   folders a file panel showed, for one. Nothing is read from such files either. To be called before anything
   else of the toolkit is used. */
void keepNoSettings();

/** What the user asked to be remembered is in one file, "velmora/settings.ini" in the folder for programs'
   settings, which exists for as long as there is something in it. A damaged file counts as none. */

/** Whether the user asked for portable tags at each start. */
[[nodiscard]] bool remembersPortableTags();
/** Remembers that, or forgets it. False when the file can't be written, and the next start knows nothing. */
bool rememberPortableTags(bool remember);

/** The window's layout, when there is one remembered. */
[[nodiscard]] std::optional<WindowLayout> rememberedLayout();
/** Remembers LAYOUT, in place of the one before. False when the file can't be written. */
[[nodiscard]] bool rememberLayout(const WindowLayout& layout);

/** Removes the file, and its folder when nothing else is in it. False when the file is still there. */
[[nodiscard]] bool forgetEverything();

} // namespace velmora
