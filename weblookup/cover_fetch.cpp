#include "cover_fetch.h"

namespace velmora {

std::optional<QUrl> imageUrl(const QString& address) {
    const QUrl url(address);
    return url.isValid() && !url.isEmpty() ? std::optional(url) : std::nullopt;
}

} // namespace velmora
