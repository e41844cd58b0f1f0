#pragma once

#include <QString>
#include <QStringList>

#include <ostream>

/** How failed comparisons show Qt's texts. */
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QStringList& list, std::ostream* out) {
    *out << '[' << list.join(QLatin1String("|")).toStdString() << ']';
}
