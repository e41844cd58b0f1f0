#include "file_name.h"

#include "platform/file_path.h"
#include "portable/media_kind.h"

#include <QRegularExpression>
#include <QTextBoundaryFinder>

namespace velmora {

namespace {

bool isRefused(QChar unit) {
    return unit.category() == QChar::Other_Control || QStringView(u"/\\:*?\"<>|").contains(unit);
}

/** TEXT without what may not stand at the end of a name. */
QString withSoundEnd(QString text) {
    while (!text.isEmpty() && (text.back().isSpace() || text.back() == u'.')) {
        text.chop(1);
    }
    return text;
}

QString withSoundCharacters(const QString& text) {
    QString sound;
    for (const QChar unit : text) {
        const bool divides = unit == u'\n' || unit == u'\r' || unit == u'\t';
        sound += divides ? QChar(u' ') : isRefused(unit) ? QChar(u'_') : unit;
    }
    return sound.trimmed();
}

/** Whether a name that begins with TEXT stands for a device on other systems, whatever its extension. */
bool isDevice(const QString& text) {
    static const QRegularExpression devices(
        QStringLiteral("^(con|prn|aux|nul|conin\\$|conout\\$|(com|lpt)[0-9\u00B9\u00B2\u00B3]) *(\\.|$)"),
        QRegularExpression::CaseInsensitiveOption);
    return devices.match(text).hasMatch();
}

/** As much of TEXT as has room in MOST bytes, cut between characters. */
QString cut(const QString& text, qsizetype most) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.toEnd();
    qsizetype end = text.size();
    while (end > 0 && pathBytes(text.left(end)).size() > most) {
        end = std::max<qsizetype>(finder.toPreviousBoundary(), 0);
    }
    return text.left(end);
}

} // namespace

std::optional<FileName> fileNameOf(const QString& text, const QByteArray& extension) {
    QString name = withSoundCharacters(text);
    if (name.startsWith(u'.')) {
        name.front() = u'_';
    }
    name = withSoundEnd(name);
    if (isDevice(name)) {
        name.prepend(u'_');
    }
    const QString whole = withSoundEnd(cut(name, longestFileName - extension.size()));
    if (whole.isEmpty()) {
        return std::nullopt;
    }
    return FileName{pathBytes(whole) + extension, whole != name};
}

bool hasFixedName(const QByteArray& path) {
    const auto kind = portable::media_kind(path.toStdString());
    return kind && kind->container == portable::Container::side_file;
}

QByteArray extensionOf(const QByteArray& path) {
    const QByteArray name = path.mid(path.lastIndexOf('/') + 1);
    const qsizetype dot = name.lastIndexOf('.');
    return dot <= 0 ? QByteArray() : name.mid(dot);
}

} // namespace velmora
