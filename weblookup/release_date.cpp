#include "release_date.h"

namespace velmora {

void setReleaseDate(FormFillInfo& info, const std::optional<QString>& text, const QString& format) {
    info.releaseDate = std::nullopt;
    const QDate date = text ? QDate::fromString(*text, format) : QDate();
    if (date.isValid() && date.year() > 0) {
        info.releaseDate = date;
        info.year = date.toString(QStringLiteral("yyyy"));
    }
}

} // namespace velmora
