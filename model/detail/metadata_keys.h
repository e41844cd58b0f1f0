#pragma once

#include <QString>

/** The keys of a media file's dictionary that are no texts of a tag. */
namespace velmora {

inline const QString yearKey = QStringLiteral("year");
inline const QString coverKey = QStringLiteral("coverart");

} // namespace velmora
