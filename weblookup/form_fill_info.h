#pragma once

#include "platform/image.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <optional>

namespace velmora {

/** What a page extractor found on a film's page. A slot without a value was not found, and the editor's field
   stays as it is; an empty text is a value, and empties the field. Lists are never empty: a list without
   names is no value. */
struct FormFillInfo {
    std::optional<QString> title;
    /** Actors, in page order. */
    std::optional<QStringList> cast;
    /** Directors, in page order. */
    std::optional<QStringList> directors;
    /** Plot outline or product description. */
    std::optional<QString> description;
    /** Four digits, of the release date. May be of an earlier date on the page than releaseDate. */
    std::optional<QString> year;
    /** Genres, in page order. */
    std::optional<QStringList> genres;
    /** Parental rating. */
    std::optional<QString> rating;
    /** Poster or product image; none when there is none. */
    ImageRef coverArt;
    /** A plain calendar date, of no time zone. */
    std::optional<QDate> releaseDate;
};

/** Gives the image at an address, blocking; none when there is none to be had. */
using ImageFetch = std::function<ImageRef(const QUrl&)>;

} // namespace velmora
