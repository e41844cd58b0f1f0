// Every kind of file that other programs read tags of, through the window: each field set, changed, shortened
// and emptied in the form, and read back by programs that are not ours.

#include "window_fixture.h"

#include "imaging/CoverArtView.h"
#include "support/bytes.h"
#include "support/command.h"
#include "support/pictures.h"

#include <QAction>
#include <QComboBox>
#include <QCryptographicHash>
#include <QTest>

#include <algorithm>

namespace velmora {
namespace {

using test::run_command;
using test::settle;
using test::shell_word;

struct KindCase {
    const char* name; ///< of the file
    bool song;
    const char* encoding; ///< for ffmpeg
};

void PrintTo(const KindCase& kind, std::ostream* out) {
    *out << kind.name;
}

/** What the user types in one go. */
struct Values {
    QString title, artist, album, genre, year, synopsis, rating;
};

class PortableKindsTest : public test::WindowTest, public testing::WithParamInterface<KindCase> {
protected:
    PortableKindsTest() { qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder_ / "config")); }
    ~PortableKindsTest() override { qunsetenv("XDG_CONFIG_HOME"); }

    void open() {
        const std::string film = GetParam().song ? "" : "-f lavfi -i testsrc=d=1:s=160x120 ";
        run_command("ffmpeg -v error -f lavfi -i sine=d=1 " + film + GetParam().encoding +
                    " -metadata title=Old " + shell_word(folder_ / GetParam().name));
        document().window()->findChild<QAction*>("action_portableTags")->trigger();
        ASSERT_TRUE(controller().addMediaFile(path(GetParam().name)));
        select(0);
        ASSERT_NE(nullptr, document().mediaFile());
    }
    void typeSynopsis(const QString& text) {
        auto& field = widget<QPlainTextEdit>("entry_desc");
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, text);
    }
    void typeGenre(const QString& text) {
        auto* const field = widget<QComboBox>("combo_genre").lineEdit();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, text);
    }
    void chooseRating(const QString& text) {
        auto& field = widget<QComboBox>("combo_rating");
        while (field.currentIndex() > field.findText(text)) {
            QTest::keyClick(&field, Qt::Key_Up);
        }
        while (field.currentIndex() < field.findText(text)) {
            QTest::keyClick(&field, Qt::Key_Down);
        }
    }
    void typeAll(const Values& values) {
        type("entry_title", values.title);
        type("entry_artist", values.artist);
        type("entry_album", values.album);
        type("entry_year", values.year);
        typeGenre(values.genre);
        typeSynopsis(values.synopsis);
        if (!GetParam().song) {
            chooseRating(values.rating);
        }
    }
    void save() {
        button("btn_saveTag").click();
        settle();
        EXPECT_FALSE(enabled("btn_saveTag"))
            << widget<QWidget>("bar_notice").accessibleDescription().toStdString();
    }
    /** What others read in the file: its fields, and checksums of its media. */
    [[nodiscard]] std::string read() {
        const std::string reader = qgetenv("VELMORA_FIELD_READER").toStdString(); // a command
        return run_command(reader + " " + shell_word(folder_ / GetParam().name));
    }
    [[nodiscard]] std::string media() {
        const std::string all = read();
        return all.substr(all.find("0,"));
    }
    /** The same lines, as they have to be. A film in an MP4 has its rating in the form that players want. */
    [[nodiscard]] static std::string lines(const Values& values) {
        const bool song = GetParam().song;
        const std::string rating = values.rating.toStdString();
        const std::string name = GetParam().name;
        const bool boxes = name.ends_with("mp4") || name.ends_with("mov");
        const std::string number = rating == "PG-13" ? "300" : "200";
        std::string text;
        const auto add = [&](const char* field, const std::string& value) {
            text += value.empty() ? "" : field + (": " + value) + "\n";
        };
        if (song) {
            add("album", values.album.toStdString());
        }
        add("artist", values.artist.toStdString());
        if (!song) {
            add("director", values.album.toStdString());
        }
        add("genre", values.genre.toStdString());
        if (!song) {
            add("rating", boxes && !rating.empty() ? "mpaa|" + rating + "|" + number + "|" : rating);
        }
        add("synopsis", values.synopsis.toStdString());
        add("title", values.title.toStdString());
        add("year", values.year.toStdString());
        return text;
    }
};

TEST_P(PortableKindsTest, EachFieldIsSetChangedShortenedAndEmptied) {
    open();
    const std::string before = media();
    const Values rounds[] = {
        {"Harbour", "Ada", "Ports", "Folk", "1994", "A ship", "PG"},
        {QString::fromUtf8("Evening at the harbour \u00e4\u6f22"), "Ada and Bo", "Ports of the north",
         "Sea Shanty", "1995", QString("A ship comes in at dusk ").repeated(12).trimmed(), "PG-13"},
        {"Eve", "Al", "P", "Pop", "2003", "Sea", "PG"},
        {},
    };
    for (const Values& values : rounds) {
        typeAll(values);
        save();
        EXPECT_EQ(lines(values) + before, read());
    }
}

TEST_P(PortableKindsTest, CoverIsSetChangedAndCut) {
    open();
    type("entry_title", "Harbour");
    save();
    const std::string rest = read();
    for (const int width : {40, 300}) {
        ASSERT_TRUE(test::plain({width, 30}, width == 40 ? Qt::red : Qt::blue).save(path("cover.png")));
        controller().loadCoverArtSelected(1, {path("cover.png")});
        save();
        const std::string bytes = test::read_file(folder_ / "cover.png");
        const QByteArray sum =
            QCryptographicHash::hash(QByteArray::fromStdString(bytes), QCryptographicHash::Md5).toHex();
        EXPECT_EQ(std::string(rest).insert(rest.find("0,"), "cover: " + sum.toStdString() + "\n"), read());
    }
    widget<CoverArtView>("img_coverArt").cut();
    save();
    EXPECT_EQ(rest, read());
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, PortableKindsTest,
    testing::Values(KindCase{"song.mp3", true, "-c:a libmp3lame"}, KindCase{"song.flac", true, "-c:a flac"},
                    KindCase{"song.m4a", true, "-c:a aac"}, KindCase{"song.wav", true, ""},
                    KindCase{"song.aiff", true, "-write_id3v2 1"}, KindCase{"song.wma", true, "-c:a wmav2"},
                    KindCase{"song.ogg", true, "-c:a libvorbis"}, KindCase{"song.opus", true, "-c:a libopus"},
                    KindCase{"film.wmv", false, "-c:v wmv2 -c:a wmav2"},
                    KindCase{"film.avi", false, "-c:v mpeg4 -c:a mp2"},
                    KindCase{"film.mp4", false, "-c:v mpeg4 -c:a aac"},
                    KindCase{"faststart.mp4", false, "-c:v mpeg4 -c:a aac -movflags faststart"},
                    KindCase{"film.mov", false, "-c:v mpeg4 -c:a aac"}),
    [](const auto& information) {
        std::string name = information.param.name;
        std::replace(name.begin(), name.end(), '.', '_');
        return name;
    });

} // namespace
} // namespace velmora
