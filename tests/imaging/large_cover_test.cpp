// Covers that are too large to be decoded at once.

#include "cover_art_fixture.h"

#include "support/pictures.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QSignalSpy>
#include <QtTest/QTest>

namespace velmora::test {
namespace {

class LargeCover : public CoverArtViewTest {
protected:
    static constexpr QSize size{3000, 2000};

    static QByteArray encoded(const QColor& colour, const char* format = "jpeg") {
        return test::encoded(plain(colour, size), format);
    }
    static ImageRef cover(const QColor& colour, const char* format = "jpeg") {
        return ImageRef::fromBytes(encoded(colour, format));
    }

    /** The colour in the middle of the view. */
    [[nodiscard]] QColor shown() const {
        const QImage all = picture();
        return all.pixelColor(all.rect().center());
    }
    [[nodiscard]] bool shows(const QColor& colour) const {
        const QColor at = shown();
        return qAbs(at.red() - colour.red()) + qAbs(at.green() - colour.green()) +
                   qAbs(at.blue() - colour.blue()) <
               12;
    }
    [[nodiscard]] bool comesToShow(const QColor& colour) const {
        return QTest::qWaitFor([&] { return shows(colour); }, 20000);
    }
    [[nodiscard]] BackgroundDecode& decode() const { return *view->findChild<BackgroundDecode*>(); }
    /** Has everything that is being decoded come to the view, or to nobody. */
    void finishDecoding() const {
        decode().waitForDone();
        QApplication::processEvents();
    }
};

TEST_F(LargeCover, IsThereAtOnceAndShownAWhileLater) {
    for (const char* format : {"jpeg", "png", "webp", "tiff", "bmp"}) {
        view->setImage(plain(Qt::blue));
        const ImageRef large = cover(Qt::red, format);
        ASSERT_TRUE(large.slowlyDecoded()) << format;
        view->setCover(large);
        EXPECT_EQ(view->cover().get(), large.get());
        EXPECT_FALSE(shows(Qt::red)) << format << ": decoding it has been waited for";
        EXPECT_TRUE(comesToShow(Qt::red)) << format;
        EXPECT_EQ(size, view->image().size());
    }
}

TEST_F(LargeCover, GivesWayToANewerOne) {
    view->setCover(cover(Qt::red));
    view->setCover(cover(Qt::green));
    EXPECT_TRUE(comesToShow(Qt::green));
    view->setCover(cover(Qt::red));
    view->setImage(plain(Qt::blue, QSize(600, 400)));
    finishDecoding();
    EXPECT_TRUE(shows(Qt::blue));
    view->setCover(cover(Qt::red));
    view->setCover({});
    finishDecoding();
    EXPECT_FALSE(shows(Qt::red));
}

TEST_F(LargeCover, ThatTakesTooLongIsSaidToBeTooLargeAndStays) {
    decode().setPatience(std::chrono::milliseconds(0));
    QSignalSpy tooLarge(view, &CoverArtView::tooLargeToShow);
    const ImageRef large = cover(Qt::red);
    view->setCover(large);
    const QImage before = picture();
    ASSERT_TRUE(QTest::qWaitFor([&] { return tooLarge.count() == 1; }, 20000));
    finishDecoding();
    EXPECT_FALSE(shows(Qt::red));
    EXPECT_NE(before, picture()) << "the view says so";
    EXPECT_EQ(view->cover().get(), large.get());
    EXPECT_FALSE(image_to_jpeg(view->cover().get()).empty());
    decode().setPatience(std::chrono::seconds(60));
    view->setCover(large);
    EXPECT_TRUE(comesToShow(Qt::red));
}

TEST_F(LargeCover, WhoseViewGoesAwayIsForgotten) {
    view->setCover(cover(Qt::red));
    delete view; // which waits for the decoder
    QApplication::processEvents();
}

TEST_F(LargeCover, IsCopiedAsItCame) {
    const QByteArray bytes = encoded(Qt::red);
    view->setCover(ImageRef::fromBytes(bytes));
    view->copy();
    EXPECT_EQ(bytes, QApplication::clipboard()->mimeData()->data("image/jpeg"));
    view->cut();
    EXPECT_FALSE(view->cover());
    view->paste();
    EXPECT_TRUE(comesToShow(Qt::red));
}

TEST_F(LargeCover, ThatIsDamagedBehindItsTopShowsNothingAndCrashesNothing) {
    QByteArray bytes = encoded(Qt::red, "png");
    bytes.truncate(bytes.size() / 2);
    QSignalSpy decoded(&decode(), &BackgroundDecode::finished);
    view->setCover(ImageRef::fromBytes(bytes));
    finishDecoding();
    EXPECT_EQ(1, decoded.count());
    EXPECT_TRUE(image_to_jpeg(view->cover().get()).empty());
    EXPECT_FALSE(shows(Qt::red));
}

} // namespace
} // namespace velmora::test
