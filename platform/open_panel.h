#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

namespace velmora {

/** What an open panel lets the user choose. There is never a type filter. */
struct OpenPanel {
    QString title = {};
    bool choosesFolders = false; ///< folders only; otherwise files only
    bool allowsMultipleSelection = false;
    QString startFolder = {}; ///< empty: wherever the panel was last
};

/** Return codes of a panel. */
inline constexpr int openPanelCancelled = 0;
inline constexpr int openPanelOk = 1;

/** Shows PANEL as a sheet on WINDOW and returns at once. DID_END gets the return code and
   the chosen paths. */
void beginOpenPanelSheet(const OpenPanel& panel, QWidget* window,
                         std::function<void(int returnCode, const QStringList& paths)> didEnd);

/** Shows a panel, called TITLE, that asks where a file is to be saved, as a sheet on WINDOW, and returns at
   once. It starts with the place and the name of START, gives a name without an extension that of START, and
   asks before it takes a name that is in use. DID_END gets the return code and the chosen path. */
void beginSavePanelSheet(const QString& title, const QString& start, QWidget* window,
                         std::function<void(int returnCode, const QStringList& paths)> didEnd);

} // namespace velmora
