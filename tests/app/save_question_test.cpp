#include "window_fixture.h"

#include "platform/file_path.h"
#include "support/bytes.h"
#include "support/message_box.h"

#include <QAction>
#include <QPointer>
#include <QTableView>
#include <QTest>

#include <unistd.h>

namespace velmora {
namespace {

using test::hasButtonDown;
using test::QuestionAnswerer;
using test::settle;
using test::taggedFile;
using test::text4;
using test::waitUntil;

/** Two listed files; the first is open and its title was changed to "edited". */
class SaveQuestionTest : public test::WindowTest {
protected:
    SaveQuestionTest() {
        openFile("a.mp3");
        addFile("b.mp3", taggedFile(text4("TIT2", "B")));
        type("entry_title", "edited");
    }
    int selectedRow() {
        const auto rows = widget<QTableView>("tbl_mediaFiles").selectionModel()->selectedRows();
        return rows.isEmpty() ? -1 : rows.first().row();
    }
    std::string bytes() { return test::read_file(folder_ / "a.mp3"); }
    void selectAndWait(int row, const QuestionAnswerer& answer) {
        auto& table = widget<QTableView>("tbl_mediaFiles");
        row < 0 ? table.clearSelection() : table.selectRow(row);
        EXPECT_TRUE(waitUntil([&] { return answer.questions() > 0; }));
        settle();
    }
    const std::string original = taggedFile(text4("TIT2", "Z"));
};

TEST_F(SaveQuestionTest, NamesTheFileAndItsLoss) {
    const QuestionAnswerer answer(*document().window(), "Cancel");
    selectAndWait(1, answer);
    EXPECT_EQ("Do you want to save the changes you made?", answer.messageText());
    EXPECT_EQ("Your changes to \"" + path("a.mp3") + "\" will be lost if you don't save them.",
              answer.informativeText());
}

TEST_F(SaveQuestionTest, CancelKeepsEverythingAndSelectsTheOldRow) {
    const QuestionAnswerer answer(*document().window(), "Cancel");
    selectAndWait(1, answer);
    EXPECT_EQ(1, answer.questions());
    EXPECT_EQ(path("a.mp3"), file().filename());
    EXPECT_EQ("edited", entry("entry_title").text());
    EXPECT_TRUE(document().isDocumentEdited());
    EXPECT_EQ(0, selectedRow());
    EXPECT_EQ(original, bytes());
}

TEST_F(SaveQuestionTest, DontSaveOpensTheOtherFileWithoutWriting) {
    const QuestionAnswerer answer(*document().window(), "Don't Save");
    selectAndWait(1, answer);
    EXPECT_EQ(path("b.mp3"), file().filename());
    EXPECT_EQ("B", entry("entry_title").text());
    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_EQ(original, bytes());
}

TEST_F(SaveQuestionTest, SaveWritesAndThenOpensTheOtherFile) {
    const QuestionAnswerer answer(*document().window(), "Save");
    selectAndWait(1, answer);
    EXPECT_EQ(path("b.mp3"), file().filename());
    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_EQ(taggedFile(text4("TIT2", "edited")), bytes());
}

TEST_F(SaveQuestionTest, DeselectingAsksToo) {
    const QuestionAnswerer answer(*document().window(), "Cancel");
    selectAndWait(-1, answer);
    EXPECT_EQ(0, selectedRow());
    EXPECT_EQ("edited", entry("entry_title").text());
}

TEST_F(SaveQuestionTest, DeselectingAndNotSavingClosesTheFileAndEmptiesTheForm) {
    const QuestionAnswerer answer(*document().window(), "Don't Save");
    selectAndWait(-1, answer);
    EXPECT_EQ(nullptr, document().mediaFile());
    EXPECT_EQ("", entry("entry_title").text());
    EXPECT_EQ(original, bytes());
}

TEST_F(SaveQuestionTest, SaveFromTheMenuDoesNotSpareTheQuestion) {
    document().saveDocument();
    const QuestionAnswerer answer(*document().window(), "Don't Save");
    selectAndWait(1, answer);
    EXPECT_EQ(1, answer.questions());
}

TEST_F(SaveQuestionTest, CancelledOpenLeavesTheErrorUntouched) {
    const QuestionAnswerer answer(*document().window(), "Cancel");
    Error error;
    EXPECT_FALSE(document().readFromURL(fileUrlFromPath(path("b.mp3")), "mediafile", &error));
    EXPECT_TRUE(error.domain.isEmpty());
    EXPECT_TRUE(error.userInfo.isEmpty());
}

TEST_F(SaveQuestionTest, FailedSaveIsOnlyLoggedAndTheDocumentIsClosedAllTheSame) {
    test::write_file(folder_ / "a.mp3", test::fileTaggedInFront());
    const QuestionAnswerer answer(*document().window(), "Save");
    EXPECT_TRUE(document().handleDirtySave());
    EXPECT_EQ(nullptr, document().mediaFile());
    EXPECT_EQ(1, logged("error saving file: \n"));
}

TEST_F(SaveQuestionTest, AnyOtherEndGoesOnWithTheFileAndTheCountKept) {
    const QuestionAnswerer answer(*document().window(), QString());
    EXPECT_TRUE(document().handleDirtySave());
    EXPECT_EQ(path("a.mp3"), file().filename());
    EXPECT_TRUE(document().isDocumentEdited());
}

TEST_F(SaveQuestionTest, ComesBeforeTheAddressIsLookedAt) {
    const QuestionAnswerer answer(*document().window(), "Don't Save");
    Error error;
    EXPECT_FALSE(document().readFromURL(QUrl("http://localhost/b.mp3"), "mediafile", &error));
    EXPECT_EQ(1, answer.questions());
    EXPECT_EQ(nullptr, document().mediaFile());
    EXPECT_FALSE(error.userInfo.isEmpty());
}

TEST_F(SaveQuestionTest, TypingOnInTheListAnswersNothing) {
    addFile("video.mp3", taggedFile(text4("TIT2", "V")));
    bool stillAsked = false;
    bool done = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, document().window(), [&] {
        const QPointer<QMessageBox> question = document().window()->findChild<QMessageBox*>();
        if (!question || !question->isVisible()) {
            return;
        }
        look.stop();
        for (const Qt::Key key : {Qt::Key_D, Qt::Key_E, Qt::Key_O, Qt::Key_D}) {
            if (question) {
                QTest::keyClick(question->focusWidget(), key);
            }
            EXPECT_TRUE(waitUntil([&] { return !question || !hasButtonDown(*question); }));
        }
        stillAsked = question && question->isVisible();
        if (stillAsked) {
            QTest::keyClick(question.data(), Qt::Key_Escape);
        }
        done = true;
    });
    look.start(5);
    QTest::keyClick(&widget<QTableView>("tbl_mediaFiles"), Qt::Key_V);
    ASSERT_TRUE(waitUntil([&] { return done; }));
    settle();
    EXPECT_TRUE(stillAsked);
    EXPECT_EQ(path("a.mp3"), file().filename());
    EXPECT_EQ("edited", file().title());
    EXPECT_TRUE(document().isDocumentEdited());
}

TEST_F(SaveQuestionTest, IsNotAskedASecondTimeWhileItIsOnTheScreen) {
    int boxes = 0;
    bool closed = true;
    QTimer::singleShot(20, document().window(), [&] {
        document().window()->findChild<QAction*>("action_quit")->trigger();
        closed = document().readFromURL(std::nullopt, QString(), nullptr);
        const auto all = document().window()->findChildren<QMessageBox*>();
        boxes = static_cast<int>(all.size());
        QTest::keyClick(all.first(), Qt::Key_Escape);
    });
    EXPECT_FALSE(document().handleDirtySave());
    EXPECT_EQ(1, boxes);
    EXPECT_FALSE(closed);
    EXPECT_FALSE(termination_.isTerminating());
    EXPECT_EQ("edited", file().title());
}

TEST_F(SaveQuestionTest, OtherFileThatHasVanishedLeavesTheFormAsItIsWithNoFileBehindIt) {
    ASSERT_EQ(0, ::unlink((folder_ / "b.mp3").c_str()));
    const QuestionAnswerer answer(*document().window(), "Don't Save");
    Error error;
    EXPECT_FALSE(document().readFromURL(fileUrlFromPath(path("b.mp3")), "mediafile", &error));
    EXPECT_EQ("The file does not exist.",
              error.userInfo.value(NSLocalizedRecoverySuggestionErrorKey).toString());
    EXPECT_EQ(nullptr, document().mediaFile());
    EXPECT_EQ("edited", entry("entry_title").text());
    EXPECT_TRUE(enabled("btn_saveTag"));
    type("entry_title", "more");
    button("btn_saveTag").click();
    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_EQ(original, bytes());
}

TEST_F(SaveQuestionTest, OffersItsButtonsInOrderWithTheirKeys) {
    QStringList titles;
    QList<QKeySequence> shortcuts;
    bool returnIsSave = false;
    bool escapeIsCancel = false;
    QTimer::singleShot(20, document().window(), [&] {
        auto* box = document().window()->findChild<QMessageBox*>();
        QMap<int, QPushButton*> byOrder;
        for (auto* candidate : box->findChildren<QPushButton*>()) {
            byOrder[candidate->property("orderOfAdding").toInt()] = candidate;
        }
        for (auto* candidate : byOrder) {
            titles += candidate->text();
            shortcuts += candidate->shortcut();
        }
        returnIsSave = box->defaultButton() == byOrder[0];
        escapeIsCancel = box->escapeButton() == byOrder[1];
        byOrder[1]->click();
    });
    EXPECT_FALSE(document().handleDirtySave());
    EXPECT_EQ((QStringList{"Save", "Cancel", "Don't Save"}), titles);
    EXPECT_EQ(QKeySequence(Qt::CTRL | Qt::Key_D), shortcuts.value(2));
    EXPECT_TRUE(returnIsSave);
    EXPECT_TRUE(escapeIsCancel);
}

} // namespace
} // namespace velmora
