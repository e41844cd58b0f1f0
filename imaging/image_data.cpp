#include "image_data.h"

#include "platform/file_path.h"
#include "platform/image.h"

#include <QMimeData>
#include <QUrl>

#include <algorithm>

namespace velmora {
namespace {

bool isImageFormat(const QString& format) {
    return format.startsWith(QLatin1String("image/"));
}

QImage firstImageOfFiles(const QList<QUrl>& urls) {
    for (const QUrl& url : urls) {
        const QString path = pathFromFileUrl(url);
        if (path.isEmpty()) {
            continue;
        }
        if (QImage image = imageFromFile(path); !image.isNull()) {
            return image;
        }
    }
    return {};
}

QImage imageOfFormat(const QMimeData& data, const QString& format) {
    return data.hasFormat(format) ? QImage::fromData(data.data(format)) : QImage();
}

/** The data's own formats, TIFF and PICT before the others. */
QStringList imageFormats(const QMimeData& data) {
    QStringList formats = {QStringLiteral("image/tiff"), QStringLiteral("image/x-pict")};
    for (const QString& format : data.formats()) {
        if (isImageFormat(format) && !formats.contains(format)) {
            formats << format;
        }
    }
    return formats;
}

} // namespace

bool offersImageData(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    const QStringList formats = data.formats();
    return std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); }) ||
           data.hasImage() || std::any_of(formats.begin(), formats.end(), isImageFormat);
}

QImage imageFromData(const QMimeData& data) {
    if (QImage image = firstImageOfFiles(data.urls()); !image.isNull()) {
        return image;
    }
    for (const QString& format : imageFormats(data)) {
        if (QImage image = imageOfFormat(data, format); !image.isNull()) {
            return image;
        }
    }
    return data.hasImage() ? qvariant_cast<QImage>(data.imageData()) : QImage();
}

} // namespace velmora
