#include "localisation.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace velmora {

QString localised(const char* englishText) {
    return QCoreApplication::translate("Velmora", englishText);
}

QString localised(const char* englishText, const QString& argument) {
    QString text = localised(englishText);
    const qsizetype place = text.indexOf(QLatin1String("%@"));
    return place < 0 ? text : text.replace(place, 2, argument);
}

void installLocalisation() {
    const auto install = [](const QString& name, const QString& folder) {
        auto* translator = new QTranslator(QCoreApplication::instance());
        if (translator->load(QLocale(), name, QStringLiteral("_"), folder)) {
            QCoreApplication::installTranslator(translator);
        } else {
            delete translator;
        }
    };
    for (const char* part : {"qtbase", "qtwebengine"}) {
        install(QString::fromLatin1(part), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    }
    install(QStringLiteral("velmora"), QStringLiteral(":/translations"));
}

} // namespace velmora
