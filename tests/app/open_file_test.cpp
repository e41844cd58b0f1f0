// Which file the form edits: said above it, and by the bold row of the list.

#include "window_fixture.h"

#include "platform/file_path.h"
#include "support/bytes.h"

#include <QAbstractItemView>
#include <QFile>
#include <QLabel>
#include <QTest>

namespace velmora {
namespace {

using test::QuestionAnswerer;
using test::settle;
using test::taggedFile;
using test::text4;

class OpenFileTest : public test::WindowTest {
protected:
    QString label(const char* name) { return widget<QLabel>(name).text(); }
    /** The names in the list that are bold, from top to bottom. */
    QStringList boldNames() {
        const auto& model = controller().table().model();
        QStringList names;
        for (int row = 0; row < model.rowCount(); ++row) {
            const QModelIndex name = model.index(row, MediaTableModel::columnIndex(u"filename"));
            if (name.data(Qt::FontRole).value<QFont>().bold()) {
                names += name.data().toString();
            }
        }
        return names;
    }
    QString description(int row) {
        const auto& model = controller().table().model();
        return model.index(row, MediaTableModel::columnIndex(u"filename"))
            .data(Qt::AccessibleDescriptionRole)
            .toString();
    }
    void sortByName() { controller().table().tableViewDidClickTableColumn(1); }
};

TEST_F(OpenFileTest, IsNoneAtFirst) {
    EXPECT_EQ("No file is open", label("lbl_openFile"));
    EXPECT_EQ("", label("lbl_openFolder"));
    addFile("a.mp3", "x");
    EXPECT_EQ(QStringList(), boldNames());
}

TEST_F(OpenFileTest, IsNamedAboveTheForm) {
    openFile("harbour.mp3");
    EXPECT_EQ("harbour.mp3", label("lbl_openFile"));
    EXPECT_EQ(QString::fromStdString(folder_.path()), label("lbl_openFolder"));
    EXPECT_TRUE(widget<QLabel>("lbl_openFile").isVisible());
    EXPECT_EQ(path("harbour.mp3"), widget<QLabel>("lbl_openFile").toolTip());
    select(-1);
    EXPECT_EQ("No file is open", label("lbl_openFile"));
}

TEST_F(OpenFileTest, HasTheBoldRow) {
    openFile("a.mp3");
    openFile("b.mp3");
    EXPECT_EQ(QStringList{"b.mp3"}, boldNames());
    EXPECT_EQ("open in the form", description(1));
    EXPECT_EQ("", description(0));
    select(0);
    EXPECT_EQ(QStringList{"a.mp3"}, boldNames());
    select(-1);
    EXPECT_EQ(QStringList(), boldNames());
}

TEST_F(OpenFileTest, KeepsTheBoldRowWhenTheListIsSortedAndGrows) {
    openFile("b.mp3");
    addFile("c.mp3", "x");
    sortByName();
    addFile("a.mp3", "x");
    EXPECT_EQ(QStringList{"b.mp3"}, boldNames());
    sortByName();
    EXPECT_EQ(QStringList{"b.mp3"}, boldNames());
    EXPECT_EQ("b.mp3", label("lbl_openFile"));
}

TEST_F(OpenFileTest, IsToldInAListThatIsTurnedUpsideDown) {
    addFile("a.mp3", taggedFile(text4("TIT2", "A")));
    addFile("b.mp3", taggedFile(text4("TIT2", "B")));
    addFile("c.mp3", taggedFile(text4("TIT2", "C")));
    sortByName();
    sortByName();
    select(0); // shows c.mp3, and opens the mirrored row's file
    EXPECT_EQ("A", entry("entry_title").text());
    EXPECT_EQ("a.mp3", label("lbl_openFile"));
    EXPECT_EQ(QStringList{"a.mp3"}, boldNames());
}

TEST_F(OpenFileTest, IsOneRowOfAFileThatIsListedTwice) {
    addFile("a.mp3", taggedFile(text4("TIT2", "A")));
    ASSERT_TRUE(controller().addMediaFile(path("a.mp3")));
    select(1);
    EXPECT_EQ(1, boldNames().size());
    EXPECT_EQ("open in the form", description(1));
}

TEST_F(OpenFileTest, IsNoneAfterAFileThatCannotBeOpenedTookItsPlace) {
    openFile("a.mp3");
    addFile("b.mp3", "x");
    type("entry_title", "edited");
    ASSERT_TRUE(QFile::remove(path("b.mp3")));
    {
        const QuestionAnswerer answer(*document().window(), "Don't Save");
        select(1);
        ASSERT_TRUE(test::waitUntil([&] { return !document().mediaFile(); }));
    }
    const QuestionAnswerer answer(*document().window(), "OK");
    settle();
    EXPECT_EQ("edited", entry("entry_title").text());
    EXPECT_EQ("No file is open", label("lbl_openFile"));
    EXPECT_EQ(QStringList(), boldNames());
}

TEST_F(OpenFileTest, HasItsNameOnOneLine) {
    const std::string name = "a\nb.mp3";
    openFile(name);
    EXPECT_EQ("a b.mp3", label("lbl_openFile"));
}

TEST_F(OpenFileTest, FieldsSayThatNothingIsStoredWhileThereIsNone) {
    for (const char* name : {"entry_title", "entry_artist", "entry_album", "entry_year"}) {
        EXPECT_EQ("No file is open", entry(name).placeholderText()) << name;
    }
    auto& synopsis = widget<QPlainTextEdit>("entry_desc");
    EXPECT_EQ("No file is open: what is typed here goes nowhere", synopsis.placeholderText());
    openFile("a.mp4", text4("TALB", "Film"));
    EXPECT_EQ("", entry("entry_title").placeholderText());
    EXPECT_EQ("", synopsis.placeholderText());
    select(-1);
    EXPECT_EQ("No file is open", entry("entry_title").placeholderText());
}

TEST_F(OpenFileTest, SynopsisOfASongSaysThatItIsNotStoredButWithPortableTags) {
    openFile("a.mp3");
    auto& synopsis = widget<QPlainTextEdit>("entry_desc");
    EXPECT_EQ("Not stored in files of this kind", synopsis.placeholderText());
    document().setPortableTags(true);
    settle();
    EXPECT_EQ("", synopsis.placeholderText());
    document().setPortableTags(false);
    settle();
    EXPECT_EQ("Not stored in files of this kind", synopsis.placeholderText());
}

} // namespace
} // namespace velmora
