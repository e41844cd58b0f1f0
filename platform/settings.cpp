#include "settings.h"

#include <QCoreApplication>
#include <QSettings>

namespace velmora {

void keepNoSettings() {
    for (const QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat}) {
        // No folder, so that no file can be made in it; what is set still holds until the program ends.
        QSettings::setPath(format, QSettings::UserScope, QStringLiteral("/dev/null"));
    }
    // Pages are drawn with shaders, which the toolkit would otherwise keep in the home folder.
    QCoreApplication::setAttribute(Qt::AA_DisableShaderDiskCache);
}

} // namespace velmora
