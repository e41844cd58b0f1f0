#pragma once

#include <QIcon>
#include <QString>

namespace velmora {

/** The icon of the file at PATH as the desktop shows it. The first file with an extension decides for all
   later ones with that extension, so a long list of files costs a few look-ups. Main thread only. */
[[nodiscard]] QIcon fileIcon(const QString& path);

} // namespace velmora
