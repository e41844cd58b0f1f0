#pragma once

#include "platform/image.h"

#include <QImage>

class QMimeData;

namespace velmora {

/** Whether DATA is of a kind that the cover art view takes: a list of file paths, TIFF or PICT image data, or
   image data of another kind that the desktop hands on. Nothing is read: the files may hold anything. */
[[nodiscard]] bool offersImageData(const QMimeData& data);

/** Whether DATA is a list of paths of local files, one at least. */
[[nodiscard]] bool offersFiles(const QMimeData& data);

/** Whether one of the first files of the list begins as a picture does. */
[[nodiscard]] bool offersImageFile(const QMimeData& data);

/** The image in DATA, or none: the first file of the list that loads as an image, else the image data. What
   the formats are called plays no part, only what the bytes are. */
[[nodiscard]] ImageRef imageInData(const QMimeData& data);

/** The pixels of imageInData, or a null image. Nothing in the program calls it. */
[[nodiscard]] QImage imageFromData(const QMimeData& data);

} // namespace velmora
