#pragma once

#include "form_fill_info.h"

#include <QString>

namespace velmora {

/** Sets INFO's releaseDate to the date that TEXT is, in QDate's FORMAT with English month names, or to none:
   the whole text must be the date. A date also sets the year; without one the year stays as it was. */
void setReleaseDate(FormFillInfo& info, const std::optional<QString>& text, const QString& format);

} // namespace velmora
