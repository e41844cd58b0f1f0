#include "media_files.h"

#include "support/bytes.h"

#include <QProcess>

#include <gtest/gtest.h>

#include <cstdlib>

namespace velmora::test {
namespace {

std::string quarter(const char* colour) {
    return std::string("color=") + colour + ":size=160x120:rate=10:duration=1";
}

const std::vector<std::string>& picture() {
    static const std::vector<std::string> arguments = {
        "-filter_complex",
        quarter("red") + "[a];" + quarter("lime") + "[b];" + quarter("blue") + "[c];" + quarter("white") +
            "[d];[a][b]hstack[ab];[c][d]hstack[cd];[ab][cd]vstack[first];"
            "color=yellow:size=320x240:rate=10:duration=1[second];[first][second]concat[v]",
        "-map", "[v]"};
    return arguments;
}

std::vector<std::string> joined(std::vector<std::string> first, const std::vector<std::string>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

bool near(const QColor& a, const QColor& b) {
    return std::abs(a.red() - b.red()) < 60 && std::abs(a.green() - b.green()) < 60 &&
           std::abs(a.blue() - b.blue()) < 60;
}

} // namespace

MediaFiles& MediaFiles::shared() {
    static MediaFiles files;
    return files;
}

QString MediaFiles::film(const std::string& name, const std::vector<std::string>& encoding) {
    return make(name, joined(picture(), encoding));
}

QString MediaFiles::filmWithSound(const std::string& name, const std::vector<std::string>& encoding) {
    const std::vector<std::string> sine = {"-f", "lavfi", "-i", "sine=duration=2"};
    return make(name, joined(joined(joined(sine, picture()), {"-map", "0:a"}), encoding));
}

QString MediaFiles::sound(const std::string& name, const std::vector<std::string>& encoding) {
    return make(name, joined({"-f", "lavfi", "-i", "sine=duration=2"}, encoding));
}

QString MediaFiles::soundWithPicture(const std::string& name) {
    return make(name, {"-f",
                       "lavfi",
                       "-i",
                       "sine=duration=2",
                       "-f",
                       "lavfi",
                       "-i",
                       "testsrc=size=64x64:rate=1:duration=1",
                       "-map",
                       "0",
                       "-map",
                       "1",
                       "-c:v",
                       "mjpeg",
                       "-frames:v",
                       "1",
                       "-pix_fmt",
                       "yuvj420p",
                       "-disposition:v",
                       "attached_pic",
                       "-id3v2_version",
                       "3"});
}

QString MediaFiles::file(const std::string& name, const std::string& bytes) {
    write_file(folder_ / name, bytes);
    return QString::fromStdString(folder_ / name);
}

QString MediaFiles::make(const std::string& name, const std::vector<std::string>& arguments) {
    const std::string path = folder_ / name;
    if (!file_exists(path)) {
        QStringList all = {"-nostdin", "-loglevel", "error", "-y"};
        for (const std::string& argument : arguments) {
            all << QString::fromStdString(argument);
        }
        all << QString::fromStdString(path);
        QProcess ffmpeg;
        ffmpeg.start("ffmpeg", all);
        EXPECT_TRUE(ffmpeg.waitForFinished() && ffmpeg.exitCode() == 0) << "ffmpeg could not make " << name;
    }
    return QString::fromStdString(path);
}

bool isFirstFrame(const QImage& frame) {
    return frame.size() == QSize(320, 240) && near(frame.pixelColor(80, 60), Qt::red) &&
           near(frame.pixelColor(240, 60), Qt::green) && near(frame.pixelColor(80, 180), Qt::blue) &&
           near(frame.pixelColor(240, 180), Qt::white);
}

bool isYellow(const QImage& frame) {
    return !frame.isNull() && near(frame.pixelColor(80, 60), Qt::yellow) &&
           near(frame.pixelColor(240, 180), Qt::yellow);
}

} // namespace velmora::test
