#include "pick_lists.h"

#include "platform/localisation.h"

#include <QCoreApplication>

#include <array>

namespace velmora {

namespace {

constexpr std::array genreKeys = {
    QT_TRANSLATE_NOOP("Velmora", "Action"),
    QT_TRANSLATE_NOOP("Velmora", "Adults Only"),
    QT_TRANSLATE_NOOP("Velmora", "Animated"),
    QT_TRANSLATE_NOOP("Velmora", "Art"),
    QT_TRANSLATE_NOOP("Velmora", "Auto"),
    QT_TRANSLATE_NOOP("Velmora", "Business / Financial"),
    QT_TRANSLATE_NOOP("Velmora", "Children"),
    QT_TRANSLATE_NOOP("Velmora", "Comedy"),
    QT_TRANSLATE_NOOP("Velmora", "Consumer"),
    QT_TRANSLATE_NOOP("Velmora", "Cooking"),
    QT_TRANSLATE_NOOP("Velmora", "Crime"),
    QT_TRANSLATE_NOOP("Velmora", "Documentary"),
    QT_TRANSLATE_NOOP("Velmora", "Drama"),
    QT_TRANSLATE_NOOP("Velmora", "Educational"),
    QT_TRANSLATE_NOOP("Velmora", "Game Show"),
    QT_TRANSLATE_NOOP("Velmora", "Gay / Lesbian"),
    QT_TRANSLATE_NOOP("Velmora", "Health"),
    QT_TRANSLATE_NOOP("Velmora", "Holiday"),
    QT_TRANSLATE_NOOP("Velmora", "House / Garden"),
    QT_TRANSLATE_NOOP("Velmora", "Mystery"),
    QT_TRANSLATE_NOOP("Velmora", "Nature"),
    QT_TRANSLATE_NOOP("Velmora", "News"),
    QT_TRANSLATE_NOOP("Velmora", "Performing Arts"),
    QT_TRANSLATE_NOOP("Velmora", "Reality"),
    QT_TRANSLATE_NOOP("Velmora", "Romance"),
    QT_TRANSLATE_NOOP("Velmora", "Science Fiction"),
    QT_TRANSLATE_NOOP("Velmora", "Self Improvement"),
    QT_TRANSLATE_NOOP("Velmora", "Soap"),
    QT_TRANSLATE_NOOP("Velmora", "Spanish"),
    QT_TRANSLATE_NOOP("Velmora", "Special"),
    QT_TRANSLATE_NOOP("Velmora", "Sports"),
    QT_TRANSLATE_NOOP("Velmora", "Talk"),
    QT_TRANSLATE_NOOP("Velmora", "Travel"),
    QT_TRANSLATE_NOOP("Velmora", "Western"),
};

} // namespace

QStringList localisedGenres() {
    QStringList genres;
    for (const char* key : genreKeys) {
        genres += localised(key);
    }
    return genres;
}

QStringList ratingTitles() {
    return {QLatin1String(""),   QStringLiteral("G"),     QStringLiteral("PG"), QStringLiteral("PG-13"),
            QStringLiteral("R"), QStringLiteral("NC-17"), QStringLiteral("NR")};
}

} // namespace velmora
