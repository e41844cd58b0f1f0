#include "image_data.h"

#include "platform/file_path.h"

#include <QMimeData>
#include <QUrl>

#include <algorithm>

namespace velmora {
namespace {

bool isImageFormat(const QString& format) {
    return format.startsWith(QLatin1String("image/"));
}

ImageRef firstImageOfFiles(const QList<QUrl>& urls) {
    for (const QUrl& url : urls) {
        const QString path = pathFromFileUrl(url);
        if (path.isEmpty()) {
            continue;
        }
        if (ImageRef image = ImageRef::fromFile(path)) {
            return image;
        }
    }
    return {};
}

/** The image that this process itself put into DATA. What another program offers is not asked for in this
   way: the desktop would decode it by any format that it knows. */
ImageRef imageOfThisProcess(const QMimeData& data) {
    const bool isForeign = data.inherits("QInternalMimeData");
    return isForeign || !data.hasImage() ? ImageRef()
                                         : ImageRef::fromQImage(qvariant_cast<QImage>(data.imageData()));
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

bool offersFiles(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); });
}

bool offersImageFile(const QMimeData& data) {
    constexpr qsizetype mostLookedInto = 32; // a drag may be of thousands
    const QList<QUrl> urls = data.urls().mid(0, mostLookedInto);
    return std::any_of(urls.begin(), urls.end(),
                       [](const QUrl& url) { return isPictureFile(pathFromFileUrl(url)); });
}

bool offersImageData(const QMimeData& data) {
    const QStringList formats = data.formats();
    return offersFiles(data) || data.hasImage() || std::any_of(formats.begin(), formats.end(), isImageFormat);
}

ImageRef imageInData(const QMimeData& data) {
    if (ImageRef image = firstImageOfFiles(data.urls())) {
        return image;
    }
    for (const QString& format : imageFormats(data)) {
        if (ImageRef image = ImageRef::fromBytes(data.data(format))) {
            return image;
        }
    }
    return imageOfThisProcess(data);
}

QImage imageFromData(const QMimeData& data) {
    return imageInData(data).toQImage();
}

} // namespace velmora
