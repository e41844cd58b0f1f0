// An album of mixed tags, edited as a whole with the keyboard; mutagen reads it as other programs do.

#include "tagged_songs.h"

#include "library/detail/names_dialog.h"
#include "library/library_window.h"
#include "support/command.h"
#include "support/pictures.h"
#include "support/waiting.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace velmora {
namespace {

using test::shell_word;
using test::song;
using test::text4;
using test::waitUntil;
using test::written;

constexpr int songs = 12;

/** A song whose tag is of another sort than its neighbours': none, ID3v2.2, 2.3, 2.4, 2.4
   behind the frames, ID3v1. */
std::string mixedSong(int index) {
    const std::string title = "Old " + std::to_string(index);
    const std::string latin1 = std::string(1, '\0') + title;
    switch (index % 6) {
    case 0:
        return test::silentFrames();
    case 1:
        return test::leading_tag(2, "TT2" + test::hex("0000") + static_cast<char>(latin1.size()) + latin1) +
               test::silentFrames();
    case 2:
        return test::leading_tag(3, test::frame3("TIT2", latin1) +
                                        test::frame3("TYER", std::string(1, '\0') + "1971")) +
               test::silentFrames();
    case 3:
        return song(text4("TIT2", title) + text4("TDRC", "1972") + test::cover4("\xFF\xD8\xFF\xE0old"));
    case 4:
        return test::silentFrames() + test::appended_tag(text4("TIT2", title));
    default:
        return test::silentFrames() + "TAG" + title + std::string(124 - title.size(), '\0') + '\x11';
    }
}

class AlbumTest : public testing::Test {
protected:
    AlbumTest() {
        for (int i = 0; i < songs; ++i) {
            const std::string bytes = mixedSong(i);
            window_.model().addFile(written(folder_, name(i), bytes), bytes.size());
        }
        window_.present();
        QApplication::setActiveWindow(&window_);
        EXPECT_TRUE(waitUntil([this] { return window_.model().rowCount() == songs && isRead(); }));
    }

    static std::string name(int index) { return "track " + std::to_string(index) + ".mp3"; }
    [[nodiscard]] bool isRead() { return window_.model().unread() == 0; }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &window_, key, modifiers);
    }
    void typeInto(const char* field, const QString& text) {
        auto* const found = window_.findChild<QWidget*>(QLatin1String(field));
        ASSERT_NE(nullptr, found);
        for (int i = 0; i < 40 && QApplication::focusWidget() != found; ++i) {
            press(Qt::Key_Tab);
        }
        ASSERT_EQ(found, QApplication::focusWidget()) << field << " is not reached by the Tab key";
        QTest::keyClicks(found, text);
    }
    /** Opens the dialog of names by KEY, types PATTERN into it and accepts that. */
    void answerNames(Qt::Key key, const QString& pattern) {
        press(key, Qt::ControlModifier | Qt::ShiftModifier);
        auto* const dialog = window_.findChild<NamesDialog*>();
        ASSERT_NE(nullptr, dialog);
        QApplication::setActiveWindow(dialog);
        press(Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), pattern);
        press(Qt::Key_Return);
        EXPECT_FALSE(dialog->isVisible());
        // No event loop of the test's own would delete it.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::setActiveWindow(&window_);
    }
    /** The dialog's summary once the work has ended. */
    QString summaryOfRun() {
        EXPECT_TRUE(waitUntil([this] { return !window_.isWriting(); }));
        auto* const dialog = window_.findChild<ApplyDialog*>();
        const QString text = dialog->findChild<QLabel*>("lbl_applied")->text();
        QTest::keyClick(dialog, Qt::Key_Escape);
        EXPECT_TRUE(waitUntil([&] { return !dialog->isVisible() && isRead(); }));
        return text;
    }
    /** What mutagen says of all files, in the order of their names. */
    std::string readByOthers() { return test::run_command(READ_ALBUM + shell_word(folder_.path())); }

    test::ScratchFolder folder_;
    LibraryWindow window_;
};

TEST_F(AlbumTest, IsTaggedAsAWholeAndTakenBack) {
    const std::string before = readByOthers();
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_TRUE(waitUntil([this] { return window_.findChild<QLineEdit*>("entry_titles")->isEnabled(); }));
    EXPECT_EQ("several values", window_.findChild<QLineEdit*>("entry_titles")->placeholderText());
    typeInto("entry_artists", "Ann & Ben");
    typeInto("entry_albums", "Tides");
    typeInto("entry_years", "1994");
    auto* const cover = window_.findChild<QWidget*>("img_covers");
    for (int i = 0; i < 40 && QApplication::focusWidget() != cover; ++i) {
        press(Qt::Key_Tab);
    }
    ASSERT_EQ(cover, QApplication::focusWidget());
    QApplication::clipboard()->setImage(test::plain({40, 40}));
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(static_cast<std::size_t>(songs), window_.model().rows().editedCount());
    answerNames(Qt::Key_T, "track %title%");
    answerNames(Qt::Key_N, "%album% %title%");
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ("12 done · 0 unchanged · 0 failed", summaryOfRun());

    const std::string after = readByOthers();
    EXPECT_EQ(songs, std::count(after.begin(), after.end(), '\n'));
    std::set<std::string> covers;
    for (int i = 0; i < songs; ++i) {
        const std::string number = std::to_string(i);
        const std::string line = "Tides " + number + ".mp3 " + number + " Ann & Ben Tides 1994 ";
        const std::size_t at = after.find(line);
        ASSERT_NE(std::string::npos, at) << line << " in\n" << after;
        covers.insert(after.substr(at + line.size(), after.find('\n', at) - at - line.size()));
    }
    // The same cover in all of them, and not the one from before.
    ASSERT_EQ(1U, covers.size()) << after;
    EXPECT_EQ(32U, covers.begin()->size());
    EXPECT_EQ(std::string::npos, before.find(*covers.begin()));

    QApplication::setActiveWindow(&window_);
    for (int i = 0; i < songs; ++i) {
        EXPECT_EQ("Tides " + std::to_string(i) + ".mp3",
                  window_.model().rows().text(i, LibraryColumn::name).toStdString());
    }
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ("12 done · 0 unchanged · 0 failed", summaryOfRun());
    for (int i = 0; i < songs; ++i) {
        EXPECT_TRUE(std::filesystem::exists(folder_ / name(i))) << name(i);
        EXPECT_EQ(i % 6 == 0 ? "" : "Old " + std::to_string(i),
                  window_.model().rows().text(i, LibraryColumn::title).toStdString());
        EXPECT_EQ("", window_.model().rows().text(i, LibraryColumn::artist).toStdString());
    }
    EXPECT_EQ("1972", window_.model().rows().text(3, LibraryColumn::year).toStdString());
    EXPECT_EQ(0U, window_.undoCount());
    EXPECT_NE(before, after);
    EXPECT_EQ(before, readByOthers());
}

} // namespace
} // namespace velmora
