#include "platform/localisation.h"
#include "platform/sentences.h"
#include "support/qt_printing.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QTranslator>

#include <gmock/gmock.h>

#include <memory>

namespace velmora {
namespace {

/** A user of one language; afterwards the tests speak English again. */
class LocalisationTest : public testing::Test {
protected:
    ~LocalisationTest() override {
        QLocale::setDefault(former_);
        qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>());
    }
    static void speak(QLocale::Language language) {
        QLocale::setDefault(QLocale(language));
        installLocalisation();
    }
    static QStringList fieldMenu() {
        QLineEdit field;
        const std::unique_ptr<QMenu> menu(field.createStandardContextMenu());
        QStringList texts;
        for (const QAction* action : menu->actions()) {
            if (!action->isSeparator()) {
                texts += action->text().section('\t', 0, 0).remove('&');
            }
        }
        return texts;
    }
    static QString panelLabel() {
        QFileDialog panel;
        panel.setOption(QFileDialog::DontUseNativeDialog);
        return panel.labelText(QFileDialog::LookIn);
    }

private:
    QLocale former_;
};

TEST_F(LocalisationTest, TheProgramsTextsAreGermanForAGerman) {
    speak(QLocale::German);
    EXPECT_EQ("Suche beendet.", localised("Search Done."));
}

TEST_F(LocalisationTest, AFieldsMenuIsGermanForAGerman) {
    speak(QLocale::German);
    const QStringList texts = fieldMenu();
    EXPECT_THAT(texts, testing::Contains(QString("Einfügen")));
    EXPECT_THAT(texts, testing::Contains(QString("Kopieren")));
    EXPECT_THAT(texts, testing::Not(testing::Contains(QString("Paste"))));
}

TEST_F(LocalisationTest, AFilePanelIsGermanForAGerman) {
    speak(QLocale::German);
    EXPECT_EQ("Suchen in:", panelLabel());
}

TEST_F(LocalisationTest, AWebPagesMenuIsGermanForAGerman) {
    speak(QLocale::German);
    EXPECT_EQ("Neu laden", QCoreApplication::translate("RenderViewContextMenuQt", "Reload"));
}

TEST_F(LocalisationTest, LanguageOfTheToolkitFollowsTheProgramsInEach) {
    const std::pair<QLocale::Language, const char*> words[] = {
        {QLocale::French, "Coller"},     {QLocale::Spanish, "Pegar"}, {QLocale::Italian, "Incolla"},
        {QLocale::Japanese, "貼り付け"}, {QLocale::Chinese, "粘贴"},
    };
    for (const auto& [language, paste] : words) {
        speak(language);
        const QString menu = fieldMenu().join(u'|');
        EXPECT_TRUE(menu.contains(QString::fromUtf8(paste))) << menu.toStdString();
    }
}

TEST_F(LocalisationTest, SimplifiedChineseIsNotForReadersOfTheTraditionalScript) {
    QLocale::setDefault(QLocale(QLocale::Chinese, QLocale::TraditionalHanScript, QLocale::Taiwan));
    installLocalisation();
    EXPECT_EQ("Search Done.", localised("Search Done."));
}

TEST_F(LocalisationTest, EachLanguageHasItsPluralForms) {
    struct Forms {
        QLocale::Language language;
        const char* none;
        const char* one;
        const char* two;
        const char* many;
    };
    const Forms all[] = {
        {QLocale::English, "0 files", "1 file", "2 files", "12,345 files"},
        {QLocale::Welsh, "0 files", "1 file", "2 files", "12,345 files"},
        {QLocale::German, "0 Dateien", "1 Datei", "2 Dateien", "12.345 Dateien"},
        {QLocale::French, "0 fichier", "1 fichier", "2 fichiers", "12\u202f345 fichiers"},
        {QLocale::Spanish, "0 archivos", "1 archivo", "2 archivos", "12.345 archivos"},
        {QLocale::Italian, "0 file", "1 file", "2 file", "12.345 file"},
        {QLocale::Japanese, "0 個のファイル", "1 個のファイル", "2 個のファイル", "12,345 個のファイル"},
        {QLocale::Chinese, "0 个文件", "1 个文件", "2 个文件", "12,345 个文件"},
    };
    for (const Forms& forms : all) {
        speak(forms.language);
        EXPECT_EQ(QString::fromUtf8(forms.none), localised("%Ln file(s)", 0));
        EXPECT_EQ(QString::fromUtf8(forms.one), localised("%Ln file(s)", 1));
        EXPECT_EQ(QString::fromUtf8(forms.two), localised("%Ln file(s)", 2));
        EXPECT_EQ(QString::fromUtf8(forms.many), localised("%Ln file(s)", 12345));
    }
}

TEST_F(LocalisationTest, SentencesEndAndFollowOneAnotherAsInTheLanguage) {
    struct Sentences {
        QLocale::Language language;
        const char* one;
        const char* two;
    };
    const Sentences all[] = {
        {QLocale::English, "50%@.", "50%@. a."},   {QLocale::German, "50%@.", "50%@. a."},
        {QLocale::French, "50%@.", "50%@. a."},    {QLocale::Spanish, "50%@.", "50%@. a."},
        {QLocale::Italian, "50%@.", "50%@. a."},   {QLocale::Japanese, "50%@。", "50%@。a。"},
        {QLocale::Chinese, "50%@。", "50%@。a。"},
    };
    for (const Sentences& sentences : all) {
        speak(sentences.language);
        EXPECT_EQ(QString::fromUtf8(sentences.one), asSentence("50%@"));
        EXPECT_EQ(QString::fromUtf8(sentences.two), joinedSentences({asSentence("50%@"), asSentence("a")}));
    }
    EXPECT_EQ("", joinedSentences({}));
}

TEST_F(LocalisationTest, WithoutATableOfItsOwnTheWholeProgramIsEnglishFromLeftToRight) {
    for (const QLocale::Language language : {QLocale::Welsh, QLocale::Dutch, QLocale::Arabic}) {
        speak(language);
        EXPECT_THAT(fieldMenu(), testing::Contains(QString("Paste"))) << language;
        EXPECT_EQ("Look in:", panelLabel()) << language;
        EXPECT_EQ("Search Done.", localised("Search Done.")) << language;
        EXPECT_EQ(Qt::LeftToRight, QGuiApplication::layoutDirection()) << language;
    }
}

} // namespace
} // namespace velmora
