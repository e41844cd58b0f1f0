#include "taglib/id3/genres.h"

#include <gtest/gtest.h>

#include <string>

namespace velmora::test {
namespace {

TEST(Id3Genres, TableHoldsTheNamesInOrder) {
    std::string table;
    for (const char* const name : GenreTable) {
        table += name;
        table += ',';
    }
    EXPECT_EQ("Blues,Classic Rock,Country,Dance,Disco,Funk,Grunge,Hip-Hop,Jazz,Metal,New "
              "Age,Oldies,Other,Pop,R&B,Rap,Reggae,Rock,Techno,Industrial,Alternative,Ska,Death "
              "Metal,Pranks,Soundtrack,Euro-Techno,Ambient,Trip-Hop,Vocal,Jazz+Funk,Fusion,Trance,Classical,"
              "Instrumental,Acid,House,Game,Sound "
              "Clip,Gospel,Noise,AlternRock,Bass,Soul,Punk,Space,Meditative,Instrumental Pop,Instrumental "
              "Rock,Ethnic,Gothic,Darkwave,Techno-Industrial,Electronic,Pop-Folk,Eurodance,Dream,Southern "
              "Rock,Comedy,Cult,Gangsta,Top 40,Christian Rap,Pop/Funk,Jungle,Native American,Cabaret,New "
              "Wave,Psychadelic,Rave,Showtunes,Trailer,Lo-Fi,Tribal,Acid Punk,Acid "
              "Jazz,Polka,Retro,Musical,Rock & Roll,Hard Rock,Folk,Folk-Rock,National Folk,Swing,Fast "
              "Fusion,Bebob,Latin,Revival,Celtic,Bluegrass,Avantgarde,Gothic Rock,Progressive "
              "Rock,Psychedelic Rock,Symphonic Rock,Slow Rock,Big Band,Chorus,Easy "
              "Listening,Acoustic,Humour,Speech,Chanson,Opera,Chamber Music,Sonata,Symphony,Booty "
              "Bass,Primus,Porn Groove,Satire,Slow Jam,Club,Tango,Samba,Folklore,Ballad,Power "
              "Ballad,Rhythmic Soul,Freestyle,Duet,Punk Rock,Drum Solo,Acapella,Euro-House,Dance Hall,",
              table);
}

TEST(Id3Genres, NamesAreFoundByIndex) {
    EXPECT_STREQ("Blues", id3_genre_name(0));
    EXPECT_STREQ("Rock", id3_genre_name(17));
    EXPECT_STREQ("Psychadelic", id3_genre_name(67));
    EXPECT_STREQ("Bebob", id3_genre_name(85));
    EXPECT_STREQ("Acapella", id3_genre_name(123));
    EXPECT_STREQ("Dance Hall", id3_genre_name(125));
}

TEST(Id3Genres, OtherIndexesHaveNoName) {
    EXPECT_EQ(nullptr, id3_genre_name(126));
    EXPECT_EQ(nullptr, id3_genre_name(255));
    EXPECT_EQ(nullptr, id3_genre_name(-1));
    EXPECT_EQ(nullptr, id3_genre_name(std::int64_t{1} << 32));
}

} // namespace
} // namespace velmora::test
