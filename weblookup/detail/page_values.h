#pragma once

#include "weblookup/form_fill_info.h"

#include <QString>
#include <QUrl>

#include <optional>

/** What the texts of a page mean. */
namespace velmora {

/** The URL that ADDRESS, an image's source, makes; no value when it makes none. */
[[nodiscard]] std::optional<QUrl> imageUrl(const QString& address);

/** Sets INFO's releaseDate to the date that TEXT is, in QDate's FORMAT with English month names, or to none:
   the whole text must be the date. A date also sets the year; without one the year stays as it was. */
void setReleaseDate(FormFillInfo& info, const std::optional<QString>& text, const QString& format);

} // namespace velmora
