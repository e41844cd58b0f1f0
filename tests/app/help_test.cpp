// The Help menu: its windows, what is in them, and how they are reached and left by the keyboard.

#include "window_fixture.h"

#include "app/guide_window.h"
#include "app/keyboard_window.h"
#include "support/bytes.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMenuBar>
#include <QRegularExpression>
#include <QScrollBar>
#include <QShortcut>
#include <QTableWidget>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>

#include <algorithm>
#include <filesystem>

namespace velmora {
namespace {

using test::settle;

class HelpTest : public test::WindowTest {
protected:
    HelpTest() { QApplication::setActiveWindow(document().window()); }

    void choose(const char* action) {
        document().window()->findChild<QAction*>(QLatin1String(action))->trigger();
        settle();
    }
    QTextBrowser& guide() {
        choose("action_userGuide");
        return widget<QTextBrowser>("text_guide");
    }
    QTableWidget& keys() {
        choose("action_keyboard");
        return widget<QTableWidget>("tbl_keys");
    }
    static QStringList headings(const QTextBrowser& page) {
        QStringList found;
        for (QTextBlock block = page.document()->begin(); block.isValid(); block = block.next()) {
            if (block.blockFormat().headingLevel() > 0) {
                found += block.text();
            }
        }
        return found;
    }
    /** The names of the pictures in PAGE. */
    static QStringList imagesOf(const QTextBrowser& page) {
        QStringList names;
        for (QTextBlock block = page.document()->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                if (part.fragment().charFormat().isImageFormat()) {
                    names += part.fragment().charFormat().toImageFormat().name();
                }
            }
        }
        return names;
    }
};

TEST_F(HelpTest, GuideOpensWithItsTextAndPictures) {
    const QTextBrowser& page = guide();
    EXPECT_EQ("User guide", headings(page).value(0));
    EXPECT_TRUE(headings(page).contains("The first five minutes"));
    EXPECT_TRUE(headings(page).contains("Every key"));
    const QStringList images = imagesOf(page);
    EXPECT_GE(images.size(), 9) << "each part has one";
    int widest = 0;
    for (const QString& name : images) {
        const auto image =
            page.document()->resource(QTextDocument::ImageResource, QUrl(name)).value<QImage>();
        EXPECT_FALSE(image.isNull()) << name.toStdString();
        widest = std::max(widest, qRound(image.width() / image.devicePixelRatio()));
    }
    EXPECT_EQ(760, widest) << "no wider than the text";
}

TEST_F(HelpTest, F1OpensTheGuideOnceAndEscapeClosesIt) {
    for (int i = 0; i < 2; ++i) {
        QApplication::setActiveWindow(document().window());
        QTest::keyClick(&widget<QWidget>("tbl_mediaFiles"), Qt::Key_F1);
        settle();
        EXPECT_EQ(1, document().window()->findChildren<GuideWindow*>().size());
    }
    auto& page = widget<QTextBrowser>("text_guide");
    EXPECT_TRUE(page.isVisible());
    QApplication::setActiveWindow(page.window());
    QTest::keyClick(&page, Qt::Key_Escape);
    settle();
    EXPECT_EQ(0, document().window()->findChildren<GuideWindow*>().size());
}

TEST_F(HelpTest, GuideGoesToAHeadingFromItsBox) {
    QTextBrowser& page = guide();
    auto& box = *page.window()->findChild<QComboBox*>();
    const int index = box.findText("Every key");
    ASSERT_GT(index, 0);
    emit box.activated(index);
    EXPECT_EQ("Every key", page.textCursor().block().text());
    EXPECT_GT(page.verticalScrollBar()->value(), 0);
}

TEST_F(HelpTest, GuideFindsWordsGoesRoundAndSaysWhenThereAreNone) {
    QTextBrowser& page = guide();
    auto* const words = page.window()->findChild<QLineEdit*>();
    words->setText("hard links");
    QTest::keyClick(words, Qt::Key_Return);
    EXPECT_EQ("hard links", page.textCursor().selectedText());
    const int first = page.textCursor().position();
    QTest::keyClick(words, Qt::Key_Return);
    EXPECT_EQ("hard links", page.textCursor().selectedText()) << "round, if there is but one";
    words->setText("no such words are there");
    QTest::keyClick(words, Qt::Key_Return);
    EXPECT_GE(page.textCursor().position(), first);
    const auto labels = page.window()->findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(),
                            [](const QLabel* label) { return label->text() == "Not found"; }));
}

TEST_F(HelpTest, LinksOfTheGuideLeadToPagesBesideItAndNowhereElse) {
    QTextBrowser& page = guide();
    emit page.anchorClicked(QUrl("deliberate.md"));
    EXPECT_TRUE(page.source().path().endsWith("deliberate.md"));
    emit page.anchorClicked(QUrl("user-guide.md#portable-tags"));
    EXPECT_TRUE(page.source().path().endsWith("user-guide.md"));
    EXPECT_EQ("Portable tags", page.textCursor().block().text());
    const QUrl before = page.source();
    emit page.anchorClicked(QUrl("https://www.example.org/"));
    emit page.anchorClicked(QUrl("missing.md"));
    EXPECT_EQ(before, page.source());
}

TEST(GuideFileTest, IsFoundWhereAnInstallationPutsIt) {
    const test::ScratchFolder folder;
    std::filesystem::create_directories(folder / "usr/bin");
    std::filesystem::create_directories(folder / "usr/share/velmora/guide");
    const QString programs = QString::fromStdString(folder / "usr/bin");
    EXPECT_EQ("", guideFile(programs));
    test::write_file(folder / "usr/share/velmora/guide/user-guide.md", "# Guide\n");
    EXPECT_EQ(QString::fromStdString(folder / "usr/share/velmora/guide/user-guide.md"), guideFile(programs));
}

TEST(GuideFileTest, WindowSaysThatTheGuideIsMissing) {
    const GuideWindow window{QString()};
    EXPECT_EQ("The user guide is not installed.", window.findChild<QTextBrowser*>()->toPlainText());
}

TEST_F(HelpTest, KeyboardListsEveryKeyOfTheWindow) {
    QStringList listed;
    for (int row = 0; row < keys().rowCount(); ++row) {
        listed += keys().item(row, 0)->text();
        EXPECT_NE("", keys().item(row, 1)->text()) << listed.last().toStdString();
    }
    QList<QKeySequence> all;
    QWidget* const window = document().window();
    for (const QAction* action : window->findChildren<QAction*>(QRegularExpression("^action_"))) {
        all += action->shortcuts();
    }
    for (const QShortcut* shortcut : window->findChildren<QShortcut*>()) {
        if (qobject_cast<QWidget*>(shortcut->parent())->window() == window) {
            all += shortcut->key();
        }
    }
    for (const QAbstractButton* control : window->findChildren<QAbstractButton*>()) {
        if (control->window() == window && !control->shortcut().isEmpty()) {
            all += control->shortcut();
        }
    }
    EXPECT_GT(all.size(), 20);
    for (const QKeySequence& key : all) {
        EXPECT_TRUE(listed.contains(key.toString(QKeySequence::NativeText))) << key.toString().toStdString();
    }
    EXPECT_TRUE(listed.contains("Alt+T")) << "a field's letter";
    EXPECT_TRUE(listed.contains("Alt+F")) << "a menu's letter";
}

TEST_F(HelpTest, F10GoesToTheMenus) {
    document().showWindow();
    QApplication::setActiveWindow(document().window());
    settle();
    const auto& menus = widget<QMenuBar>("menubar");
    EXPECT_EQ(nullptr, menus.activeAction());
    entry("entry_title").setFocus();
    QTest::keyClick(&entry("entry_title"), Qt::Key_F10);
    EXPECT_EQ(widget<QMenu>("menu_file").menuAction(), menus.activeAction());
    QTest::keyClick(&widget<QMenu>("menu_file"), Qt::Key_Right);
    EXPECT_EQ(widget<QMenu>("menu_edit").menuAction(), menus.activeAction());
}

TEST_F(HelpTest, KeyboardSaysWhatEachKeyDoes) {
    QTableWidget& table = keys();
    const auto use = [&table](const QString& key) {
        const auto found = table.findItems(key, Qt::MatchExactly);
        return found.isEmpty() ? QString() : table.item(found[0]->row(), 1)->text();
    };
    EXPECT_EQ("Add Files", use("Ctrl+O"));
    EXPECT_EQ("Title", use("Alt+T"));
    EXPECT_EQ("File menu", use("Alt+F"));
    EXPECT_EQ("The control before", use("Shift+Tab"));
    QTest::keyClick(&table, Qt::Key_Escape);
    settle();
    EXPECT_EQ(0, document().window()->findChildren<KeyboardWindow*>().size());
}

TEST_F(HelpTest, GuideNamesEveryKeyOfTheMenus) {
    QTextBrowser& page = guide();
    const QString text = page.toPlainText();
    const QString keys = text.mid(text.lastIndexOf("Every key"));
    for (const QAction* action :
         document().window()->findChildren<QAction*>(QRegularExpression("^action_"))) {
        for (const QKeySequence& key : action->shortcuts()) {
            EXPECT_TRUE(keys.contains(
                QRegularExpression("(^|[^+])" + QRegularExpression::escape(key.toString()) + "\\b",
                                   QRegularExpression::MultilineOption)))
                << key.toString().toStdString();
        }
    }
}

TEST_F(HelpTest, AboutTellsVersionLicenceAndWhatItIsBuiltOn) {
    choose("action_about");
    const auto& text = widget<QLabel>("lbl_about");
    EXPECT_TRUE(text.text().contains(
        QRegularExpression("^Velmora \\d+\\.\\d+\\.\\d+$", QRegularExpression::MultilineOption)));
    for (const char* part : {"MIT licence", "Qt 6.", "TagLib", "GStreamer", "libjpeg", "libpng"}) {
        EXPECT_TRUE(text.text().contains(QLatin1String(part))) << part;
    }
    EXPECT_EQ(text.text(), text.accessibleName());
    EXPECT_TRUE(text.textInteractionFlags() & Qt::TextSelectableByKeyboard);
}

TEST_F(HelpTest, EveryControlOfTheWindowsHasANameAndATip) {
    for (const char* action : {"action_userGuide", "action_keyboard", "action_about"}) {
        choose(action);
    }
    int controls = 0;
    for (const char* name : {"window_guide", "window_keyboard", "window_about"}) {
        for (const QWidget* control : widget<QWidget>(name).findChildren<QWidget*>()) {
            const bool isPart = control->parentWidget()->inherits("QComboBox") ||
                                control->parentWidget()->inherits("QAbstractItemView");
            if ((control->focusPolicy() & Qt::TabFocus) && control->isVisible() && !isPart) {
                ++controls;
                EXPECT_NE("", control->accessibleName()) << control->metaObject()->className();
                EXPECT_NE("", control->toolTip()) << control->metaObject()->className();
            }
        }
    }
    EXPECT_GE(controls, 7);
}

} // namespace
} // namespace velmora
