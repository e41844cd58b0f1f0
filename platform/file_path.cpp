#include "file_path.h"

#include <QStringDecoder>
#include <QSysInfo>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora {

namespace {

constexpr char16_t escapeBase = 0xDC00; // 0x80..0xFF become U+DC80..U+DCFF

bool isEscape(QChar unit) {
    return unit.unicode() >= escapeBase + 0x80 && unit.unicode() <= escapeBase + 0xFF;
}

/** Length of the valid UTF-8 sequence at BYTES, 0 when there is none. Overlong forms and surrogates are not
   valid. */
int sequenceLength(const uchar* bytes, qsizetype left) {
    const uchar first = bytes[0];
    if (first < 0x80) {
        return 1;
    }
    const int length = first >= 0xF0 && first <= 0xF4 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || left < length) {
        return 0;
    }
    for (int i = 1; i < length; ++i) {
        if ((bytes[i] & 0xC0) != 0x80) {
            return 0;
        }
    }
    const uchar second = bytes[1];
    const bool overlong = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
    const bool surrogate = first == 0xED && second >= 0xA0;
    const bool beyondUnicode = first == 0xF4 && second >= 0x90;
    return overlong || surrogate || beyondUnicode ? 0 : length;
}

/** Whether the host of a file URL, if it names one, is this machine. */
bool isOnThisMachine(const QUrl& url) {
    const QString host = url.host();
    return host.isEmpty() || host == QLatin1String("localhost") ||
           host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
}

qsizetype lastComponentStart(const QString& path) {
    return path.lastIndexOf(QLatin1Char('/')) + 1;
}

} // namespace

QString pathFromBytes(const QByteArray& bytes) {
    QString path;
    path.reserve(bytes.size());
    const auto* data = reinterpret_cast<const uchar*>(bytes.constData());
    qsizetype valid = 0; // start of the run of valid UTF-8 that is not yet appended
    qsizetype at = 0;
    while (at < bytes.size()) {
        const int length = sequenceLength(data + at, bytes.size() - at);
        if (length > 0) {
            at += length;
            continue;
        }
        path += QString::fromUtf8(bytes.constData() + valid, at - valid);
        path += QChar(static_cast<char16_t>(escapeBase + data[at]));
        valid = ++at;
    }
    path += QString::fromUtf8(bytes.constData() + valid, at - valid);
    return path;
}

QByteArray pathBytes(const QString& path) {
    QByteArray bytes;
    bytes.reserve(path.size());
    qsizetype run = 0;
    for (qsizetype i = 0; i < path.size(); ++i) {
        const bool pairTail = i > 0 && path[i - 1].isHighSurrogate();
        if (isEscape(path[i]) && !pairTail) {
            bytes += QStringView(path).mid(run, i - run).toUtf8();
            bytes += static_cast<char>(path[i].unicode() - escapeBase);
            run = i + 1;
        }
    }
    bytes += QStringView(path).mid(run).toUtf8();
    return bytes;
}

QByteArray joinedPath(const QByteArray& folder, std::string_view name) {
    QByteArray path;
    path.reserve(folder.size() + 1 + static_cast<qsizetype>(name.size()));
    path += folder;
    if (!folder.isEmpty() && !folder.endsWith('/')) {
        path += '/';
    }
    path.append(name.data(), static_cast<qsizetype>(name.size()));
    return path;
}

QByteArray homeFolder() {
    QByteArray home = qgetenv("HOME");
    if (home.isEmpty()) {
        const passwd* const user = ::getpwuid(::getuid());
        home = user ? user->pw_dir : "";
    }
    return home.isEmpty() ? QByteArray("/") : home;
}

QUrl fileUrlFromPath(const QString& path) {
    return QUrl::fromEncoded("file://" + pathBytes(path).toPercentEncoding("/"), QUrl::StrictMode);
}

QString pathFromFileUrl(const QUrl& url) {
    if (!url.isLocalFile() || !isOnThisMachine(url)) {
        return {};
    }
    return pathFromBytes(QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()));
}

QString lastPathComponent(const QString& path) {
    return path.mid(lastComponentStart(path));
}

QString pathExtension(const QString& path) {
    const qsizetype dot = path.lastIndexOf(QLatin1Char('.'));
    return dot < lastComponentStart(path) ? QString() : path.mid(dot + 1);
}

QString pathFolder(const QString& path) {
    const qsizetype start = lastComponentStart(path);
    return start <= 1 ? path.left(start) : path.left(start - 1);
}

QString pathWithoutExtension(const QString& path) {
    const qsizetype dot = path.lastIndexOf(QLatin1Char('.'));
    return dot < lastComponentStart(path) ? path : path.left(dot);
}

bool fileExists(const QString& path) {
    struct stat status {};
    return ::stat(pathBytes(path).constData(), &status) == 0;
}

bool isPipeOrDevice(const QString& path) {
    struct stat status {};
    return ::stat(pathBytes(path).constData(), &status) == 0 && !S_ISREG(status.st_mode) &&
           !S_ISDIR(status.st_mode);
}

bool isReadableFile(const QString& path) {
    return ::access(pathBytes(path).constData(), R_OK) == 0 && !isPipeOrDevice(path);
}

} // namespace velmora
