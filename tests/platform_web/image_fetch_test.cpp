#include "platform/web/image_fetch.h"

#include "page_server.h"

#include "support/pictures.h"
#include "support/scratch_folder.h"

#include <QElapsedTimer>
#include <QFile>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace velmora::test {
namespace {

QByteArray picture(int width, const char* format = "PNG") {
    return encoded(plain({width, 3}, Qt::blue), format);
}

class ImageFetch : public testing::Test {
protected:
    PageServer server;
    QObject context;

    /** The width of the picture at PATH; 0 for none. */
    int fetchedWidth(const QString& path) {
        const std::optional<ImageRef> image = fetchImage(server.url(path), &context);
        return image ? image->size().width() : -1;
    }
};

TEST_F(ImageFetch, GivesThePictureWhateverItsNameAndTypeSay) {
    server.serve("/a.txt", Answer{.body = picture(7, "JPEG"), .type = "text/plain"});
    EXPECT_EQ(7, fetchedWidth("/a.txt"));
}

TEST_F(ImageFetch, WaitsForASlowServer) {
    server.serve("/slow", Answer{.body = picture(7), .delayMilliseconds = 700});
    EXPECT_EQ(7, fetchedWidth("/slow"));
}

TEST_F(ImageFetch, TakesTheBodyThatComesWithAnErrorStatus) {
    server.serve("/404", Answer{.body = picture(7), .status = 404});
    server.serve("/503", Answer{.body = picture(8), .status = 503});
    EXPECT_EQ(7, fetchedWidth("/404"));
    EXPECT_EQ(8, fetchedWidth("/503"));
}

TEST_F(ImageFetch, OfWhatIsNoPictureIsNone) {
    server.serve("/page", "<p>Not a picture</p>");
    server.serve("/empty", "");
    EXPECT_EQ(0, fetchedWidth("/page"));
    EXPECT_EQ(0, fetchedWidth("/empty"));
    EXPECT_EQ(0, fetchedWidth("/unknown"));
}

TEST_F(ImageFetch, OfAConnectionThatBreaksIsNoneEvenWhenAPictureCame) {
    server.serve("/broken", Answer{.body = picture(7, "JPEG"), .end = Answer::End::Broken});
    EXPECT_EQ(0, fetchedWidth("/broken"));
}

TEST_F(ImageFetch, OfAServerThatIsNotThereIsNone) {
    const QUrl url = server.url("/x");
    server.close();
    const std::optional<ImageRef> image = fetchImage(url, &context);
    ASSERT_TRUE(image.has_value());
    EXPECT_TRUE(image->isNull());
}

TEST_F(ImageFetch, FollowsARedirection) {
    server.serve("/moved", Answer{.status = 302, .extraHeaders = "Location: /there\r\n"});
    server.serve("/there", Answer{.body = picture(7)});
    EXPECT_EQ(7, fetchedWidth("/moved"));
}

TEST_F(ImageFetch, AsksTheServerEveryTime) {
    server.serve("/a", Answer{.body = picture(7), .extraHeaders = "Cache-Control: max-age=3600\r\n"});
    EXPECT_EQ(7, fetchedWidth("/a"));
    EXPECT_EQ(7, fetchedWidth("/a"));
    EXPECT_EQ(QStringList({"/a", "/a"}), server.requests());
}

TEST_F(ImageFetch, ReadsDataAddresses) {
    const QUrl url("data:image/png;base64," + QString::fromLatin1(picture(6).toBase64()));
    EXPECT_EQ(6, fetchImage(url, &context)->size().width());
}

TEST_F(ImageFetch, ReadsFiles) {
    const ScratchFolder folder;
    const QString path = QString::fromStdString(folder / "a # b.png");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(picture(5));
    file.close();
    EXPECT_EQ(5, fetchImage(QUrl::fromLocalFile(path), &context)->size().width());
    EXPECT_EQ(0, fetchImage(QUrl::fromLocalFile(path + "x"), &context)->size().width());
}

TEST_F(ImageFetch, DoesNotWaitForAPipeOrADevice) {
    const ScratchFolder folder;
    const std::string path = folder / "pipe";
    ASSERT_EQ(0, ::mkfifo(path.c_str(), 0600));
    EXPECT_EQ(0, fetchImage(QUrl::fromLocalFile(QString::fromStdString(path)), &context)->size().width());
    EXPECT_EQ(0, fetchImage(QUrl("file:///dev/zero"), &context)->size().width());
}

TEST_F(ImageFetch, KnowsNoOtherSchemes) {
    for (const char* const address :
         {"ftp://127.0.0.1/x", "javascript:1", "qrc:/x", "x.png", "//127.0.0.1/x"}) {
        EXPECT_EQ(0, fetchImage(QUrl(address), &context)->size().width()) << address;
    }
}

TEST_F(ImageFetch, HandlesEventsWhileItWaits) {
    server.serve("/slow", Answer{.body = picture(7), .delayMilliseconds = 200});
    bool handled = false;
    QTimer::singleShot(0, &context, [&handled] { handled = true; });
    EXPECT_EQ(7, fetchedWidth("/slow"));
    EXPECT_TRUE(handled);
}

TEST_F(ImageFetch, KeepsAPersonsInputOutWhileItWaits) {
    server.serve("/slow", Answer{.body = picture(7), .delayMilliseconds = 200});
    QPushButton button;
    button.show();
    int clicks = 0;
    QObject::connect(&button, &QPushButton::clicked, &button, [&clicks] { ++clicks; });
    QTimer::singleShot(20, &button, [&button] { QTest::mouseClick(&button, Qt::LeftButton); });
    EXPECT_EQ(7, fetchedWidth("/slow"));
    EXPECT_EQ(0, clicks);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(1, clicks);
}

TEST_F(ImageFetch, FailsWhenItIsCancelled) {
    server.serve("/never", Answer{.body = picture(7).left(20), .end = Answer::End::Never});
    QPushButton cancel;
    QTimer::singleShot(50, &cancel, &QPushButton::click);
    const std::optional<ImageRef> image = fetchImage(server.url("/never"), &context, &cancel);
    ASSERT_NE(std::nullopt, image);
    EXPECT_TRUE(image->isNull());
}

TEST_F(ImageFetch, EndsWithoutAResultWhenTheContextGoesAway) {
    server.serve("/never", Answer{.end = Answer::End::Silent});
    auto* const window = new QWidget;
    QTimer::singleShot(50, window, [window] { delete window; });
    EXPECT_EQ(std::nullopt, fetchImage(server.url("/never"), window));
}

} // namespace
} // namespace velmora::test
