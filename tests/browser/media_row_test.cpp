#include "browser/media_row.h"

#include "made_locale.h"

#include "platform/file_path.h"
#include "support/bytes.h"
#include "support/qt_printing.h"
#include "support/scratch_folder.h"

#include <gmock/gmock.h>

#include <clocale>
#include <cstdlib>
#include <ctime>
#include <string>

namespace velmora {
namespace {

TEST(SizeText, OneDecimalAndTheUnit) {
    EXPECT_EQ("0.0 B", sizeText(0));
    EXPECT_EQ("1023.0 B", sizeText(1023));
    EXPECT_EQ("488.3 KB", sizeText(500'000));
    EXPECT_EQ("5.0 GB", sizeText(5'368'709'120));
}

TEST(SizeText, UnitStepsAt1024) {
    EXPECT_EQ("1.0 KB", sizeText(1024));
    EXPECT_EQ("100.0 KB", sizeText(102'401));
    EXPECT_EQ("1.0 MB", sizeText(1'048'576));
    EXPECT_EQ("1.0 GB", sizeText(1'073'741'824));
    EXPECT_EQ("1.0 TB", sizeText(1'099'511'627'776));
}

TEST(SizeText, JustBelowAStepIsRoundedWithinItsUnit) {
    EXPECT_EQ("1024.0 KB", sizeText(1'048'575));
}

TEST(SizeText, StaysInTerabytes) {
    EXPECT_EQ("1024.0 TB", sizeText(1'125'899'906'842'624));
    EXPECT_EQ("16777216.0 TB", sizeText(18'446'744'073'709'551'615U));
}

TEST(SizeText, HalvesAreRoundedAsPrintfRoundsThem) {
    EXPECT_EQ("100.2 KB", sizeText(102'656)); // 100.25 exactly
    EXPECT_EQ("100.8 KB", sizeText(103'168)); // 100.75 exactly
}

TEST(SizeText, DecimalSignIsAPointInEveryLocale) {
    const test::MadeLocale german("de_DE", "ISO-8859-1");
    if (!german.isThere()) {
        GTEST_SKIP() << "needs the sources of the German locale";
    }
    EXPECT_EQ("1.5 KB", sizeText(1536));
}

/** The time zone and the locale that a test wants, for as long as it runs. */
class CreatedTextTest : public testing::Test {
protected:
    CreatedTextTest() { std::setlocale(LC_ALL, "C"); }
    ~CreatedTextTest() override { setZone(formerZone_.c_str()); }

    static void setZone(const char* zone) {
        *zone ? setenv("TZ", zone, 1) : unsetenv("TZ");
        tzset();
    }

private:
    test::LocaleGuard locale_;
    std::string formerZone_ = std::getenv("TZ") ? std::getenv("TZ") : "";
};

TEST_F(CreatedTextTest, DateABlankAndTheTimeInTheFormOfTheLocale) {
    setZone("UTC0");
    EXPECT_EQ("05/04/08 10:20:30", createdText({1'209'896'430, 0}));
}

TEST_F(CreatedTextTest, TimeIsLocal) {
    setZone("XXX-5:30");
    EXPECT_EQ("05/04/08 15:50:30", createdText({1'209'896'430, 0}));
}

TEST_F(CreatedTextTest, FractionOfASecondIsCutOff) {
    setZone("UTC0");
    EXPECT_EQ("01/01/70 00:00:01", createdText({1, 999'999'999}));
}

TEST_F(CreatedTextTest, FractionBefore1970IsCutOffTowardZero) {
    setZone("UTC0");
    EXPECT_EQ("12/31/69 23:59:59", createdText({-2, 500'000'000})); // 1.5 seconds before
    EXPECT_EQ("01/01/70 00:00:00", createdText({-1, 1}));
    EXPECT_EQ("12/31/69 23:59:58", createdText({-2, 0}));
}

TEST_F(CreatedTextTest, FollowsTheLocaleOfTheProcess) {
    const test::MadeLocale german("de_DE", "ISO-8859-1");
    if (!german.isThere()) {
        GTEST_SKIP() << "needs the sources of the German locale";
    }
    setZone("UTC0");
    EXPECT_EQ("04.05.2008 10:20:30", createdText({1'209'896'430, 0}));
}

TEST_F(CreatedTextTest, YearThatNoCalendarHoldsIsAnEmptyText) {
    const QString text = createdText({std::int64_t{1} << 62, 0});
    EXPECT_EQ("", text);
    EXPECT_FALSE(text.isNull());
}

class MediaRowTest : public testing::Test {
protected:
    MediaRowTest() {
        attributes_.size = 102'401;
        attributes_.creationDate = FileTime{1'209'896'430, 0};
    }

    FileAttributes attributes_;
};

TEST_F(MediaRowTest, HoldsTheSixValues) {
    // Whatever the path, also of a file that is gone again.
    const ColdataPointer row = mediaRow("/music/a.b.mp3", attributes_);
    ASSERT_TRUE(row);
    EXPECT_EQ(QVariant("/music/a.b.mp3"), row->valueForKey(u"fullpath"));
    EXPECT_EQ(QVariant("a.b.mp3"), row->valueForKey(u"filename"));
    EXPECT_EQ(QVariant::fromValue<quint64>(102'401), row->valueForKey(u"rawfilesize"));
    EXPECT_EQ(QVariant("100.0 KB"), row->valueForKey(u"filesize"));
    EXPECT_EQ(QVariant(createdText({1'209'896'430, 0})), row->valueForKey(u"created"));
    EXPECT_FALSE(row->valueForKey(u"icon").value<QIcon>().isNull());
}

TEST_F(MediaRowTest, RawSizeIsAnUnsigned64BitNumber) {
    attributes_.size = 18'446'744'073'709'551'615U;
    const QVariant size = mediaRow("/a.mp3", attributes_)->valueForKey(u"rawfilesize");
    EXPECT_EQ(QMetaType::ULongLong, size.typeId());
    EXPECT_EQ(18'446'744'073'709'551'615U, size.toULongLong());
}

TEST_F(MediaRowTest, OtherKeysHaveNoValue) {
    const ColdataPointer row = mediaRow("/music/a.mp3", attributes_);
    EXPECT_FALSE(row->valueForKey(u"Filename").isValid());
    EXPECT_FALSE(row->valueForKey(u"").isValid());
}

TEST_F(MediaRowTest, RecordWithoutAKeyHasNoValueUnderIt) {
    const coldata empty;
    for (const char16_t* key : {u"fullpath", u"filename", u"filesize", u"created"}) {
        EXPECT_FALSE(empty.valueForKey(key).isValid());
    }
}

TEST_F(MediaRowTest, EmptyTextIsAValue) {
    coldata row;
    row.created = QLatin1String("");
    EXPECT_TRUE(row.valueForKey(u"created").isValid());
}

TEST_F(MediaRowTest, NeedsAttributes) {
    EXPECT_FALSE(mediaRow("/a.mp3", std::nullopt));
}

TEST_F(MediaRowTest, NeedsTheSize) {
    attributes_.size.reset();
    EXPECT_FALSE(mediaRow("/a.mp3", attributes_));
}

TEST_F(MediaRowTest, NeedsTheCreationDate) {
    attributes_.creationDate.reset();
    EXPECT_FALSE(mediaRow("/a.mp3", attributes_));
}

TEST_F(MediaRowTest, TakesFilesOfAnyKindAndSize) {
    attributes_.size = 0;
    const ColdataPointer row = mediaRow("/notes.txt", attributes_);
    ASSERT_TRUE(row);
    EXPECT_EQ("0.0 B", row->filesize);
}

TEST_F(MediaRowTest, FileNameKeepsEveryByte) {
    const QByteArray path = "/f\xE4/<b>caf\xE9\n#?%41.mp3";
    const ColdataPointer row = mediaRow(pathFromBytes(path), attributes_);
    EXPECT_EQ(path, pathBytes(row->fullpath));
    EXPECT_EQ(QByteArray("<b>caf\xE9\n#?%41.mp3"), pathBytes(row->filename));
}

} // namespace
} // namespace velmora
