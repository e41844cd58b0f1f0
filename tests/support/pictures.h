#pragma once

#include <QBuffer>
#include <QImage>

#include <gtest/gtest.h>

#include <string>

/** Pictures for tests. */
namespace velmora::test {

/** A picture of SIZE in one colour, opaque. */
[[nodiscard]] inline QImage plain(const QSize& size, const QColor& colour = Qt::darkCyan) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

/** The bytes of a file that holds IMAGE in Qt's FORMAT; fails the test when Qt can't write it. */
[[nodiscard]] inline QByteArray encoded(const QImage& image, const char* format) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format)) << format;
    return buffer.data();
}

/** An SVG that shows the picture at PATH. */
[[nodiscard]] inline QByteArray svgThatShows(const std::string& path) {
    return QByteArray::fromStdString(
        "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" width=\"8\" "
        "height=\"8\"><image width=\"8\" height=\"8\" xlink:href=\"" +
        path + "\"/></svg>");
}

} // namespace velmora::test
