#include "platform/localisation.h"

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

TEST_F(LocalisationTest, WithoutATableOfItsOwnTheWholeProgramIsEnglishFromLeftToRight) {
    for (const QLocale::Language language : {QLocale::Welsh, QLocale::French, QLocale::Arabic}) {
        speak(language);
        EXPECT_THAT(fieldMenu(), testing::Contains(QString("Paste"))) << language;
        EXPECT_EQ("Look in:", panelLabel()) << language;
        EXPECT_EQ("Search Done.", localised("Search Done.")) << language;
        EXPECT_EQ(Qt::LeftToRight, QGuiApplication::layoutDirection()) << language;
    }
}

} // namespace
} // namespace velmora
