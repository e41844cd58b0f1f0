#include "media_row.h"

#include "platform/file_icon.h"
#include "platform/file_path.h"

#include <array>
#include <charconv>
#include <ctime>
#include <string_view>

namespace velmora {
namespace {

using namespace std::string_view_literals;

constexpr std::array suffixes = {"B"sv, "KB"sv, "MB"sv, "GB"sv, "TB"sv};

QVariant textValue(const QString& text) {
    return text.isNull() ? QVariant() : QVariant(text);
}

std::time_t wholeSeconds(FileTime time) {
    // The seconds are rounded down, which before 1970 is away from it.
    return time.seconds < 0 && time.nanoseconds > 0 ? time.seconds + 1 : time.seconds;
}

} // namespace

QVariant coldata::valueForKey(QStringView key) const {
    if (key == u"fullpath") {
        return textValue(fullpath);
    }
    if (key == u"icon") {
        return icon;
    }
    if (key == u"filename") {
        return textValue(filename);
    }
    if (key == u"rawfilesize") {
        return QVariant::fromValue<quint64>(rawfilesize);
    }
    if (key == u"filesize") {
        return textValue(filesize);
    }
    if (key == u"created") {
        return textValue(created);
    }
    return {};
}

QString sizeText(std::uint64_t size) {
    auto scaled = static_cast<double>(size);
    std::size_t unit = 0;
    while (unit + 1 < suffixes.size() && scaled >= 1024.0) {
        scaled *= 0.0009765625;
        ++unit;
    }
    // Unlike printf, to_chars knows no locale; unlike QString's own formatting, it rounds 100.25 down as
    // printf does.
    std::array<char, 32> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), scaled, std::chars_format::fixed, 1).ptr;
    return QLatin1String(digits.data(), static_cast<qsizetype>(end - digits.data())) + QLatin1Char(' ') +
           QLatin1String(suffixes[unit].data(), static_cast<qsizetype>(suffixes[unit].size()));
}

QString createdText(FileTime created) {
    const std::time_t seconds = wholeSeconds(created);
    std::tm local = {};
    if (!localtime_r(&seconds, &local)) {
        return QLatin1String("");
    }
    std::array<char, 1024> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%x %X", &local);
    return QString::fromLocal8Bit(text.data(), static_cast<qsizetype>(length));
}

ColdataPointer mediaRow(const QString& path, const std::optional<FileAttributes>& attributes) {
    if (!attributes || !attributes->size || !attributes->creationDate) {
        return nullptr;
    }
    return std::make_shared<const coldata>(coldata{path, fileIcon(path), lastPathComponent(path),
                                                   *attributes->size, sizeText(*attributes->size),
                                                   createdText(*attributes->creationDate)});
}

} // namespace velmora
