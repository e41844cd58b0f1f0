#pragma once

#include <QString>
#include <QVariantMap>

namespace velmora {

/** An error for an alert: a plain record. userInfo holds texts that are already localised. */
struct Error {
    QString domain;
    int code = 0;
    QVariantMap userInfo;
};

inline const QString NSMachErrorDomain = QStringLiteral("NSMachErrorDomain");
/** The file's path. */
inline const QString NSFilePathErrorKey = QStringLiteral("NSFilePath");
/** The URL that was to be opened, a QUrl. */
inline const QString NSURLErrorKey = QStringLiteral("NSURL");
/** What went wrong, one sentence. */
inline const QString NSLocalizedDescriptionKey = QStringLiteral("NSLocalizedDescription");
/** What the user can do about it. */
inline const QString NSLocalizedRecoverySuggestionErrorKey = QStringLiteral("NSLocalizedRecoverySuggestion");

} // namespace velmora
