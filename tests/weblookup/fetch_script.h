#pragma once

#include "weblookup/form_fill_info.h"

#include <QImage>
#include <QMap>
#include <QStringList>

namespace velmora::test {

/** Stands in for the network: answers from a list of pictures and notes what it was asked for, in order. */
struct FetchScript {
    QMap<QString, QImage> pictures;
    QStringList asked;

    /** A picture that is told from others by its width. */
    static QImage picture(int width) {
        QImage image(width, 1, QImage::Format_RGB32);
        image.fill(Qt::red);
        return image;
    }

    [[nodiscard]] ImageFetch fetch() {
        return [this](const QUrl& url) {
            asked.append(url.toString());
            return pictures.value(url.toString());
        };
    }
};

} // namespace velmora::test
