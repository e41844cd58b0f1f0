// The window in each language that the program has a table for: nothing is cut off on a small screen, no
// letter is given twice, controls are called as they read, and the toolkit speaks the same language. Leaves
// pictures in the folder "screenshots" of the build.

#include "window_fixture.h"

#include "imaging/CoverArtView.h"
#include "platform/localisation.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QTranslator>

namespace velmora {
namespace {

using test::text4;

/** A language, and what a word of its own and of the toolkit's is in it. */
struct Language {
    QLocale::Language language;
    const char* save;   ///< of the program
    const char* cancel; ///< of the toolkit
};

void PrintTo(const Language& language, std::ostream* stream) {
    *stream << QLocale::languageToCode(language.language).toStdString();
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

private:
    QLocale former_;
};

class LanguageTest : public Speaking, public test::WindowTest {
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
        const QString code = QLocale::languageToCode(GetParam().language);
        EXPECT_TRUE(window().grab().save(QStringLiteral("screenshots/%1-%2.png").arg(name, code)));
    }
    /** Texts that have less room than they need. */
    QStringList cutTexts() {
        QStringList cut;
        for (const auto* button : window().findChildren<QPushButton*>()) {
            if (button->isVisible() && button->width() < button->minimumSizeHint().width()) {
                cut += button->text();
            }
        }
        for (const auto* label : window().findChildren<QLabel*>()) {
            const bool giveWay = label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
            if (label->isVisible() && label->wordWrap() &&
                label->height() < label->heightForWidth(label->width())) {
                cut += label->text();
            } else if (label->isVisible() && !label->wordWrap() && !giveWay &&
                       label->width() < label->sizeHint().width()) {
                cut += label->text();
            }
        }
        return cut;
    }
    /** The controls and texts that reach beyond the window or have nothing to be seen. */
    QStringList hiddenControls() {
        QStringList hidden;
        for (const auto* control : window().findChildren<QWidget*>()) {
            const bool counts =
                qobject_cast<const QAbstractButton*>(control) || qobject_cast<const QLabel*>(control);
            const QRect place(control->mapTo(&window(), QPoint()), control->size());
            if (counts && control->isVisible() && !window().rect().contains(place)) {
                hidden += control->objectName();
            }
        }
        return hidden;
    }
    /** The window's letters for the Alt key, once for each thing that has them. */
    QStringList letters() {
        QStringList all;
        const auto add = [&all](const QKeySequence& keys) {
            if (keys.count() == 1 && keys[0].keyboardModifiers() == Qt::AltModifier) {
                all += keys.toString();
            }
        };
        for (const auto* button : window().findChildren<QAbstractButton*>()) {
            add(button->shortcut());
        }
        for (const auto* label : window().findChildren<QLabel*>()) {
            add(label->buddy() ? QKeySequence::mnemonic(label->text()) : QKeySequence());
        }
        for (const auto* shortcut : window().findChildren<QShortcut*>()) {
            add(shortcut->key());
        }
        for (const QAction* menu : document().window()->menuBar()->actions()) {
            add(QKeySequence::mnemonic(menu->text()));
        }
        return all;
    }
    static QStringList givenTwice(QStringList all) {
        QStringList twice;
        all.sort();
        for (qsizetype i = 1; i < all.size(); ++i) {
            if (all[i] == all[i - 1]) {
                twice += all[i];
            }
        }
        return twice;
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
        EXPECT_EQ(QStringList(), cutTexts()) << name;
        EXPECT_EQ(QStringList(), hiddenControls()) << name;
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
    EXPECT_EQ(QStringList(), cutTexts());
    keepPicture("notice");
}

TEST_P(LanguageTest, NoLetterIsGivenTwiceInTheWindow) {
    EXPECT_GE(letters().size(), 25);
    EXPECT_EQ(QStringList(), givenTwice(letters()));
}

TEST_P(LanguageTest, NoLetterIsGivenTwiceInAMenu) {
    for (const QAction* title : document().window()->menuBar()->actions()) {
        QStringList all;
        for (const QAction* command : title->menu()->actions()) {
            if (!command->isSeparator()) {
                const QKeySequence letter = QKeySequence::mnemonic(command->text());
                EXPECT_FALSE(letter.isEmpty()) << command->text().toStdString();
                all += letter.toString();
            }
        }
        EXPECT_EQ(QStringList(), givenTwice(all)) << title->text().toStdString();
    }
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

INSTANTIATE_TEST_SUITE_P(Languages, LanguageTest,
                         testing::Values(Language{QLocale::English, "Save", "Cancel"},
                                         Language{QLocale::German, "Speichern", "Abbrechen"},
                                         Language{QLocale::French, "Enregistrer", "Annuler"},
                                         Language{QLocale::Spanish, "Guardar", "Cancelar"},
                                         Language{QLocale::Italian, "Salva", "Annulla"},
                                         Language{QLocale::Japanese, "保存", "キャンセル"},
                                         Language{QLocale::Chinese, "保存", "取消"}),
                         [](const auto& language) {
                             return QLocale::languageToCode(language.param.language).toStdString();
                         });

} // namespace
} // namespace velmora
