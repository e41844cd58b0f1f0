#pragma once

#include <QImage>

class QMimeData;

namespace velmora {

/** Whether DATA is of a kind that the cover art view takes: a list of file paths, TIFF or PICT image data, or
 * image data of another kind that the desktop hands on. Nothing is read: the files may hold anything. */
[[nodiscard]] bool offersImageData(const QMimeData& data);

/** The image in DATA, or a null image: the first file of the list that loads as an image, else the image
 * data. */
[[nodiscard]] QImage imageFromData(const QMimeData& data);

} // namespace velmora
