#pragma once

#include "platform/localisation.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <gtest/gtest.h>

namespace velmora::test {

/** A language, and what a word of its own and of the toolkit's is in it. */
struct Language {
    QLocale::Language language;
    const char* save;   ///< of the program
    const char* cancel; ///< of the toolkit
};

inline void PrintTo(const Language& language, std::ostream* stream) {
    *stream << QLocale::languageToCode(language.language).toStdString();
}

/** All that the program has a table for. */
inline auto allLanguages() {
    return testing::Values(
        Language{QLocale::English, "Save", "Cancel"}, Language{QLocale::German, "Speichern", "Abbrechen"},
        Language{QLocale::French, "Enregistrer", "Annuler"},
        Language{QLocale::Spanish, "Guardar", "Cancelar"}, Language{QLocale::Italian, "Salva", "Annulla"},
        Language{QLocale::Japanese, "保存", "キャンセル"}, Language{QLocale::Chinese, "保存", "取消"});
}

/** Speaks the language from before the window is made. */
class Speaking : public testing::WithParamInterface<Language> {
protected:
    Speaking() {
        QLocale::setDefault(QLocale(GetParam().language));
        installLocalisation();
    }
    ~Speaking() override {
        QLocale::setDefault(former_);
        qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>());
    }

    static QString code() { return QLocale::languageToCode(GetParam().language); }

private:
    QLocale former_;
};

/** The language's code, as the name of a test. */
inline std::string languageName(const testing::TestParamInfo<Language>& language) {
    return QLocale::languageToCode(language.param.language).toStdString();
}

} // namespace velmora::test
