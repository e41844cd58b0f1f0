#include "settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace velmora {

namespace {

const QString portableTagsKey = QStringLiteral("portableTags");

QString settingsFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/velmora/settings.ini");
}

} // namespace

void keepNoSettings() {
    for (const QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat}) {
        // No folder, so that no file can be made in it; what is set still holds until the program ends.
        QSettings::setPath(format, QSettings::UserScope, QStringLiteral("/dev/null"));
    }
    // Pages are drawn with shaders, which the toolkit would otherwise keep in the home folder.
    QCoreApplication::setAttribute(Qt::AA_DisableShaderDiskCache);
}

bool remembersPortableTags() {
    const QString file = settingsFile();
    return QFile::exists(file) && QSettings(file, QSettings::IniFormat).value(portableTagsKey).toBool();
}

void rememberPortableTags(bool remember) {
    const QString file = settingsFile();
    if (remember) {
        QSettings(file, QSettings::IniFormat).setValue(portableTagsKey, true);
    } else if (QFile::remove(file)) {
        QDir().rmdir(QFileInfo(file).path());
    }
}

} // namespace velmora
