#include "platform/open_panel.h"

#include "support/bytes.h"
#include "support/scratch_folder.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFileDialog>
#include <QListView>
#include <QMainWindow>
#include <QTest>

#include <gtest/gtest.h>

#include <optional>

namespace velmora {
namespace {

class OpenPanelTest : public testing::Test {
protected:
    void begin(const OpenPanel& panel) {
        window_.show();
        beginOpenPanelSheet(panel, &window_, [this](int code, const QStringList& paths) {
            code_ = code;
            paths_ = paths;
        });
        dialog_ = window_.findChild<QFileDialog*>();
        ASSERT_NE(nullptr, dialog_);
    }

    QMainWindow window_;
    QFileDialog* dialog_ = nullptr;
    std::optional<int> code_;
    QStringList paths_;
};

TEST_F(OpenPanelTest, FilesPanelTakesSeveralFiles) {
    begin({.title = "x", .allowsMultipleSelection = true});
    EXPECT_EQ(QFileDialog::ExistingFiles, dialog_->fileMode());
    EXPECT_TRUE(dialog_->nameFilters().isEmpty() || dialog_->nameFilters().first().contains("*"));
}

TEST_F(OpenPanelTest, SingleFilePanelTakesOneFileAndStartsInItsFolder) {
    const test::ScratchFolder folder;
    begin({.title = "x", .startFolder = QString::fromStdString(folder.path())});
    EXPECT_EQ(QFileDialog::ExistingFile, dialog_->fileMode());
    EXPECT_EQ(QDir(QString::fromStdString(folder.path())), dialog_->directory());
}

TEST_F(OpenPanelTest, FoldersPanelTakesSeveralFoldersAndNoFiles) {
    begin({.title = "x", .choosesFolders = true, .allowsMultipleSelection = true});
    EXPECT_EQ(QFileDialog::Directory, dialog_->fileMode());
    EXPECT_TRUE(dialog_->testOption(QFileDialog::ShowDirsOnly));
    EXPECT_EQ(QAbstractItemView::ExtendedSelection,
              dialog_->findChild<QListView*>("listView")->selectionMode());
}

TEST_F(OpenPanelTest, CancelledPanelGivesZeroAndNoPaths) {
    begin({.title = "x", .allowsMultipleSelection = true});
    dialog_->reject();
    EXPECT_EQ(openPanelCancelled, code_);
    EXPECT_TRUE(paths_.isEmpty());
}

TEST_F(OpenPanelTest, AcceptedPanelGivesTheChosenPath) {
    const test::ScratchFolder folder;
    test::write_file(folder / "a.mp3", "x");
    begin({.title = "x", .startFolder = QString::fromStdString(folder.path())});
    dialog_->selectFile(QString::fromStdString(folder / "a.mp3"));
    QMetaObject::invokeMethod(dialog_, "accept");
    EXPECT_EQ(openPanelOk, code_);
    EXPECT_EQ(QStringList{QString::fromStdString(folder / "a.mp3")}, paths_);
}

TEST_F(OpenPanelTest, PanelIsASheetOfTheWindow) {
    begin({.title = "x"});
    EXPECT_EQ(Qt::WindowModal, dialog_->windowModality());
    EXPECT_EQ(&window_, dialog_->parentWidget());
}

} // namespace
} // namespace velmora
