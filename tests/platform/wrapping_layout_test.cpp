#include "platform/elided_label.h"
#include "platform/wrapping_layout.h"

#include <QWidget>

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

/** A widget of a fixed size. */
class Block : public QWidget {
public:
    explicit Block(QSize size) : size_(size) {}
    [[nodiscard]] QSize sizeHint() const override { return size_; }

private:
    QSize size_;
};

class WrappingLayoutTest : public testing::Test {
protected:
    WrappingLayoutTest() {
        layout_->setContentsMargins(0, 0, 0, 0);
        layout_->setSpacing(10);
        for (const QSize size : {QSize(100, 20), QSize(60, 30), QSize(80, 20)}) {
            blocks_.push_back(new Block(size));
            layout_->addWidget(blocks_.back());
        }
    }
    std::vector<QRect> placesAt(int width) {
        window_.resize(width, 200);
        layout_->setGeometry(QRect(0, 0, width, 200));
        std::vector<QRect> places;
        for (const QWidget* block : blocks_) {
            places.push_back(block->geometry());
        }
        return places;
    }

    QWidget window_;
    WrappingLayout* layout_ = new WrappingLayout(&window_);
    std::vector<QWidget*> blocks_;
};

TEST_F(WrappingLayoutTest, PutsAllInOneRowWhereThereIsRoom) {
    EXPECT_EQ((std::vector{QRect(0, 0, 100, 20), QRect(110, 0, 60, 30), QRect(180, 0, 80, 20)}),
              placesAt(260));
    EXPECT_EQ(30, layout_->heightAt(260));
    EXPECT_EQ(QSize(260, 30), layout_->sizeHint());
}

TEST_F(WrappingLayoutTest, BeginsAnotherRowBelowTheHighestOfTheLast) {
    EXPECT_EQ((std::vector{QRect(0, 0, 100, 20), QRect(110, 0, 60, 30), QRect(0, 40, 80, 20)}),
              placesAt(259));
    EXPECT_EQ(60, layout_->heightAt(259));
}

TEST_F(WrappingLayoutTest, NeedsTheHeightOfItsRowsAtItsPresentWidth) {
    (void)placesAt(259);
    EXPECT_EQ(60, layout_->minimumSize().height());
    EXPECT_EQ(60, layout_->sizeHint().height());
    (void)placesAt(260);
    EXPECT_EQ(30, layout_->minimumSize().height());
}

TEST_F(WrappingLayoutTest, NeedsTheWidthOfItsWidestWidgetOnly) {
    EXPECT_EQ(100, layout_->minimumSize().width());
    EXPECT_EQ(20 + 10 + 30 + 10 + 20, layout_->heightAt(100));
}

TEST(ElidedLabel, NeedsNoWidthAndKeepsItsText) {
    ElidedLabel label;
    label.setText(QString(400, u'x'));
    EXPECT_EQ(0, label.minimumSizeHint().width());
    label.resize(80, 20);
    EXPECT_EQ(QSize(80, 20), label.grab().size());
    EXPECT_EQ(QString(400, u'x'), label.text());
}

} // namespace
} // namespace velmora::test
