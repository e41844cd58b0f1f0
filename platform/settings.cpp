#include "settings.h"

#include "file_path.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStringList>

#include <algorithm>

namespace velmora {

namespace {

/** No window is larger, and no file that the program wrote. */
constexpr int mostPixels = 100'000;
constexpr qint64 mostBytes = qint64{64} * 1024;

const QString portableTagsKey = QStringLiteral("portableTags");
const QString sizeKey = QStringLiteral("layout/size");
const QString maximisedKey = QStringLiteral("layout/maximised");
const QString sortKey = QStringLiteral("layout/sort");
const QString descendingKey = QStringLiteral("layout/descending");
const QString partsGroup = QStringLiteral("parts/");

/** All that the file holds. */
struct Settings {
    bool portableTags = false;
    std::optional<WindowLayout> layout;
};

/** By the desktops' common rules: a folder that is not absolute counts as none, as it would be another one
   for each folder that a program is started in. */
QString settingsFile() {
    const QByteArray set = qgetenv("XDG_CONFIG_HOME");
    const QByteArray folder = set.startsWith('/') ? set : joinedPath(homeFolder(), ".config");
    return QFile::decodeName(folder) + QStringLiteral("/velmora/settings.ini");
}

/** Whether every line is one of a settings file. The toolkit says so only when it reads a file for the first
   time. */
bool isWellFormed(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QList<QByteArray> lines = file.readAll().split('\n');
    return std::all_of(lines.begin(), lines.end(), [](const QByteArray& text) {
        const QByteArray line = text.trimmed();
        return line.isEmpty() || line.startsWith(';') || (line.startsWith('[') && line.endsWith(']')) ||
               (!line.startsWith('[') && line.contains('='));
    });
}

/** Reads values, and notes when one is not of its kind. */
class Reader {
public:
    explicit Reader(const QString& file) : file_(file, QSettings::IniFormat) {}

    bool flag(const QString& key) {
        const QString text = file_.value(key, QStringLiteral("false")).toString();
        note(text == QLatin1String("true") || text == QLatin1String("false"));
        return text == QLatin1String("true");
    }
    QList<int> pixels(const QString& key) {
        QList<int> list;
        for (const QString& text : file_.value(key).toStringList()) {
            bool isNumber = false;
            list += text.toInt(&isNumber);
            note(isNumber && list.last() >= 0 && list.last() <= mostPixels);
        }
        note(!list.isEmpty());
        return list;
    }
    QString text(const QString& key) { return file_.value(key).toString(); }
    QStringList keys() { return file_.allKeys(); }
    void note(bool isSound) { isSound_ = isSound_ && isSound; }
    [[nodiscard]] bool isSound() const { return isSound_ && file_.status() == QSettings::NoError; }

private:
    QSettings file_;
    bool isSound_ = true;
};

WindowLayout readLayout(Reader& file) {
    WindowLayout layout;
    const QList<int> size = file.pixels(sizeKey);
    file.note(size.size() == 2);
    layout.size = QSize(size.value(0), size.value(1));
    layout.isMaximised = file.flag(maximisedKey);
    layout.sortColumn = file.text(sortKey);
    layout.isDescending = file.flag(descendingKey);
    for (const QString& key : file.keys()) {
        if (key.startsWith(partsGroup)) {
            layout.parts[key.mid(partsGroup.size())] = file.pixels(key);
        }
    }
    return layout;
}

/** Nothing when there is no file, or a damaged one. */
std::optional<Settings> readSettings() {
    const QFileInfo info(settingsFile());
    if (!info.isFile() || info.size() > mostBytes || !isWellFormed(info.filePath())) {
        return std::nullopt;
    }
    Reader file(info.filePath());
    Settings settings;
    settings.portableTags = file.flag(portableTagsKey);
    if (file.keys().contains(sizeKey)) {
        settings.layout = readLayout(file);
    }
    return file.isSound() ? std::optional(settings) : std::nullopt;
}

void writeLayout(const WindowLayout& layout, QSettings& file) {
    const auto pixels = [](const QList<int>& list) {
        QStringList texts;
        std::transform(list.begin(), list.end(), std::back_inserter(texts),
                       [](int value) { return QString::number(value); });
        return texts;
    };
    file.setValue(sizeKey, pixels({layout.size.width(), layout.size.height()}));
    file.setValue(maximisedKey, layout.isMaximised);
    file.setValue(sortKey, layout.sortColumn);
    file.setValue(descendingKey, layout.isDescending);
    for (auto part = layout.parts.begin(); part != layout.parts.end(); ++part) {
        file.setValue(partsGroup + part.key(), pixels(part.value()));
    }
}

/** In place of what there was, in one step. */
bool writeSettings(const Settings& settings) {
    if (!readSettings() && !forgetEverything()) {
        return false; // something damaged is in the way
    }
    if (!settings.portableTags && !settings.layout) {
        return forgetEverything();
    }
    QSettings file(settingsFile(), QSettings::IniFormat);
    file.clear();
    if (settings.portableTags) {
        file.setValue(portableTagsKey, true);
    }
    if (settings.layout) {
        writeLayout(*settings.layout, file);
    }
    file.sync();
    return file.status() == QSettings::NoError && QFile::exists(settingsFile());
}

} // namespace

void keepNoSettings() {
    for (const QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat}) {
        // No folder, so that no file can be made in it; what is set still holds until the program ends.
        QSettings::setPath(format, QSettings::UserScope, QStringLiteral("/dev/null"));
    }
    // Pages are drawn with shaders, which the toolkit would otherwise keep in the home folder.
    QCoreApplication::setAttribute(Qt::AA_DisableShaderDiskCache);
}

bool remembersPortableTags() {
    return readSettings().value_or(Settings()).portableTags;
}

bool rememberPortableTags(bool remember) {
    Settings settings = readSettings().value_or(Settings());
    settings.portableTags = remember;
    return writeSettings(settings);
}

std::optional<WindowLayout> rememberedLayout() {
    return readSettings().value_or(Settings()).layout;
}

bool rememberLayout(const WindowLayout& layout) {
    Settings settings = readSettings().value_or(Settings());
    settings.layout = layout;
    return writeSettings(settings);
}

bool forgetEverything() {
    const QString file = settingsFile();
    if (QFile::remove(file)) {
        QDir().rmdir(QFileInfo(file).path());
    }
    return !QFile::exists(file);
}

} // namespace velmora
