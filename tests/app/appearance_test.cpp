// What the window looks like: nothing is cut off on a small screen, in light and dark. Leaves pictures in the
// folder "screenshots" of the build.

#include "window_fixture.h"

#include "imaging/CoverArtView.h"
#include "support/pictures.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QPalette>

namespace velmora {
namespace {

using test::text4;

QPalette darkPalette() {
    QPalette palette(QColor(0x35, 0x36, 0x3A));
    palette.setColor(QPalette::Base, QColor(0x25, 0x26, 0x2A));
    palette.setColor(QPalette::AlternateBase, QColor(0x2B, 0x2C, 0x30));
    palette.setColor(QPalette::Text, Qt::white);
    return palette;
}

class AppearanceTest : public test::WindowTest {
protected:
    AppearanceTest() : palette_(QApplication::palette()) {}
    ~AppearanceTest() override { QApplication::setPalette(palette_); }

    void showFilm(const QPalette& palette) {
        QApplication::setPalette(palette);
        document().window()->resize(1024, 700);
        openFile("A film.mp4", text4("TALB", "Harbour Lights") + text4("TPE1", "Ann, Bob, Cy") +
                                   text4("TIT2", "Two people meet.\nThey part.") + text4("TPE3", "Di") +
                                   text4("TCON", "Drama") + text4("TYER", "2005"));
        widget<CoverArtView>("img_coverArt").setImage(test::plain({300, 420}, QColor(0x2F, 0x5F, 0x8F)));
        test::settle();
    }
    QImage picture(const QString& name) {
        const QImage image = document().window()->grab().toImage();
        QDir().mkpath("screenshots");
        EXPECT_TRUE(image.save("screenshots/" + name + ".png"));
        return image;
    }
    /** Texts that have less room than they need. */
    QStringList cutTexts() {
        QStringList cut;
        for (const auto* button : document().window()->findChildren<QPushButton*>()) {
            if (button->isVisible() &&
                button->width() < button->fontMetrics().horizontalAdvance(button->text().remove('&')) + 4) {
                cut += button->objectName();
            }
        }
        for (const auto* label : document().window()->findChildren<QLabel*>()) {
            const bool mayBeCut =
                label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored || label->wordWrap();
            if (label->isVisible() && !mayBeCut && label->width() < label->sizeHint().width()) {
                cut += label->objectName();
            }
        }
        return cut;
    }

    QPalette palette_;
};

TEST_F(AppearanceTest, NoTextIsCutOnASmallScreen) {
    showFilm(palette_);
    EXPECT_EQ(QSize(1024, 700), document().window()->size());
    EXPECT_EQ(QStringList(), cutTexts());
    (void)picture("window-light");
}

TEST_F(AppearanceTest, EveryControlOfTheFormIsVisibleOnASmallScreen) {
    showFilm(palette_);
    for (const char* name : {"entry_title", "entry_desc", "img_coverArt", "view_preview", "btn_captureFrame",
                             "btn_saveTag", "btn_removeTag", "entry_search", "btn_formFill"}) {
        const QWidget& control = widget<QWidget>(name);
        const QRect place(control.mapTo(document().window(), QPoint()), control.size());
        EXPECT_TRUE(document().window()->rect().contains(place)) << name;
        EXPECT_FALSE(control.visibleRegion().isEmpty()) << name;
    }
}

class NoticeAppearanceTest : public AppearanceTest,
                             public testing::WithParamInterface<std::tuple<QSize, bool>> {};

TEST_P(NoticeAppearanceTest, NoticeIsReadWhole) {
    const auto [size, isDark] = GetParam();
    QApplication::setPalette(isDark ? darkPalette() : palette_);
    document().window()->resize(size);
    addFile("A song.mp3", test::fileTaggedInFront());
    select(0);
    type("entry_title", "Evening");
    button("btn_saveTag").click();
    test::settle();

    const auto& label = widget<QLabel>("lbl_notice");
    EXPECT_GE(label.height(), label.heightForWidth(label.width()));
    EXPECT_EQ(size.width() > 1024,
              label.heightForWidth(label.width()) < 2 * label.fontMetrics().lineSpacing())
        << "one line if there is room";
    EXPECT_EQ(QStringList(), cutTexts());
    EXPECT_EQ(size, document().window()->size());
    (void)picture(QStringLiteral("notice-%1-%2").arg(size.width()).arg(isDark ? "dark" : "light"));
}

INSTANTIATE_TEST_SUITE_P(Windows, NoticeAppearanceTest,
                         testing::Combine(testing::Values(QSize(1024, 700), QSize(1280, 800)),
                                          testing::Bool()));

TEST_F(AppearanceTest, DarkPaletteIsFollowed) {
    showFilm(darkPalette());
    const QImage image = picture("window-dark");
    // Just inside the title field: a field is dark and its text light, wherever the text is.
    const QWidget& field = widget<QWidget>("entry_title");
    const QPoint corner =
        field.mapTo(document().window(), QPoint(field.width() - 6, 6)) * image.devicePixelRatio();
    EXPECT_LT(image.pixelColor(corner).lightness(), 80);
}

TEST_F(AppearanceTest, PreviewThatFailsIsReadableOnItsScreen) {
    showFilm(palette_);
    ASSERT_TRUE(test::waitUntil([this] { return widget<QLabel>("lbl_previewFailed").isVisible(); }));
    const QImage image = picture("preview-failed");
    const QWidget& label = widget<QWidget>("lbl_previewFailed");
    const QPoint origin = label.mapTo(document().window(), QPoint());
    int light = 0;
    for (int x = 0; x < label.width(); ++x) {
        light += image.pixelColor((origin + QPoint(x, label.height() / 2)) * image.devicePixelRatio())
                     .lightness() > 200;
    }
    EXPECT_GT(light, 3) << "light text on the dark screen";
}

} // namespace
} // namespace velmora
