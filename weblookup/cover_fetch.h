#pragma once

#include "platform/image.h"

#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

namespace velmora {

/** Gives the image at an address, blocking; none when there is none to be had. */
using ImageFetch = std::function<ImageRef(const QUrl&)>;

/** The URL that ADDRESS, an image's source, makes; no value when it makes none. */
[[nodiscard]] std::optional<QUrl> imageUrl(const QString& address);

} // namespace velmora
