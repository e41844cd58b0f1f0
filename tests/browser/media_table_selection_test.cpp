#include "media_table_fixture.h"

namespace velmora {
namespace {

using Answer = test::FakeMediaDocument::Answer;
using test::makeRow;
using test::MediaTableTest;
using test::nameColumn;
using test::settle;

TEST_F(MediaTableTest, SelectedRowsFileIsOpenedAndShown) {
    addAll({"a", "b"});
    select(1);
    EXPECT_EQ(QStringList{"/media/b"}, document_.requests);
    EXPECT_EQ(QStringList{"mediafile"}, document_.types);
    EXPECT_TRUE(document_.hadErrorSlot);
    EXPECT_EQ((QStringList{"clear", "fill"}), events_);
    EXPECT_EQ(1, table_->curSelectedRow());
}

TEST_F(MediaTableTest, RowIsRememberedOnlyAfterTheFormWasFilled) {
    QList<int> remembered;
    table_ = std::make_unique<MediaTable>(view_, document_,
                                          MediaTable::Form{[&] { remembered += table_->curSelectedRow(); },
                                                           [&] { remembered += table_->curSelectedRow(); },
                                                           [](const Error&) {}});
    addAll({"a", "b"});
    select(1);
    EXPECT_EQ((QList<int>{-1, -1}), remembered);
    EXPECT_EQ(1, table_->curSelectedRow());
}

TEST_F(MediaTableTest, ErrorSlotIsClearBeforeEachOpen) {
    addAll({"a", "b"});
    document_.answer = Answer::Fail;
    select(0);
    select(1);
    EXPECT_TRUE(document_.errorWasClear);
}

TEST_F(MediaTableTest, RememberedRowIsNotOpenedAgain) {
    addAll({"a", "b"});
    select(1);
    table_->tableViewSelectionDidChange();
    EXPECT_EQ(1, document_.requests.size());
}

TEST_F(MediaTableTest, HandlerWithoutASelectionAndAFileDoesNothing) {
    addAll({"a"});
    table_->tableViewSelectionDidChange();
    EXPECT_EQ(QStringList(), document_.requests);
    EXPECT_EQ(QStringList(), events_);
}

TEST_F(MediaTableTest, DeselectingClosesTheFileAndClearsTheForm) {
    addAll({"a"});
    select(0);
    events_.clear();
    deselect();
    EXPECT_EQ((QStringList{"/media/a", "close"}), document_.requests);
    EXPECT_EQ("", document_.types.last());
    EXPECT_FALSE(document_.hadErrorSlot);
    EXPECT_EQ(QStringList{"clear"}, events_);
    EXPECT_EQ(-1, table_->curSelectedRow());
}

TEST_F(MediaTableTest, RowIsForgottenBeforeTheFormIsCleared) {
    int remembered = 99;
    table_ = std::make_unique<MediaTable>(
        view_, document_,
        MediaTable::Form{[&] { remembered = table_->curSelectedRow(); }, [] {}, [](const Error&) {}});
    addAll({"a"});
    select(0);
    deselect();
    EXPECT_EQ(-1, remembered);
}

TEST_F(MediaTableTest, RefusedClosingSelectsTheRowAgain) {
    addAll({"a", "b"});
    select(1);
    events_.clear();
    document_.answer = Answer::Cancel;
    deselect();
    EXPECT_EQ(1, selectedRow());
    EXPECT_EQ(1, table_->curSelectedRow());
    EXPECT_EQ(QStringList(), events_);
    EXPECT_EQ((QStringList{"/media/b", "close"}), document_.requests);
}

TEST_F(MediaTableTest, RefusedOpeningSelectsTheOldRowAgainSilently) {
    addAll({"a", "b"});
    select(0);
    events_.clear();
    document_.answer = Answer::Cancel;
    select(1);
    EXPECT_EQ(0, selectedRow());
    EXPECT_EQ(0, table_->curSelectedRow());
    EXPECT_EQ(QStringList(), events_);
    EXPECT_EQ((QStringList{"/media/a", "/media/b"}), document_.requests);
}

TEST_F(MediaTableTest, FailedOpeningShowsItsErrorAndSelectsTheOldRowAgain) {
    addAll({"a", "b"});
    select(0);
    events_.clear();
    document_.answer = Answer::Fail;
    select(1);
    EXPECT_EQ(QStringList{"no"}, events_);
    EXPECT_EQ(0, selectedRow());
    EXPECT_EQ(0, table_->curSelectedRow());
    EXPECT_EQ(2, document_.requests.size());
}

TEST_F(MediaTableTest, ErrorIsShownBeforeTheSelectionIsRestored) {
    int selectedAtError = -2;
    table_ = std::make_unique<MediaTable>(
        view_, document_,
        MediaTable::Form{[] {}, [] {}, [&](const Error&) { selectedAtError = selectedRow(); }});
    addAll({"a", "b"});
    document_.answer = Answer::Fail;
    select(1);
    EXPECT_EQ(1, selectedAtError);
    EXPECT_EQ(-1, selectedRow());
}

TEST_F(MediaTableTest, ErrorOfAnyContentIsShown) {
    addAll({"a"});
    document_.answer = Answer::Fail;
    for (const Error& error :
         {Error{QStringLiteral("domain"), 0, {}}, Error{QString(), 5, {}}, Error{QString(), 0, {{"k", 1}}}}) {
        document_.failure = error;
        events_.clear();
        select(0);
        EXPECT_EQ(1, events_.size());
    }
}

TEST_F(MediaTableTest, FailedFirstOpeningLeavesNothingSelected) {
    addAll({"a"});
    document_.answer = Answer::Fail;
    select(0);
    EXPECT_EQ(-1, selectedRow());
    EXPECT_EQ(-1, table_->curSelectedRow());
    EXPECT_EQ(QStringList{"/media/a"}, document_.requests);
}

TEST_F(MediaTableTest, RowWithoutAPathIsNotOpenedAndTheOldRowIsSelectedAgain) {
    addAll({"a"});
    table_->addColdataSorted(std::make_shared<const coldata>());
    table_->reloadData();
    select(0);
    events_.clear();
    select(1);
    EXPECT_EQ(QStringList{"/media/a"}, document_.requests);
    EXPECT_EQ(QStringList(), events_);
    EXPECT_EQ(0, selectedRow());
}

TEST_F(MediaTableTest, DescendingDisplayOpensTheMirroredRowsFile) {
    addAll({"a", "b", "c"});
    clickHeader(nameColumn);
    clickHeader(nameColumn);
    ASSERT_EQ((QStringList{"c", "b", "a"}), shownNames());
    select(0);
    EXPECT_EQ(QStringList{"/media/a"}, document_.requests);
    EXPECT_EQ(0, table_->curSelectedRow());
}

TEST_F(MediaTableTest, SortingTurningAndInsertingOpenNothingAndKeepTheRow) {
    addAll({"b", "c"});
    select(1);
    document_.requests.clear();
    clickHeader(nameColumn);
    add("a");
    settle();
    clickHeader(nameColumn);
    EXPECT_EQ(QStringList(), document_.requests);
    EXPECT_EQ(1, table_->curSelectedRow());
    EXPECT_EQ(1, selectedRow());
    EXPECT_EQ(1, view_.currentIndex().row());
}

TEST_F(MediaTableTest, InsertingAboveTheSelectedRowKeepsTheSelectedIndex) {
    clickHeader(nameColumn);
    addAll({"m"});
    select(0);
    document_.requests.clear();
    addAll({"a", "b", "c"});
    settle();
    EXPECT_EQ(0, selectedRow());
    EXPECT_EQ("a", shownNames().at(0));
    EXPECT_EQ(QStringList(), document_.requests);
    select(1);
    EXPECT_EQ(QStringList{"/media/b"}, document_.requests);
}

TEST_F(MediaTableTest, ForgottenRowIsOpenedAgainByTheNextCall) {
    addAll({"a", "b"});
    select(1);
    table_->forgetSelectedRow();
    EXPECT_EQ(-1, table_->curSelectedRow());
    table_->tableViewSelectionDidChange();
    EXPECT_EQ((QStringList{"/media/b", "/media/b"}), document_.requests);
    EXPECT_EQ(1, table_->curSelectedRow());
}

TEST_F(MediaTableTest, ForgottenRowWithoutASelectionOpensNothing) {
    addAll({"a"});
    table_->forgetSelectedRow();
    table_->tableViewSelectionDidChange();
    EXPECT_EQ(QStringList(), document_.requests);
}

TEST_F(MediaTableTest, FailedOpeningOfAForgottenRowDeselectsIt) {
    addAll({"a"});
    select(0);
    table_->forgetSelectedRow();
    document_.answer = Answer::Fail;
    table_->tableViewSelectionDidChange();
    EXPECT_EQ(-1, selectedRow());
    EXPECT_EQ(-1, table_->curSelectedRow());
}

TEST_F(MediaTableTest, PathsOfAnyBytesAreOpenedByteForByte) {
    const QByteArray path = "/f\xE4/<b>caf\xE9\n#1?100%41.mp3";
    coldata row = *makeRow("x");
    row.fullpath = pathFromBytes(path);
    table_->addColdataSorted(std::make_shared<const coldata>(row));
    table_->reloadData();
    select(0);
    ASSERT_EQ(1, document_.requests.size());
    EXPECT_EQ(path, pathBytes(document_.requests[0]));
}

} // namespace
} // namespace velmora
