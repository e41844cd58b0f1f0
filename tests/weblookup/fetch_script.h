#pragma once

#include "support/pictures.h"
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
    static QImage picture(int width) { return plain({width, 1}, Qt::red); }

    [[nodiscard]] ImageFetch fetch() {
        return [this](const QUrl& url) {
            asked.append(url.toString());
            return pictures.value(url.toString());
        };
    }
};

} // namespace velmora::test
