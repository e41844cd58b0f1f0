#include "page_values.h"

namespace velmora {

std::optional<QUrl> imageUrl(const QString& address) {
    const QUrl url(address);
    return url.isValid() && !url.isEmpty() ? std::optional(url) : std::nullopt;
}

void setReleaseDate(FormFillInfo& info, const std::optional<QString>& text, const QString& format) {
    info.releaseDate = std::nullopt;
    const QDate date = text ? QDate::fromString(*text, format) : QDate();
    if (date.isValid() && date.year() > 0) {
        info.releaseDate = date;
        info.year = date.toString(QStringLiteral("yyyy"));
    }
}

} // namespace velmora
