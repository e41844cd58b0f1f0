// Every kind of file that other programs read tags of, through the window: each field set, changed, shortened
// and emptied in the form, and read back by programs that are not ours. These look at all that a file was at
// once: their start takes longer than the test.

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
#include <filesystem>

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
        test::make_file("ffmpeg -v error -f lavfi -i sine=d=1 " + film + GetParam().encoding +
                            " -metadata title=Old",
                        folder_ / GetParam().name);
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
    /** Keeps the file as it is now, to be read(). */
    void keep() {
        states_.push_back(kept_ / (std::to_string(states_.size()) + "-" + GetParam().name));
        std::filesystem::copy_file(folder_ / GetParam().name, states_.back());
    }
    /** What others read in each state kept: its fields, and checksums of its media. */
    [[nodiscard]] std::vector<std::string> read() {
        std::string command = qgetenv("VELMORA_FIELD_READER").toStdString();
        for (const std::string& state : states_) {
            command += " " + shell_word(state);
        }
        static const std::string end = "---\n";
        const std::string all = run_command(command);
        std::vector<std::string> found;
        for (std::size_t at = 0, next = 0; (next = all.find(end, at)) != std::string::npos;
             at = next + end.size()) {
            found.push_back(all.substr(at, next - at));
        }
        EXPECT_EQ(states_.size(), found.size()) << all;
        found.resize(states_.size());
        return found;
    }
    /** The checksums in what was read. */
    [[nodiscard]] static std::string media(const std::string& found) {
        return found.substr(std::min(found.find("0,"), found.size()));
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

private:
    test::ScratchFolder kept_;
    std::vector<std::string> states_;
};

TEST_P(PortableKindsTest, EachFieldIsSetChangedShortenedAndEmptied) {
    open();
    keep();
    const std::vector<Values> rounds = {
        {"Harbour", "Ada", "Ports", "Folk", "1994", "A ship", "PG"},
        {QString::fromUtf8("Evening at the harbour \u00e4\u6f22"), "Ada and Bo", "Ports of the north",
         "Sea Shanty", "1995", QString("A ship comes in at dusk ").repeated(12).trimmed(), "PG-13"},
        {"Eve", "Al", "P", "Pop", "2003", "Sea", "PG"},
        {},
    };
    for (const Values& values : rounds) {
        typeAll(values);
        save();
        keep();
    }
    const std::vector<std::string> found = read();
    ASSERT_NE("", media(found[0]));
    for (std::size_t i = 0; i < rounds.size(); ++i) {
        EXPECT_EQ(lines(rounds[i]) + media(found[0]), found[i + 1]);
    }
}

TEST_P(PortableKindsTest, CoverIsSetChangedAndCut) {
    open();
    type("entry_title", "Harbour");
    save();
    keep();
    std::vector<std::string> sums;
    for (const int width : {40, 300}) {
        ASSERT_TRUE(test::plain({width, 30}, width == 40 ? Qt::red : Qt::blue).save(path("cover.png")));
        controller().loadCoverArtSelected(1, {path("cover.png")});
        save();
        keep();
        const std::string bytes = test::read_file(folder_ / "cover.png");
        const QByteArray sum =
            QCryptographicHash::hash(QByteArray::fromStdString(bytes), QCryptographicHash::Md5).toHex();
        sums.push_back("cover: " + sum.toStdString() + "\n");
    }
    widget<CoverArtView>("img_coverArt").cut();
    save();
    keep();
    const std::vector<std::string> found = read();
    const std::string& rest = found[0];
    ASSERT_NE("", media(rest));
    for (std::size_t i = 0; i < sums.size(); ++i) {
        EXPECT_EQ(std::string(rest).insert(rest.find("0,"), sums[i]), found[i + 1]);
    }
    EXPECT_EQ(rest, found.back());
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
