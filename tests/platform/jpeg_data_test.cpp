// Which JPEG streams are pictures, each told by markers, tables and headers alone: none has any coded data.
// The library that decodes takes missing data for grey, and gives up over the rest.

#include "byte_array.h"

#include "platform/detail/jpeg_stream.h"
#include "platform/image.h"

#include <gtest/gtest.h>

#include <string>

namespace velmora {
namespace {

using test::bytesOf;

const std::string begin = "FF D8 ";
const std::string end = "FF D9 ";
/** Quantisation table 0: sixteen times four of 1. */
const std::string fourOnes = "01 01 01 01 ";
const std::string sixteenOnes = fourOnes + fourOnes + fourOnes + fourOnes;
const std::string quantisation = "FF DB 00 43 00 " + sixteenOnes + sixteenOnes + sixteenOnes + sixteenOnes;
/** Code tables 0, for DC and for AC: one code of one bit, for the value 0. */
const std::string dcCodes = "FF C4 00 14 00 01 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 ";
const std::string acCodes = "FF C4 00 14 10 01 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 ";
const std::string tables = quantisation + dcCodes + acCodes;
/** 16 x 24 grey pixels in one pass, or in several. */
const std::string greyFrame = "FF C0 00 0B 08 00 18 00 10 01 01 11 00 ";
const std::string greyProgressive = "FF C2 00 0B 08 00 18 00 10 01 01 11 00 ";
const std::string greyScan = "FF DA 00 08 01 01 00 00 3F 00 ";
const std::string dcScan = "FF DA 00 08 01 01 00 00 00 00 ";
const std::string acScan = "FF DA 00 08 01 01 00 01 3F 00 ";
/** 16 x 24 pixels in three components, and scans of one each. */
const std::string colourFrame = "FF C0 00 11 08 00 18 00 10 03 01 22 00 02 11 00 03 11 00 ";
const std::string colourScan = "FF DA 00 0C 03 01 00 02 00 03 00 00 3F 00 ";
const std::string secondScan = "FF DA 00 08 01 02 00 00 3F 00 ";
const std::string thirdScan = "FF DA 00 08 01 03 00 00 3F 00 ";

bool isPicture(const std::string& hexDigits) {
    return static_cast<bool>(ImageRef::fromBytes(bytesOf(hexDigits)));
}

TEST(JpegData, OneScanOfGreyIsAPicture) {
    EXPECT_TRUE(isPicture(begin + tables + greyFrame + greyScan + end));
    EXPECT_TRUE(isPicture(begin + tables + greyFrame + greyScan)) << "without an end";
    EXPECT_TRUE(isPicture(begin + greyFrame + tables + greyScan + end)) << "tables behind the frame";
}

TEST(JpegData, EachTableThatAScanUsesIsNeeded) {
    EXPECT_FALSE(isPicture(begin + dcCodes + acCodes + greyFrame + greyScan + end)) << "quantisation";
    // Of the code tables, the ones usual in films are known without being sent: 0 and 1.
    const std::string picture = begin + tables + greyFrame;
    EXPECT_FALSE(isPicture(picture + "FF DA 00 08 01 01 20 00 3F 00 " + end)) << "DC";
    EXPECT_FALSE(isPicture(picture + "FF DA 00 08 01 01 02 00 3F 00 " + end)) << "AC";
}

TEST(JpegData, ATableThatIsNoneMakesNoPictureEvenUnused) {
    const std::string tooMany = "FF C4 00 16 01 03 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 01 02 ";
    EXPECT_TRUE(isPicture(begin + tables + tooMany + greyFrame + greyScan + end)) << "never looked up";
    EXPECT_FALSE(isPicture(begin + tables + "FF C4 00 04 01 00 " + greyFrame + greyScan + end)) << "short";
    EXPECT_FALSE(isPicture(begin + tables + "FF DB 00 03 09 " + greyFrame + greyScan + end)) << "number 9";
    EXPECT_FALSE(isPicture(begin + tables + "FF DD 00 03 00 " + greyFrame + greyScan + end)) << "interval";
}

TEST(JpegData, WhatFollowsTheDataCountsUpToTheEnd) {
    const std::string picture = begin + tables + greyFrame + greyScan;
    EXPECT_TRUE(isPicture(picture + "12 34 FF 00 56 " + dcCodes + end));
    EXPECT_FALSE(isPicture(picture + "12 34 FF 00 56 FF C4 00 04 01 00 " + end)) << "a short table";
    EXPECT_FALSE(isPicture(picture + greyScan + end)) << "a scan too many";
    EXPECT_FALSE(isPicture(picture + greyFrame + end)) << "a second frame";
    EXPECT_FALSE(isPicture(picture + begin + end)) << "a second beginning";
    EXPECT_FALSE(isPicture(picture + "12 FF 37 34 " + end)) << "a marker that is none";
    EXPECT_TRUE(isPicture(picture + end + greyScan + greyFrame + "FF 37")) << "behind the end";
}

TEST(JpegData, ScansOfOneComponentEachMakeAPicture) {
    const std::string first = begin + tables + colourFrame + greyScan;
    EXPECT_TRUE(isPicture(begin + tables + colourFrame + colourScan + end)) << "all in one";
    EXPECT_TRUE(isPicture(first + "77 " + secondScan + "77 FF 00 " + thirdScan + end));
    EXPECT_TRUE(isPicture(first + secondScan)) << "cut between scans";
    EXPECT_FALSE(isPicture(first + "FF DA 00 08 01 04 00 00 3F 00 " + end)) << "of no component";
    EXPECT_FALSE(isPicture(first + "FF DA 00 08 01 02 22 00 3F 00 " + end))
        << "with tables that there are not";
}

TEST(JpegData, ProgressiveScansAreCheckedOneByOne) {
    const std::string picture = begin + tables + greyProgressive;
    EXPECT_TRUE(isPicture(picture + dcScan + acScan + end));
    EXPECT_FALSE(isPicture(picture + greyScan + end)) << "DC and AC in one";
    EXPECT_FALSE(isPicture(picture + dcScan + "FF DA 00 08 01 01 00 3F 01 00 " + end)) << "backwards";
    EXPECT_FALSE(isPicture(picture + dcScan + "FF DA 00 08 01 01 01 01 3F 00 " + end)) << "without its table";
    EXPECT_FALSE(isPicture(picture + dcScan + "FF DA 00 08 01 01 00 01 3F 3D " + end)) << "of unlikely bits";
}

TEST(JpegData, ArithmeticCodingNeedsNoCodeTables) {
    EXPECT_TRUE(isPicture(begin + quantisation + "FF C9 00 0B 08 00 18 00 10 01 01 11 00 " + greyScan + end));
    EXPECT_FALSE(isPicture(begin + quantisation + "FF CC 00 04 20 00 " +
                           "FF C9 00 0B 08 00 18 00 10 01 01 11 00 " + greyScan + end))
        << "conditioning of table 32";
}

TEST(JpegData, FramesThatNobodyShowsAreNoPictures) {
    const auto framed = [](const std::string& frame) {
        return isPicture(begin + tables + frame + greyScan + end);
    };
    EXPECT_FALSE(framed("FF C0 00 0B 0C 00 18 00 10 01 01 11 00 ")) << "12 bits";
    EXPECT_FALSE(framed("FF C3 00 0B 08 00 18 00 10 01 01 11 00 ")) << "lossless";
    EXPECT_FALSE(framed("FF C0 00 0B 08 00 18 00 10 01 01 51 00 ")) << "five samples across";
    EXPECT_FALSE(framed("FF C0 00 0C 08 00 18 00 10 01 01 11 00 ")) << "a length that does not fit";
    EXPECT_TRUE(framed("FF C0 00 0B 08 00 01 FF DC 01 01 11 00 ")) << "65,500 pixels across";
    EXPECT_FALSE(framed("FF C0 00 0B 08 00 01 FF DD 01 01 11 00 ")) << "65,501 pixels across";
    EXPECT_FALSE(framed("FF C0 00 0B 08 FF DD 00 01 01 01 11 00 ")) << "65,501 pixels high";
}

TEST(JpegData, TwoComponentsAreNoColour) {
    EXPECT_FALSE(isPicture(begin + tables + "FF C0 00 0E 08 00 18 00 10 02 01 11 00 02 11 00 " +
                           "FF DA 00 0A 02 01 00 02 00 00 3F 00 " + end));
    EXPECT_TRUE(isPicture(begin + tables +
                          "FF C0 00 14 08 00 18 00 10 04 01 11 00 02 11 00 03 11 00 04 11 00 " +
                          "FF DA 00 0E 04 01 00 02 00 03 00 04 00 00 3F 00 " + end))
        << "four are";
}

TEST(JpegData, SamplesThatDoNotDivideAreNoPicture) {
    EXPECT_FALSE(isPicture(begin + tables + "FF C0 00 11 08 00 18 00 10 03 01 31 00 02 21 00 03 11 00 " +
                           colourScan + end));
}

TEST(JpegData, StreamsWithRestartsAreJudgedToo) {
    const std::string picture = begin + tables + "FF DD 00 04 00 01 " + greyFrame + greyScan;
    EXPECT_TRUE(isPicture(picture + "77 FF D0 77 FF D1 77 " + end));
    EXPECT_TRUE(isPicture(picture + "77 FF 37 77 " + end))
        << "a marker that is none, where a restart may stand";
    EXPECT_FALSE(isPicture(picture + "77 FF C4 00 04 01 00 " + end));
}

TEST(EmptiedJpegs, KeepWhatCountsAndNothingElse) {
    const std::string adobe = "FF EE 00 0E 41 64 6F 62 65 00 64 00 00 00 00 02 ";
    const std::string full = begin + "FF E1 00 06 FF DA FF DA " + "FF FE 00 03 21 " + adobe + tables +
                             "FF FF " + greyFrame + greyScan + "12 FF 00 34 " + dcCodes + "56 " + end +
                             "FF 37";
    const std::string empty =
        begin + adobe + tables + "FF C0 00 0B 08 00 01 00 01 01 01 11 00 " + greyScan + dcCodes;
    EXPECT_EQ(bytesOf(empty), emptiedJpeg(bytesOf(full)));
}

TEST(EmptiedJpegs, KeepASegmentThatTheStreamEndsIn) {
    EXPECT_EQ(bytesOf("FF D8 FF C4 00 14 10"), emptiedJpeg(bytesOf("FF D8 FF C4 00 14 10")));
    EXPECT_EQ(bytesOf("FF D8 FF C4 00"), emptiedJpeg(bytesOf("FF D8 FF C4 00")));
    EXPECT_EQ(bytesOf("FF D8 FF C4"), emptiedJpeg(bytesOf("FF D8 FF C4")));
    EXPECT_EQ(bytesOf("FF D8"), emptiedJpeg(bytesOf("FF D8 FF")));
}

TEST(EmptiedJpegs, ThereAreNoneOfStreamsWithRestarts) {
    EXPECT_FALSE(emptiedJpeg(bytesOf(begin + tables + "FF DD 00 04 00 01 " + greyFrame + greyScan + end)));
    EXPECT_TRUE(emptiedJpeg(bytesOf(begin + tables + "FF DD 00 04 00 00 " + greyFrame + greyScan + end)));
}

} // namespace
} // namespace velmora
