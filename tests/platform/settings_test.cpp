#include "platform/settings.h"

#include "support/bytes.h"
#include "support/scratch_folder.h"

#include <QFile>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace velmora {

static bool operator==(const WindowLayout& a, const WindowLayout& b) {
    return a.size == b.size && a.isMaximised == b.isMaximised && a.parts == b.parts &&
           a.sortColumn == b.sortColumn && a.isDescending == b.isDescending;
}

namespace {

namespace fs = std::filesystem;

const WindowLayout aLayout{
    QSize(1000, 720), false, {{"split_upper", {300, 700}}, {"tbl", {28, 90}}}, "created", true};

class SettingsTest : public testing::Test {
protected:
    SettingsTest() { qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder_ / "config")); }
    ~SettingsTest() override { qunsetenv("XDG_CONFIG_HOME"); }

    fs::path file() const { return fs::path(folder_ / "config") / "velmora" / "settings.ini"; }
    void write(const std::string& text) {
        fs::create_directories(file().parent_path());
        std::ofstream(file()) << text;
    }

    test::ScratchFolder folder_;
};

TEST_F(SettingsTest, NothingIsRememberedAndThereIsNoFileAtFirst) {
    EXPECT_FALSE(remembersPortableTags());
    EXPECT_FALSE(rememberedLayout());
    EXPECT_TRUE(forgetEverything());
    EXPECT_FALSE(fs::exists(folder_ / "config"));
}

TEST_F(SettingsTest, LayoutAndPortableTagsAreRememberedBesideEachOther) {
    rememberPortableTags(true);
    EXPECT_TRUE(rememberLayout(aLayout));
    EXPECT_TRUE(remembersPortableTags());
    ASSERT_TRUE(rememberedLayout());
    EXPECT_EQ(aLayout, *rememberedLayout());

    rememberPortableTags(false);
    EXPECT_FALSE(remembersPortableTags());
    EXPECT_EQ(aLayout, rememberedLayout().value_or(WindowLayout()));
}

TEST_F(SettingsTest, FileGoesWithTheLastThingInIt) {
    rememberPortableTags(true);
    EXPECT_TRUE(fs::exists(file()));
    rememberPortableTags(false);
    EXPECT_FALSE(fs::exists(file().parent_path()));
}

TEST_F(SettingsTest, EverythingIsForgotten) {
    rememberPortableTags(true);
    EXPECT_TRUE(rememberLayout(aLayout));
    EXPECT_TRUE(forgetEverything());
    EXPECT_FALSE(fs::exists(file().parent_path()));
    EXPECT_FALSE(remembersPortableTags());
    EXPECT_FALSE(rememberedLayout());
}

TEST_F(SettingsTest, FileThatCantBeWrittenIsToldOf) {
    test::write_file(folder_ / "config", "a file where the folder should be");
    EXPECT_FALSE(rememberLayout(aLayout));
}

const std::string sound =
    "[General]\nportableTags=true\n[layout]\nsize=1000, 720\nmaximised=false\nsort=created\n"
    "descending=true\n[parts]\nsplit_upper=300, 700\n";

TEST_F(SettingsTest, SoundFileIsRead) {
    write(sound);
    EXPECT_TRUE(remembersPortableTags());
    ASSERT_TRUE(rememberedLayout());
    EXPECT_EQ(QSize(1000, 720), rememberedLayout()->size);
    EXPECT_EQ((QList<int>{300, 700}), rememberedLayout()->parts.value("split_upper"));
}

class DamagedSettingsTest : public SettingsTest,
                            public testing::WithParamInterface<std::pair<const char*, const char*>> {};

TEST_P(DamagedSettingsTest, CountAsNoneAndCanBeWrittenAnew) {
    std::string text = sound;
    const auto [from, to] = GetParam();
    text.replace(text.find(from), std::string(from).size(), to);
    write(text);
    EXPECT_FALSE(remembersPortableTags());
    EXPECT_FALSE(rememberedLayout());

    EXPECT_TRUE(rememberLayout(aLayout));
    EXPECT_FALSE(remembersPortableTags());
    EXPECT_EQ(aLayout, rememberedLayout().value_or(WindowLayout()));
}

INSTANTIATE_TEST_SUITE_P(Damage, DamagedSettingsTest,
                         testing::Values(std::pair("size=1000, 720", "size=1000"),
                                         std::pair("1000, 720", "1000, x"), std::pair("1000, 720", "-5, 720"),
                                         std::pair("1000, 720", "99999999, 720"),
                                         std::pair("300, 700", "300, \x01\xff"), std::pair("300, 700", ""),
                                         std::pair("portableTags=true", "portableTags=maybe"),
                                         std::pair("maximised=false", "maximised=7"),
                                         std::pair("[General]\nportableTags=true", "[General\nnonsense")));

TEST_F(SettingsTest, FileOfNoughtsOrEndlessOneCountsAsNone) {
    write(std::string(4096, '\0'));
    EXPECT_FALSE(remembersPortableTags());
    EXPECT_FALSE(rememberedLayout());
    write(sound + ";" + std::string(100'000, 'x'));
    EXPECT_FALSE(remembersPortableTags());
    EXPECT_FALSE(rememberedLayout());
}

TEST_F(SettingsTest, FolderInItsPlaceCountsAsNone) {
    fs::create_directories(file() / "x");
    EXPECT_FALSE(remembersPortableTags());
    EXPECT_FALSE(rememberedLayout());
    EXPECT_FALSE(rememberLayout(aLayout));
    EXPECT_FALSE(forgetEverything());
}

} // namespace
} // namespace velmora
