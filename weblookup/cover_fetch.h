#pragma once

#include <QImage>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

namespace velmora {

/** Gives the image at an address, blocking; the null image when there is none to be had. */
using ImageFetch = std::function<QImage(const QUrl&)>;

/** The URL that ADDRESS, an image's source, makes; no value when it makes none. */
[[nodiscard]] std::optional<QUrl> imageUrl(const QString& address);

} // namespace velmora
