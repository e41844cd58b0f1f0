#include "platform/symbol.h"

#include <QApplication>
#include <QDir>
#include <QPalette>

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

/** How many of PICTURE's pixels are nearly opaque and of this colour. */
int pixelsOf(const QImage& picture, const QColor& colour) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            count += pixel.alpha() > 200 && std::abs(pixel.red() - colour.red()) < 8 &&
                     std::abs(pixel.green() - colour.green()) < 8 &&
                     std::abs(pixel.blue() - colour.blue()) < 8;
        }
    }
    return count;
}

class SymbolTest : public testing::Test {
protected:
    SymbolTest() : theme_(QIcon::themeName()), palette_(QApplication::palette()) {
        QIcon::setThemeName(QStringLiteral("no such theme"));
    }
    ~SymbolTest() override {
        QIcon::setThemeName(theme_);
        QApplication::setPalette(palette_);
    }

private:
    QString theme_;
    QPalette palette_;
};

TEST_F(SymbolTest, EveryDrawingIsReadAndDrawnInTheColourAskedFor) {
    (void)drawnSymbol("list-add", 16, Qt::red); // makes the drawings known
    const QStringList drawings = QDir(":/symbols").entryList();
    EXPECT_GE(drawings.size(), 20);
    for (const QString& drawing : drawings) {
        const QImage picture = drawnSymbol(drawing.chopped(4), 32, Qt::red).toImage();
        EXPECT_EQ(QSize(32, 32), picture.size());
        EXPECT_GT(pixelsOf(picture, Qt::red), 20) << drawing.toStdString();
        EXPECT_EQ(0, picture.pixelColor(0, 0).alpha()) << drawing.toStdString();
    }
}

TEST_F(SymbolTest, StandsInForAnIconThatTheThemeLacks) {
    EXPECT_GT(pixelsOf(symbol("document-save").pixmap(32).toImage(),
                       QApplication::palette().color(QPalette::Active, QPalette::ButtonText)),
              20);
}

TEST_F(SymbolTest, FollowsThePalette) {
    const QIcon icon = symbol("document-save");
    QPalette palette;
    palette.setColor(QPalette::Active, QPalette::ButtonText, Qt::yellow);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::blue);
    QApplication::setPalette(palette);
    EXPECT_GT(pixelsOf(icon.pixmap(QSize(32, 32), QIcon::Normal).toImage(), Qt::yellow), 20);
    EXPECT_GT(pixelsOf(icon.pixmap(QSize(32, 32), QIcon::Disabled).toImage(), Qt::blue), 20);
}

TEST_F(SymbolTest, ThemesIconComesFirst) {
    QDir().mkpath("symbol_theme/own/16x16");
    QFile index("symbol_theme/own/index.theme");
    ASSERT_TRUE(index.open(QIODevice::WriteOnly));
    index.write("[Icon Theme]\nName=own\nDirectories=16x16\n[16x16]\nSize=16\n");
    index.close();
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    ASSERT_TRUE(image.save("symbol_theme/own/16x16/document-save.png"));
    const QStringList paths = QIcon::themeSearchPaths();
    QIcon::setThemeSearchPaths({QDir().absoluteFilePath("symbol_theme")});
    QIcon::setThemeName("own");
    EXPECT_EQ(256, pixelsOf(symbol("document-save").pixmap(16).toImage(), Qt::magenta));
    EXPECT_EQ(0, pixelsOf(symbol("edit-find").pixmap(16).toImage(), Qt::magenta));
    QIcon::setThemeSearchPaths(paths);
}

} // namespace
} // namespace velmora::test
