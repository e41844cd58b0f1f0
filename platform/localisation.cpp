#include "localisation.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

namespace velmora {

namespace {

/** Installs the table NAME for LOCALE from FOLDER. Gives the language of what there was;
   empty for nothing. */
QString installTable(const QLocale& locale, const QString& name, const QString& folder) {
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(locale, name, QStringLiteral("_"), folder)) {
        return {};
    }
    QTranslator* const installed = translator.release();
    installed->setParent(QCoreApplication::instance());
    QCoreApplication::installTranslator(installed);
    return installed->language();
}

} // namespace

QString localised(const char* englishText) {
    return QCoreApplication::translate("Velmora", englishText);
}

QString localised(const char* englishText, const QString& argument) {
    QString text = localised(englishText);
    const qsizetype place = text.indexOf(QLatin1String("%@"));
    return place < 0 ? text : text.replace(place, 2, argument);
}

QString localised(const char* englishText, int count) {
    return QCoreApplication::translate("Velmora", englishText, nullptr, count);
}

void installLocalisation() {
    // The English plural forms, which hold where there is no other table.
    installTable(QLocale(QLocale::English), QStringLiteral("velmora"), QStringLiteral(":/translations"));
    const QString language =
        installTable(QLocale(), QStringLiteral("velmora"), QStringLiteral(":/translations"));
    if (language.isEmpty()) {
        return; // the toolkit speaks no language that the program doesn't
    }
    for (const char* part : {"qtbase", "qtwebengine"}) {
        installTable(QLocale(language), QString::fromLatin1(part),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    }
}

} // namespace velmora
