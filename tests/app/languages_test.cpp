// The window in each language that the program has a table for: nothing is cut off on a small screen, no
// letter is given twice, controls are called as they read, and the toolkit speaks the same language. Leaves
// pictures in the folder "screenshots" of the build.

#include "spoken_languages.h"
#include "window_fixture.h"
#include "window_inspection.h"

#include "imaging/CoverArtView.h"
#include "platform/localisation.h"

#include <QDir>
#include <QLabel>

namespace velmora {
namespace {

using test::altLetters;
using test::controlsOutside;
using test::cutTexts;
using test::givenTwice;
using test::text4;
using test::wrongMenuLetters;

class LanguageTest : public test::Speaking, public test::WindowTest {
protected:
    QWidget& window() { return *document().window(); }

    /** The song or film NAME in the smallest window, with every button in use. */
    void show(const std::string& name) {
        window().resize(1024, 700);
        openFile(name, text4("TALB", "Harbour Lights") + text4("TPE1", "Ann, Bob, Cy"));
        test::waitUntil([this] { return widget<QLabel>("lbl_previewFailed").isVisible(); });
        for (auto* button : window().findChildren<QPushButton*>()) {
            button->setEnabled(true);
        }
        test::settle();
    }
    void keepPicture(const QString& name) {
        QDir().mkpath("screenshots");
        EXPECT_TRUE(window().grab().save(QStringLiteral("screenshots/%1-%2.png").arg(name, code())));
    }
};

TEST_P(LanguageTest, ProgramAndToolkitSpeakIt) {
    EXPECT_EQ(QString::fromUtf8(GetParam().save), localised("Save"));
    EXPECT_EQ(QString::fromUtf8(GetParam().cancel), QCoreApplication::translate("QPlatformTheme", "Cancel"));
}

TEST_P(LanguageTest, NothingIsCutOffOnASmallScreen) {
    for (const char* name : {"a.mp3", "b.mp4"}) {
        show(name);
        EXPECT_EQ(QSize(1024, 700), window().size());
        EXPECT_LE(window().minimumSizeHint().width(), 1024);
        EXPECT_EQ(QStringList(), cutTexts(window())) << name;
        EXPECT_EQ(QStringList(), controlsOutside(window())) << name;
        keepPicture(name);
    }
}

TEST_P(LanguageTest, NoticeIsReadWholeOnASmallScreen) {
    window().resize(1024, 700);
    addFile("a.mp3", test::fileTaggedInFront());
    select(0);
    type("entry_title", "Evening");
    button("btn_saveTag").click();
    test::settle();
    EXPECT_TRUE(widget<QLabel>("lbl_notice").isVisible());
    EXPECT_EQ(QSize(1024, 700), window().size());
    EXPECT_EQ(QStringList(), cutTexts(window()));
    keepPicture("notice");
}

TEST_P(LanguageTest, NoticeHasTheFullStopsOfTheLanguage) {
    addFile("a.mp3", test::fileTaggedInFront());
    select(0);
    type("entry_title", "Evening");
    button("btn_saveTag").click();
    const QString text = widget<QLabel>("lbl_notice").text();
    const QLocale::Language language = GetParam().language;
    const bool isFullWidth = language == QLocale::Japanese || language == QLocale::Chinese;
    EXPECT_TRUE(text.endsWith(isFullWidth ? u'。' : u'.')) << text.toStdString();
    EXPECT_EQ(isFullWidth ? 0 : 1, text.count(". ")) << text.toStdString();
    EXPECT_EQ(0, text.count("。 ")) << text.toStdString();
}

TEST_P(LanguageTest, NoLetterIsGivenTwiceInTheWindow) {
    EXPECT_GE(altLetters(window()).size(), 25);
    EXPECT_EQ(QStringList(), givenTwice(altLetters(window())));
}

TEST_P(LanguageTest, EachCommandHasALetterAndNoneIsGivenTwiceInAMenu) {
    EXPECT_EQ(QStringList(), wrongMenuLetters(window()));
}

TEST_P(LanguageTest, ControlsAreCalledAsTheirCaptionsReadWithoutTheLetters) {
    for (const auto* label : window().findChildren<QLabel*>()) {
        if (const QWidget* field = label->buddy()) {
            const QString name = field->accessibleName();
            EXPECT_NE("", name) << label->text().toStdString();
            EXPECT_FALSE(name.contains(QRegularExpression("[&(:：]|\\s$"))) << name.toStdString();
            EXPECT_TRUE(label->text().remove('&').startsWith(name)) << name.toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguageTest, test::allLanguages(), test::languageName);

} // namespace
} // namespace velmora
