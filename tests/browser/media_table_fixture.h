#pragma once

#include "fake_media_document.h"
#include "row_maker.h"

#include "browser/media_table.h"
#include "support/qt_printing.h"
#include "support/waiting.h"

#include <QApplication>
#include <QHeaderView>
#include <QTest>

#include <gmock/gmock.h>

#include <memory>

namespace velmora::test {

constexpr int iconColumn = 0;
constexpr int nameColumn = 1;
constexpr int sizeColumn = 2;
constexpr int createdColumn = 3;

/** A shown table with a document that opens nothing. */
class MediaTableTest : public testing::Test {
protected:
    MediaTableTest() {
        view_.resize(700, 300);
        view_.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&view_));
        QApplication::setActiveWindow(&view_);
        view_.setFocus();
    }

    MediaTable::Form form() {
        return {[this] { events_ += "clear"; }, [this] { events_ += "fill"; },
                [this](const Error& error) {
                    events_ += error.userInfo.value(NSLocalizedDescriptionKey).toString();
                }};
    }

    void add(const QString& name, std::uint64_t size = 0, const QString& created = {}) {
        table_->addColdataSorted(makeRow(name, size, created));
        table_->reloadData();
    }
    void addAll(const QStringList& names) {
        for (const QString& name : names) {
            add(name);
        }
    }
    void select(int row) {
        view_.selectRow(row);
        settle();
    }
    void deselect() {
        view_.clearSelection();
        settle();
    }
    [[nodiscard]] int selectedRow() const {
        const QModelIndexList rows = view_.selectionModel()->selectedRows();
        return rows.isEmpty() ? -1 : rows.first().row();
    }
    [[nodiscard]] QStringList shownNames() const {
        QStringList names;
        for (int row = 0; row < view_.model()->rowCount(); ++row) {
            names += view_.model()->index(row, nameColumn).data().toString();
        }
        return names;
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&view_, key, modifiers);
        settle();
    }
    [[nodiscard]] QPoint middleOf(int row) const {
        return view_.visualRect(view_.model()->index(row, nameColumn)).center();
    }
    void click(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::mouseClick(view_.viewport(), Qt::LeftButton, modifiers, middleOf(row));
        settle();
    }
    /** As a user clicks: with the mouse, on the header. */
    void clickHeader(int column) {
        QWidget* const viewport = view_.horizontalHeader()->viewport();
        QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier,
                          viewport->mapFrom(&view_, middleOfHeader(column)));
        settle();
    }
    /** Through the window: only there do two quick clicks become a double click. */
    void doubleClickHeader(int column, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseDClick(view_.windowHandle(), button, Qt::NoModifier, middleOfHeader(column));
        settle();
    }
    /** In the view's coordinates. */
    [[nodiscard]] QPoint middleOfHeader(int column) const {
        const QHeaderView* const header = view_.horizontalHeader();
        return header->viewport()->mapTo(
            &view_, QPoint(header->sectionViewportPosition(column) + header->sectionSize(column) / 2,
                           header->height() / 2));
    }

    QTableView view_;
    FakeMediaDocument document_;
    QStringList events_;
    std::unique_ptr<MediaTable> table_ = std::make_unique<MediaTable>(view_, document_, form());
};

} // namespace velmora::test
